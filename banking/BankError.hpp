#pragma once

#include <banking/BankName.hpp>
#include <banking/Export.hpp>
#include <foundation/Error.hpp>

#include <QString>

#include <exception>

namespace orv::banking {

/// The error that is thrown when a rule of banking is broken.
///
/// Catch it where a user's change is carried out, and show `what()`: a translated text in UTF-8
/// that names the bank and the rule, such as "There is an issue with the bank 'Elm'. Cannot close a
/// bank that is already closed." It holds no error code and no bank. The page `calls.md` has the
/// text of each error.
///
/// \snippet snippets.cpp BankError
class ORV_BANKING_EXPORT BankError : public foundation::Error
{
public:
  /// Creates the error that reports `message` about `bank`.
  ///
  /// \param bank the bank; with an empty name, the text says "the bank ''"
  /// \param message the broken rule, translated, with all placeholders replaced
  /// \param cause the exception that led to this error, if any
  BankError(BankName const& bank, QString const& message,
            std::exception const& cause = std::exception());
};

} // namespace orv::banking
