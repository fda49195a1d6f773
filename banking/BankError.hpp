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
/// **Errors.** A broken rule throws `BankError`, whose text is for the user. `std::logic_error` has
/// an English text for the programmer; a user's input causes it only in `toBankAccountTypes`. The
/// `\throws` lines of a call are in the order of its checks: if several rules are broken, the first one is
/// reported. A member function that throws, whatever it throws, leaves its object unchanged, apart
/// from a copy assignment that runs out of memory. What stays: an argument passed with `std::move`
/// is moved from, a message is logged, and a `std::ostream` may have part of the value.
///
/// **Kinds outside the enumeration.** A `BankAccountTypes` value that is not one of the enumerators
/// is a fault of the program. What needs its text or its class of ledger account throws
/// `std::logic_error`: the functions of kinds, writing, and logging. What does not look at it
/// accepts it: constructors, `BankMap::add` of a bank, `update`, copies and `==`. `remove` of any
/// number logs the whole bank, and so throws while the bank holds one; to mend it, call `add` for
/// each such number with a proper kind.
///
/// **Languages.** Texts for users are in the language of the translator that is installed when the
/// text is made, or in English. Dates and amounts follow `QLocale()`; dates in streams are in ISO
/// 8601. Untranslated texts and labels are always in English. French and German come with the
/// library: load one with `QTranslator::load(QLocale(), "orv-banking", "_", folder)`, install it
/// with `QCoreApplication::installTranslator()`, and keep it. Beside an installed program the
/// folder is `../share/orv-banking/translations`; CMake has it in `ORV_BANKING_TRANSLATIONS_DIR`,
/// pkg-config in the variable `translationsdir`.
///
/// **Streams.** `std::ostream <<` writes UTF-8: labels in English, kinds and amounts as for users.
/// `QDebug <<` writes the same text as one `QString`, which Qt quotes and escapes unless told
/// `noquote()`. If making the text throws, nothing of the value reaches the `QDebug`; the line of a
/// `qDebug()` still ends and is emitted. The header of a stream is for the caller to include.
///
/// **Log.** `open`, `close`, and `add` and `remove` of an account number log one info message in
/// Qt's default category before the bank checks anything, so a call that throws is logged too. Its
/// words are in English, kinds as for users. Nothing else logs. If the category is off, the message
/// is made and dropped. A message handler must not throw, and must not use the bank or its
/// registry.
///
/// **Lifetime.** A reference that a call returns is valid as long as its object exists, and refers
/// to the new value after a change. Arguments may refer into the object that is changed.
///
/// **Threads.** Several threads may read the same object. While one thread changes it, no other may
/// use it. Distinct objects are independent. While a thread uses the library, no other may install
/// or remove a translator or set the default locale.
///
/// **Memory.** A call that runs out of memory throws `std::bad_alloc`. A call that logs can end the
/// process instead: Qt allocates for the first message of a process, and its own message handler
/// for every message, where an exception cannot pass. An object whose copy assignment runs out of
/// memory is for assigning to and destroying only.
///
/// **State after a move.** For assigning to and destroying only, unless the class says more. Moves
/// and swaps throw nothing.
///
/// **Storing.** Store `institution()`, `isClosed()`, and of each account `integer()` and
/// `toNonLocalisedText`; load with the constructors.
///
/// **QVariant** holds every type but `BankError` without a macro, and compares those that have
/// `==`.

/// The error that is thrown when a rule of banking is broken.
///
/// Catch it where a user's change is carried out, and show `what()`: a translated text in UTF-8
/// that names the bank and the rule, such as "There is an issue with the bank 'Elm'. Cannot close a
/// bank that is already closed." There is no error code and no bank in it. To learn who holds a
/// number, call `BankMap::find`. The page \ref calls "Calls", which is installed in
/// `share/doc/orv-banking`, has the text of each error.
///
/// \snippet snippets.cpp BankError
class ORV_BANKING_EXPORT BankError : public foundation::Error
{
public:
  /// Creates the error that reports `message` about `bank`.
  ///
  /// \param bank the bank; with an empty name, the text says "the bank ''"
  /// \param message the broken rule, translated, with its placeholders filled
  /// \param cause the exception that led to this error, for `foundation::Error`, which may ignore
  ///         it
  BankError(BankName const& bank, QString const& message,
            std::exception const& cause = std::exception());
};

} // namespace orv::banking
