#pragma once

/// \file
/// Dates as text.

#include <foundation/Export.hpp>

#include <iosfwd>

class QDate;
class QString;

namespace orv::foundation {

/// Returns the date as a user reads it: in the short form of the user's locale, `QLocale()`.
///
/// In the C locale the date is in ISO 8601, 2026-01-31. The text of an invalid date is empty.
[[nodiscard]] ORV_FOUNDATION_EXPORT QString presentationText(QDate const& date);

} // namespace orv::foundation

/// Writes the date in ISO 8601, for example 2026-01-31, or nothing if the date is invalid.
ORV_FOUNDATION_EXPORT std::ostream& operator<<(std::ostream& stream, QDate const& date);
