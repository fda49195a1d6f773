#include "Data.hpp"

#include <QString>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <random>
#include <set>

using namespace orv::banking;

namespace {

using Random = std::mt19937;
using Words = std::array<char const*, 16>;

constexpr Words asciiWords{"Bank",    "Savings", "Credit",    "Union",       "Trust",  "Mutual",
                           "Farmers", "First",   "Federal",   "Cooperative", "Valley", "of",
                           "and",     "North",   "Merchants", "Community"};
constexpr Words otherWords{"Banque",   "Crédit",    "Épargne",    "Société", "Österreichische",
                           "Länder",   "København", "spořitelna", "Łódź",    "Poupança",
                           "İstanbul", "Банк",      "Сбережений", "Τράπεζα", "銀行",
                           "은행"};

template <typename Container>
auto const& anyOf(Container const& container, Random& random)
{
  return container[std::uniform_int_distribution<std::size_t>(0, container.size() - 1)(random)];
}

QString makeName(Random& random)
{
  auto const& words = random() % 2 == 0 ? asciiWords : otherWords;
  auto const length = std::lround(std::lognormal_distribution<>(std::log(44.0), 0.45)(random));
  QString name;
  while (name.size() < length) {
    name += QString::fromUtf8(anyOf(words, random)) + u' ';
  }
  return name.left(std::clamp(length, 8L, 205L)).trimmed();
}

BankAccountTypes makeKind(Random& random)
{
  return static_cast<BankAccountTypes>(std::uniform_int_distribution(1, 5)(random));
}

} // namespace

std::vector<Bank> makeBanks(int banks, int accountsEach)
{
  Random random(1);
  std::vector<unsigned int> numbers(static_cast<std::size_t>(banks * accountsEach));
  std::iota(numbers.begin(), numbers.end(), 1000U);
  std::shuffle(numbers.begin(), numbers.end(), random);

  std::set<BankName> names;
  std::vector<Bank> made;
  for (auto number = numbers.cbegin(); number != numbers.cend();) {
    auto const [name, isNew] = names.emplace(makeName(random));
    if (isNew) {
      Accounts accounts;
      for (int i = 0; i < accountsEach; ++i) {
        accounts.emplace(*number++, makeKind(random));
      }
      made.emplace_back(*name, std::move(accounts), false);
    }
  }
  return made;
}

Accounts makeFreeAccounts(unsigned int count)
{
  Random random(1);
  Accounts accounts;
  for (unsigned int i = 0; i < count; ++i) {
    accounts.emplace(firstFreeNumber + i, makeKind(random));
  }
  return accounts;
}
