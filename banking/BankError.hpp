#pragma once

#include <banking/Export.hpp>
#include <foundation/Error.hpp>

#include <exception>

class QString;

namespace orv::banking {

class BankName;

/// A broken banking rule. `what()` names the bank and the rule in the user's language, in UTF-8:
/// "There is an issue with the bank '%1'. %2" with the bank's name and the message.
class ORV_BANKING_EXPORT BankError : public foundation::Error
{
public:
  /// `bank` is the bank that the rule concerns, empty where the name itself is what is missing;
  /// `message` is translated and filled; `cause` is the exception that led to this one, if any.
  BankError(BankName const& bank, QString const& message,
            std::exception const& cause = std::exception());
};

} // namespace orv::banking
