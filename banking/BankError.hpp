#pragma once

#include <banking/BankName.hpp>
#include <banking/Export.hpp>
#include <foundation/Error.hpp>

#include <QString>

#include <exception>

namespace orv::banking {

/// \page conventions Conventions
/// These hold for every type of `orv::banking`. A declaration says only what differs.
///
/// **Errors.** A broken rule throws `BankError`. The `\throws` lines of a call are in the order of
/// its checks: if several rules are broken, the first one is reported. A call that throws, whatever
/// it throws, leaves its object unchanged. What does not come back: an argument passed with
/// `std::move`, a message already logged, and text already written to a `std::ostream`.
///
/// **Kinds outside the enumeration.** A `BankAccountTypes` value that is not one of the enumerators
/// is a programming error. Calls that need its text or class throw `std::logic_error`, and so do
/// writing and logging it. Storing, copying and comparing it do not: banks and registries accept it.
/// A bank that holds one cannot be logged as a whole, so `remove` throws for every number; `add` of
/// that number with a proper kind repairs the bank.
///
/// **Languages.** Texts for users are in the language of the translator that is installed when the
/// text is made, or in English. Dates and amounts in them follow `QLocale()`. Untranslated texts,
/// labels and the words of log messages are always in English.
///
/// **Streams.** `std::ostream <<` writes UTF-8: the labels in English, kinds and amounts for users.
/// `QDebug <<` writes the same text as one `QString`, which Qt quotes and escapes unless told
/// `noquote()`. If it throws, nothing of the value is written; the line of a `qDebug()` still ends
/// and is emitted. The stream's own header, `<QDebug>` or `<ostream>`, is the caller's to include.
///
/// **Log.** `open`, `close`, and `add` and `remove` of an account number log one info message in
/// Qt's default category before the bank checks anything. Nothing else logs. A message handler must
/// not throw.
///
/// **Lifetime.** A reference that a call returns is valid as long as its object exists, and refers
/// to the new value after a change. An object after a move is for assigning to and destroying only.
///
/// **Threads.** Several threads may read the same object. While one thread changes it, no other may
/// use it. Distinct objects are independent. No translator may be installed or removed meanwhile.
///
/// **Memory.** A call that runs out of memory throws `std::bad_alloc`. A call that logs can end the
/// process instead: Qt needs memory for the first message of a process, and its own handler for each
/// message, in places where it cannot throw.

/// The error that is thrown when a rule of banking is broken.
///
/// Catch it where a user's change is carried out, and show `what()`: a translated text in UTF-8 that
/// names the bank and the rule, such as "There is an issue with the bank 'Elm'. Cannot close a bank
/// that is already closed." It holds no error code and no bank. To learn who holds a number, call
/// `BankMap::find`.
///
/// French and German come with the library: load one with
/// `QTranslator::load(QLocale(), "orv-banking", "_", folder)`, install it with
/// `QCoreApplication::installTranslator()`, and keep it. CMake has the folder in
/// `ORV_BANKING_TRANSLATIONS_DIR`, pkg-config in the variable `translationsdir`.
///
/// The page [Calls](docs/calls.md), installed in `share/doc/orv-banking`, has the text of each error.
///
/// \snippet snippets.cpp BankError
class ORV_BANKING_EXPORT BankError : public foundation::Error
{
public:
  /// Creates the error that reports `message` about `bank`.
  ///
  /// \param bank the bank; with an empty name, the text says "the bank ''"
  /// \param message the broken rule, translated, with its placeholders filled
  /// \param cause the exception that led to this error, for `foundation::Error`, which may ignore it
  BankError(BankName const& bank, QString const& message,
            std::exception const& cause = std::exception());
};

} // namespace orv::banking
