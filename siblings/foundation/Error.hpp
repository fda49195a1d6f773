#pragma once

#include <foundation/Export.hpp>

#include <QString>

#include <exception>
#include <stdexcept>

namespace orv::foundation {

/// The base of the errors that the family's libraries throw.
class ORV_FOUNDATION_EXPORT Error : public std::runtime_error
{
public:
  /// `what()` gives `message` in UTF-8. The cause tells the thrower's reason for the error apart from
  /// its message; this implementation does not keep it.
  Error(QString const& message, std::exception const& cause);

private:
  QString message_; // Part of the class layout that other libraries of the family derive from.
};

} // namespace orv::foundation
