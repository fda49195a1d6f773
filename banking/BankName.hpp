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

/// The name of a financial institution.
///
/// The text is kept exactly as given: nothing is trimmed, folded or normalised. Names are equal if
/// their texts are equal. They are ordered by UTF-16 code unit, so "Zed" comes before "elm". A name
/// can be a key in ordered and in hashed containers, Qt's and the standard library's.
///
/// A default-constructed name is empty. A moved-from name is for assigning to and destroying only.
///
/// \snippet snippets.cpp BankName
class ORV_BANKING_EXPORT BankName
{
public:
  /// Creates the empty name, which stands where no valid name is known.
  BankName() noexcept = default;

  /// Creates a name from a text.
  ///
  /// The text must not be blank, that is, empty or only white space as `QChar::isSpace()` defines
  /// it. No-break space (U+00A0) and em space (U+2003) are white space; zero-width space (U+200B)
  /// and NUL are not.
  ///
  /// \throws BankError if `institution` is blank; the name of the bank in the error is empty
  explicit BankName(QString institution);

  /// Returns the text, exactly as it was given.
  ///
  /// The reference is valid as long as this name exists. Later assignments show through it.
  [[nodiscard]] QString const& institution() const noexcept { return institution_; }

  /// Returns whether this is the empty name. A name created from a text is not empty.
  [[nodiscard]] bool isEmpty() const noexcept { return institution_.isEmpty(); }

private:
  QString institution_;
};

/// Returns whether both texts are equal. Letter case matters.
/// \relatesalso BankName
inline bool operator==(BankName const& lhs, BankName const& rhs) noexcept
{
  return lhs.institution() == rhs.institution();
}

/// Compares the texts by UTF-16 code unit. The operators `>`, `<=` and `>=` follow from this one.
/// \relatesalso BankName
inline std::strong_ordering operator<=>(BankName const& lhs, BankName const& rhs) noexcept
{
  return lhs.institution().compare(rhs.institution()) <=> 0;
}

/// Returns whether `lhs` comes before `rhs` in the order of `<=>`.
/// \relatesalso BankName
inline bool operator<(BankName const& lhs, BankName const& rhs) noexcept
{
  return std::is_lt(lhs <=> rhs); // written out for callers that name this operator
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

/// Writes the name with its label, in UTF-8: `Financial Institution Name: (Elm Credit Union)`.
/// \relatesalso BankName
ORV_BANKING_EXPORT std::ostream& operator<<(std::ostream& stream, BankName const& name);

/// Writes the text of the standard stream to a debug stream, as one `QString`.
/// \relatesalso BankName
ORV_BANKING_EXPORT QDebug operator<<(QDebug debug, BankName const& name);

} // namespace orv::banking

Q_DECLARE_TYPEINFO(orv::banking::BankName, Q_RELOCATABLE_TYPE);

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
