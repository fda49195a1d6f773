#pragma once

#include <foundation/Export.hpp>

#include <QString>

#include <exception>
#include <stdexcept>

namespace orv::foundation {

/// The base class of errors with a text for the user.
class ORV_FOUNDATION_EXPORT Error : public std::runtime_error
{
public:
  /// Creates an error whose `what()` returns `message` in UTF-8.
  ///
  /// \param message what is wrong, as a user reads it
  /// \param cause the exception that led to this error; this implementation does not keep it
  Error(QString const& message, std::exception const& cause);

private:
  QString message_;
};

} // namespace orv::foundation
