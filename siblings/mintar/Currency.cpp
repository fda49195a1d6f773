#include <mintar/Currency.hpp>

#include <QStringView>

#include <algorithm>
#include <array>

namespace mintar {

namespace {

struct OddCurrency
{
  QStringView isoCode;
  int decimals = 2;
};

// The currencies in circulation whose minor unit is not a hundredth, after ISO 4217.
constexpr std::array<OddCurrency, 26> oddCurrencies{{
    {u"BHD", 3}, {u"BIF", 0}, {u"CLF", 4}, {u"CLP", 0}, {u"DJF", 0}, {u"GNF", 0}, {u"IQD", 3},
    {u"ISK", 0}, {u"JOD", 3}, {u"JPY", 0}, {u"KMF", 0}, {u"KRW", 0}, {u"KWD", 3}, {u"LYD", 3},
    {u"OMR", 3}, {u"PYG", 0}, {u"RWF", 0}, {u"TND", 3}, {u"UGX", 0}, {u"UYI", 0}, {u"UYW", 4},
    {u"VND", 0}, {u"VUV", 0}, {u"XAF", 0}, {u"XOF", 0}, {u"XPF", 0},
}};

} // namespace

int Currency::decimals() const noexcept
{
  auto const* const found =
      std::find_if(oddCurrencies.begin(), oddCurrencies.end(),
                   [this](auto const& odd) { return odd.isoCode == isoCode_; });
  return found == oddCurrencies.end() ? 2 : found->decimals;
}

} // namespace mintar
