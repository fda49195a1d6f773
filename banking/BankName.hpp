#pragma once

#include <banking/Export.hpp>

#include <QHashFunctions>
#include <QString>
#include <QTypeInfo>

#include <compare>
#include <cstddef>
#include <functional>
#include <iosfwd>

QT_FORWARD_DECLARE_CLASS(QDebug)

namespace orv::banking {

/// The name of a bank, by which programs and the registry of banks know it.
///
/// Use it as a key of maps and hashes. Names are compared by UTF-16 code unit, so "Zed" comes
/// before "elm". The text is kept exactly as given: nothing is trimmed, folded or normalised. Only
/// a default-constructed name is empty.
///
/// \snippet snippets.cpp BankName
class ORV_BANKING_EXPORT BankName
{
public:
  /// Creates an empty name.
  BankName() noexcept = default;

  /// Creates a name from a text.
  ///
  /// Blank means empty or only white space as `QChar::isSpace()` defines it: U+00A0 is white space,
  /// zero-width space (U+200B) and NUL are not.
  ///
  /// \throws BankError (in `BankError.hpp`) if `institution` is blank
  explicit BankName(QString institution);

  /// Returns the text, exactly as it was given.
  [[nodiscard]] QString const& institution() const noexcept { return institution_; }

  /// Returns whether the name is empty.
  [[nodiscard]] bool isEmpty() const noexcept { return institution_.isEmpty(); }

  /// Compares the texts by UTF-16 code unit.
  friend std::strong_ordering operator<=>(BankName const& lhs, BankName const& rhs) noexcept
  {
    return lhs.institution_.compare(rhs.institution_) <=> 0;
  }

private:
  QString institution_;
};

/// Returns whether both texts are equal. Letter case matters.
/// \relatesalso BankName
inline bool operator==(BankName const& lhs, BankName const& rhs) noexcept
{
  return lhs.institution() == rhs.institution();
}

/// Returns the opposite of `==`. \relatesalso BankName
inline bool operator!=(BankName const& lhs, BankName const& rhs) noexcept
{
  return !(lhs == rhs);
}

/// Returns whether `lhs` comes before `rhs`.
/// \relatesalso BankName
inline bool operator<(BankName const& lhs, BankName const& rhs) noexcept
{
  return std::is_lt(lhs <=> rhs);
}

/// Returns a hash of the name, for `QHash` and `QSet`.
/// \relatesalso BankName
[[nodiscard]] inline std::size_t qHash(BankName const& name, std::size_t seed = 0) noexcept
{
  return qHash(name.institution(), seed);
}

/// Returns the name as a user reads it: the text itself, never translated.
/// \relatesalso BankName
[[nodiscard]] ORV_BANKING_EXPORT QString presentationText(BankName const& name);

/// Writes `Financial Institution Name: (Elm)`.
/// \relatesalso BankName
ORV_BANKING_EXPORT std::ostream& operator<<(std::ostream& stream, BankName const& name);

/// Writes the same text as one `QString`. \relatesalso BankName
ORV_BANKING_EXPORT QDebug operator<<(QDebug debug, BankName const& name);

} // namespace orv::banking

QT_BEGIN_NAMESPACE

Q_DECLARE_TYPEINFO(orv::banking::BankName, Q_RELOCATABLE_TYPE);

QT_END_NAMESPACE

namespace std {

/// Hashes bank names for `std::unordered_map` and `std::unordered_set`.
template <>
struct hash<orv::banking::BankName>
{
  /// Returns a hash of the name.
  [[nodiscard]] std::size_t operator()(orv::banking::BankName const& name) const noexcept
  {
    return std::hash<QString>()(name.institution());
  }
};

} // namespace std
