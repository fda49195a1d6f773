#include "support/Testing.hpp"

#include <QSet>

#include <ranges>
#include <unordered_set>

// What the headers promise and the compiler can see.

namespace {

// The comparisons have names, which programs pass on.
template <typename T>
using Comparison = bool (*)(T const&, T const&);
[[maybe_unused]] constexpr std::tuple<Comparison<BankName>, Comparison<Bank>, Comparison<BankMap>,
                                      Comparison<BankMap>>
    named{&orv::banking::operator!=, &orv::banking::operator!=, &orv::banking::operator!=,
          &orv::banking::operator== };

template <typename T>
constexpr bool isMovedWithoutThrowing = std::is_nothrow_move_constructible_v<T>&&
    std::is_nothrow_move_assignable_v<T>&& std::is_nothrow_swappable_v<T>;
static_assert(isMovedWithoutThrowing<BankName>);
static_assert(isMovedWithoutThrowing<BankAccount>);
static_assert(isMovedWithoutThrowing<Bank>);
static_assert(isMovedWithoutThrowing<BankMap>);
static_assert(isMovedWithoutThrowing<Money>);
static_assert(isMovedWithoutThrowing<ReconciledBalance>);
static_assert(isMovedWithoutThrowing<ReconciledBankAccount>);
static_assert(std::is_nothrow_copy_constructible_v<ReconciledBankAccount>);
static_assert(std::is_nothrow_copy_assignable_v<ReconciledBankAccount>);
static_assert(std::is_nothrow_copy_assignable_v<Money>);
static_assert(noexcept(std::declval<Money&>().assign(std::declval<Money>())));

static_assert(QTypeInfo<BankName>::isRelocatable && QTypeInfo<BankAccount>::isRelocatable);
static_assert(QTypeInfo<Money>::isRelocatable && QTypeInfo<Currency>::isRelocatable);
static_assert(QTypeInfo<ReconciledBalance>::isRelocatable);
static_assert(QTypeInfo<ReconciledBankAccount>::isRelocatable);

// What a query returns refers into its object.
template <typename T, typename Result>
constexpr bool isReference(Result (T::*)() const noexcept)
{
  return std::is_reference_v<Result>;
}
static_assert(isReference(&BankName::institution));
static_assert(isReference(&Bank::accounts) && isReference(&Bank::name));
static_assert(isReference(&Money::currency));
static_assert(isReference(&ReconciledBankAccount::bankAccount));
static_assert(isReference(&ReconciledBankAccount::balance));
static_assert(isReference(&ReconciledBankAccount::reconciledOn));
static_assert(std::is_reference_v<decltype(std::declval<BankMap const&>().bank({}))>);

static_assert(noexcept(std::declval<BankMap const&>().hasBank(BankName())));
static_assert(noexcept(std::hash<BankName>()(BankName())) && noexcept(qHash(BankName())));
static_assert(noexcept(BankName() == BankName()) && noexcept(BankName() < BankName()));
static_assert(std::is_same_v<decltype(BankName() <=> BankName()), std::strong_ordering>);

static_assert(std::ranges::sized_range<BankMap>);
static_assert(!std::is_convertible_v<std::map<BankName, Bank>, BankMap>);
static_assert(!std::is_convertible_v<QString, BankName>);
static_assert(!std::is_convertible_v<unsigned int, AccountNumber>);
static_assert(std::is_base_of_v<orv::foundation::Error, BankError>);
static_assert(std::is_base_of_v<std::runtime_error, orv::foundation::Error>);

} // namespace
