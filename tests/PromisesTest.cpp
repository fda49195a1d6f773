#include "support/Testing.hpp"

#include <ranges>

// What the headers promise and the compiler can see.

namespace {

// The comparisons have names, which programs pass on.
template <typename T>
using Comparison = bool (*)(T const&, T const&);
[[maybe_unused]] constexpr std::tuple<Comparison<BankName>, Comparison<Bank>, Comparison<BankMap>,
                                      Comparison<BankMap>>
    named{&orv::banking::operator!=, &orv::banking::operator!=, &orv::banking::operator!=,
          &orv::banking::operator== };

template <typename... T>
constexpr bool areMovedWithoutThrowing = (... && (std::is_nothrow_move_constructible_v<T> &&
                                                  std::is_nothrow_move_assignable_v<T>));
static_assert(areMovedWithoutThrowing<BankName, BankAccount, Bank, BankMap, Money,
                                      ReconciledBalance, ReconciledBankAccount>);
static_assert(std::is_nothrow_copy_constructible_v<ReconciledBankAccount> &&
              std::is_nothrow_copy_assignable_v<ReconciledBankAccount>);
static_assert(std::is_nothrow_copy_assignable_v<Money>&& noexcept(Money().assign(Money())));

template <typename... T>
constexpr bool areRelocatable = (... && QTypeInfo<T>::isRelocatable);
static_assert(areRelocatable<BankName, BankAccount, Money, Currency, ReconciledBalance,
                             ReconciledBankAccount>);

// What a query returns refers into its object.
template <typename T, typename Result>
constexpr bool isReference(Result (T::*)() const noexcept)
{
  return std::is_reference_v<Result>;
}
static_assert(isReference(&BankName::institution));
static_assert(isReference(&Bank::accounts) && isReference(&Bank::name));
static_assert(isReference(&Money::currency) && isReference(&Currency::isoCode));
static_assert(isReference(&ReconciledBankAccount::bankAccount) &&
              isReference(&ReconciledBankAccount::balance) &&
              isReference(&ReconciledBankAccount::reconciledOn));
static_assert(std::is_reference_v<decltype(std::declval<BankMap const&>().bank({}))>);

static_assert(noexcept(std::declval<BankMap const&>().hasBank(BankName())));
static_assert(noexcept(std::hash<BankName>()(BankName())) && noexcept(qHash(BankName())));
static_assert(noexcept(BankName() == BankName()) && noexcept(BankName() < BankName()));
static_assert(std::is_same_v<decltype(BankName() <=> BankName()), std::strong_ordering>);

static_assert(std::ranges::sized_range<BankMap>);
static_assert(!std::is_convertible_v<std::map<BankName, Bank>, BankMap>);
static_assert(!std::is_convertible_v<QString, BankName>);
static_assert(!std::is_convertible_v<unsigned int, AccountNumber>);
static_assert(std::is_base_of_v<orv::foundation::Error, BankError> &&
              std::is_base_of_v<std::runtime_error, BankError>);

} // namespace
