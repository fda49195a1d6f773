#pragma once

#include <banking/Export.hpp>
#include <foundation/Error.hpp>

#include <exception>

class QString;

namespace orv::banking {

class BankName;

/// The error that reports a broken banking rule.
///
/// A call that throws it has changed nothing, apart from arguments passed with `std::move`. `what()`
/// names the bank and the rule, in UTF-8: "There is an issue with the bank 'Elm'. Cannot close a bank
/// that is already closed." This text is all that the error holds; `BankMap::find` returns the
/// bank that holds a number.
///
/// The text is in the language of the translator that is installed when the error is created, or in
/// English. French and German come with the library: load one with
/// `QTranslator::load(QLocale(), "orv-banking", "_", folder)`, install it with
/// `QCoreApplication::installTranslator()`, and keep it. The folder is
/// `share/orv-banking/translations` below the installation prefix; CMake has it in
/// `ORV_BANKING_TRANSLATIONS_DIR`, pkg-config in the variable `translationsdir`. Dates in the text
/// follow `QLocale()`, not the translator.
///
/// The page [Refusals](docs/refusals.md) lists every rule with its text.
///
/// \snippet snippets.cpp BankError
class ORV_BANKING_EXPORT BankError : public foundation::Error
{
public:
  /// Creates the error from the bank and what is wrong with it.
  ///
  /// \param bank the bank concerned, or the empty name if there is none
  /// \param message the broken rule in the user's language, with its placeholders filled
  /// \param cause the exception that led to this error, if any; it is passed on to the foundation
  ///        library, whose implementation in this project does not keep it
  BankError(BankName const& bank, QString const& message,
            std::exception const& cause = std::exception());
};

} // namespace orv::banking
