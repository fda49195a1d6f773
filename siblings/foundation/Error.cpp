#include <foundation/Error.hpp>

namespace orv::foundation {

Error::Error(QString const& message, std::exception const& /*cause*/)
    : std::runtime_error(message.toStdString()), message_(message)
{
}

} // namespace orv::foundation
