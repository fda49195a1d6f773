#pragma once

#include <banking/Export.hpp>

#include <QHashFunctions>
#include <QString>
#include <QTypeInfo>

#include <compare>
#include <cstddef>
#include <functional>
#include <iosfwd>

class QDebug;

namespace orv::banking {

/// The name of a financial institution, kept exactly as it was given.
///
/// Names are equal when their texts are, and order by UTF-16 code unit; both respect letter case.
class ORV_BANKING_EXPORT BankName
{
public:
  /// The empty name, which stands where no valid name is at hand. No name made from text is empty.
  BankName() noexcept = default;

  /// Throws `BankError` "The name of a financial institution cannot be empty.", for an empty bank
  /// name, when `institution` is empty or only white space.
  explicit BankName(QString institution);

  /// The text as it was given. The reference is valid while this name lives and is not assigned to.
  QString const& institution() const noexcept { return institution_; }

  /// True only for the empty name.
  bool isEmpty() const noexcept { return institution_.isEmpty(); }

private:
  QString institution_;
};

/// Equal when the texts are.
inline bool operator==(BankName const& lhs, BankName const& rhs) noexcept
{
  return lhs.institution() == rhs.institution();
}

/// The order of the texts by UTF-16 code unit.
inline std::strong_ordering operator<=>(BankName const& lhs, BankName const& rhs) noexcept
{
  return lhs.institution().compare(rhs.institution()) <=> 0;
}

/// The same order, for callers that name this operator.
inline bool operator<(BankName const& lhs, BankName const& rhs) noexcept
{
  return (lhs <=> rhs) < 0;
}

/// A hash of the text, for `QHash` and `QSet`.
[[nodiscard]] inline std::size_t qHash(BankName const& name, std::size_t seed = 0) noexcept
{
  return qHash(name.institution(), seed);
}

/// The text of the name, never translated.
ORV_BANKING_EXPORT QString presentationText(BankName const& name);

/// Writes, for instance, "Financial Institution Name: (Main Street Credit Union)" in UTF-8.
ORV_BANKING_EXPORT std::ostream& operator<<(std::ostream& stream, BankName const& name);

/// Writes the text that the standard stream gets, as one `QString`.
ORV_BANKING_EXPORT QDebug operator<<(QDebug debug, BankName const& name);

} // namespace orv::banking

Q_DECLARE_TYPEINFO(orv::banking::BankName, Q_RELOCATABLE_TYPE);

/// A hash of the text, for the standard containers.
template <>
struct std::hash<orv::banking::BankName>
{
  [[nodiscard]] std::size_t operator()(orv::banking::BankName const& name) const noexcept
  {
    return std::hash<QString>()(name.institution());
  }
};
