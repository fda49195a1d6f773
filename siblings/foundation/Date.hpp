#pragma once

/// \file
/// Dates as text.

#include <foundation/Export.hpp>

#include <QDate>
#include <QString>

#include <iosfwd>

namespace orv::foundation {

/// Returns the date as a user reads it: in the short form of the user's locale, `QLocale()`, with
/// four digits of the year.
///
/// In the C locale the date is written as the stream operator does. The text of an invalid date is
/// empty.
[[nodiscard]] ORV_FOUNDATION_EXPORT QString presentationText(QDate const& date);

} // namespace orv::foundation

QT_BEGIN_NAMESPACE

/// Writes the date in ISO 8601, for example 2026-01-31, or nothing if the date is invalid.
///
/// Years outside 0 to 9999 have a sign, as in +12026-01-31. ISO 8601 has a year 0, which is the
/// year -1 of `QDate`, so earlier years differ by one: the year -44 of `QDate` is written -0043.
ORV_FOUNDATION_EXPORT std::ostream& operator<<(std::ostream& stream, QDate const& date);

QT_END_NAMESPACE
