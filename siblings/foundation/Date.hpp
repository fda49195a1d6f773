#pragma once

#include <foundation/Export.hpp>

#include <iosfwd>

class QDate;
class QString;

namespace orv::foundation {

/// The date as the user's locale (`QLocale()`) writes it in its short form, in the C locale as
/// ISO 8601 does; empty for an invalid date.
ORV_FOUNDATION_EXPORT QString presentationText(QDate const& date);

} // namespace orv::foundation

/// Writes the date in the extended format of ISO 8601, 2026-01-31; nothing for an invalid date.
ORV_FOUNDATION_EXPORT std::ostream& operator<<(std::ostream& stream, QDate const& date);
