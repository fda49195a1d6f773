#include "model/Driver.hpp"

#include "model/Model.hpp"
#include "support/LogRecorder.hpp"
#include "support/Printing.hpp"

#include <banking/BankMap.hpp>

#include <algorithm>
#include <iterator>
#include <random>
#include <stdexcept>
#include <typeinfo>
#include <utility>

using namespace orv::banking;
using orv::accounting::AccountNumber;

namespace {

// Placeholders, pairs of letter case, text that quotes and UTF-8 change, and blanks.
QString const texts[] = {"A",           "a",      "%1 %2",  "%L1%99",   "A ",
                         " \"\\ ",      "\x01\n", QChar(0), "\uFF21",   "\U0001F3E6",
                         QChar(0xD83C), "",       " ",      QChar(0xA0)};
constexpr unsigned int numbers[] = {1,   2,     3,        4,           5,           6,
                                    257, 65537, 16777217, 2147483648U, 4294967295U, 0};
constexpr int kinds[] = {1, 2, 3, 4, 5, 1, 2, 3, 4, 0, 6, -1};

// Draws the arguments of operations; zeros once all bytes are read.
struct Bytes
{
  std::span<unsigned char const> rest;

  unsigned int next(std::size_t bound)
  {
    std::size_t const byte = rest.empty() ? 0 : rest.front();
    rest = rest.subspan(rest.empty() ? 0 : 1);
    return static_cast<unsigned int>(byte % bound);
  }

  template <typename Choices>
  auto const& pick(Choices const& choices)
  {
    return *std::next(std::begin(choices), next(std::size(choices)));
  }

  QString text() { return next(16) > 0 ? pick(texts) : QString(QChar(next(256) * 0x101)); }

  QString name()
  {
    auto const drawn = text();
    return drawn.trimmed().isEmpty() ? QString() : drawn;
  }

  model::Bank bank(QString const& name, model::Bank::Accounts const& start)
  {
    model::Bank bank{name, start, next(4) == 0};
    for (auto count = next(4); count > 0; --count) {
      bank.accounts[pick(numbers)] = pick(kinds);
    }
    return bank;
  }

  // Mostly under their names and without those that cannot be.
  model::BankMap::Banks banks()
  {
    model::BankMap::Banks banks;
    for (auto count = next(8); count > 0; --count) {
      auto const drawn = bank(text(), {});
      try {
        drawn.make();
        banks[next(16) > 0 ? drawn.name : "B"] = drawn;
      } catch (model::Refused const&) { // is left out
      }
    }
    return banks;
  }
};

BankName toName(QString const& text)
{
  return text.isEmpty() ? BankName() : BankName(text);
}

Bank toBank(model::Bank const& modelled)
{
  std::map<AccountNumber, BankAccountTypes> accounts;
  for (auto const& [number, kind] : modelled.accounts) {
    accounts.emplace(number, static_cast<BankAccountTypes>(kind));
  }
  return modelled == model::Bank() ? Bank()
                                   : Bank(toName(modelled.name), accounts, modelled.isClosed);
}

model::Bank toModel(Bank const& bank)
{
  model::Bank modelled{bank.name().institution(), {}, bank.isClosed()};
  for (auto const& [number, kind] : bank.accounts()) {
    modelled.accounts.emplace(number.integer(), static_cast<int>(kind));
  }
  return modelled;
}

struct ModelArguments
{
  Bytes& bytes;
  QString name;
  QString to;
  unsigned int number;
  int kind;
  model::Bank drawnBank;
  model::BankMap::Banks drawnBanks;
  QString text = {};

  model::Bank bank() const
  {
    if (drawnBank != model::Bank()) {
      drawnBank.make();
    }
    return drawnBank;
  }

  model::BankMap map()
  {
    drawnBanks = bytes.banks();
    model::BankMap const map{drawnBanks};
    map.make();
    return map;
  }
};

// The names and the number may be the registry's own.
struct Arguments
{
  ModelArguments const& modelled;
  BankName const& name;
  BankName const& to;
  AccountNumber const& number;
  BankAccountTypes kind;
  QString text = {};

  Bank bank() const { return toBank(modelled.drawnBank); }

  BankMap map() const
  {
    std::map<BankName, Bank> banks;
    for (auto const& [key, bank] : modelled.drawnBanks) {
      banks.emplace(toName(key), toBank(bank));
    }
    return BankMap(std::move(banks));
  }
};

struct Operation
{
  template <typename Call>
  constexpr Operation(char const* name, Call call) : name(name), real(call), modelled(call)
  {
  }

  char const* name;
  void (*real)(BankMap&, Arguments&);
  void (*modelled)(model::BankMap&, ModelArguments&);
};

constexpr Operation operations[] = {
    {"close", [](auto& map, auto& a) { map.close(a.name); }},
    {"open", [](auto& map, auto& a) { map.open(a.name); }},
    {"add a number", [](auto& map, auto& a) { map.add(a.name, a.number, a.kind); }},
    {"remove a number", [](auto& map, auto& a) { map.remove(a.name, a.number); }},
    {"add", [](auto& map, auto& a) { map.add(a.bank()); }},
    {"remove", [](auto& map, auto& a) { map.remove(a.name); }},
    {"rename", [](auto& map, auto& a) { map.rename(a.name, a.to); }},
    {"update", [](auto& map, auto& a) { map.update(a.bank()); }},
    {"bank", [](auto& map, auto& a) { map.bank(a.name); }},
    {"stream", [](auto& map, auto& a) { a.text = streamed(map); }},
    {"make", [](auto& map, auto& a) { map = a.map(); }},
};

// What is thrown, to its first NUL, or nothing.
template <typename Map, typename Arguments>
QString outcome(void (*call)(Map&, Arguments&), Map& map, Arguments& arguments)
{
  try {
    call(map, arguments);
    return {};
  } catch (model::Refused const& refused) {
    return refused.type + QStringLiteral(": ") + refused.text.toUtf8().constData();
  } catch (std::exception const& error) {
    return typeid(error).name() + QStringLiteral(": ") + error.what();
  }
}

void expect(bool holds, QString const& otherwise)
{
  if (!holds) {
    throw std::logic_error(otherwise.toStdString());
  }
}

void expectSame(QString const& actual, QString const& expected)
{
  expect(actual == expected, "gives\n" + actual + "\nwhere the model gives\n" + expected);
}

// Each number is found at the bank that holds it, and all is as the model has it.
void expectAsModelled(BankMap const& real, model::BankMap const& modelled)
{
  model::BankMap map;
  for (auto const& name : real.names()) {
    auto const& bank = real.bank(name);
    for (auto const& [number, kind] : bank.accounts()) {
      expect(real.find(number) == bank, "finds another holder");
    }
    map.banks.emplace(name.institution(), toModel(bank));
  }
  expect(map == modelled, "leaves another registry");
}

void takeStep(Bytes& bytes, Operation const& operation, BankMap& map, model::BankMap& modelled,
              Rehearsal const& rehearse)
{
  // Every other name and number is one that the registry has.
  auto const drawBank = [&] {
    auto const draws = bytes.next(2) > 0 && !modelled.banks.empty();
    return draws ? bytes.pick(modelled.banks).second : model::Bank{bytes.name(), {}, false};
  };
  auto const name = drawBank().name;
  auto const to = drawBank().name;
  auto const held = drawBank().accounts;
  auto const number = held.empty() ? bytes.pick(numbers) : bytes.pick(held).first;
  auto const kind = bytes.pick(kinds);
  ModelArguments modelArguments{bytes, name, to, number, kind, {}, {}};
  if (bytes.next(16) > 0) {
    modelArguments.drawnBank =
        bytes.bank(bytes.next(4) > 0 ? name : bytes.text(), {{number, kind}});
  }

  auto const ownName = toName(name);
  auto const ownTo = toName(to);
  AccountNumber const ownNumber(number);
  auto const* const stored = map.hasBank(ownName) ? &map.bank(ownName) : nullptr;
  auto const refers = stored != nullptr && bytes.next(2) > 0;
  auto const isHeld = refers && stored->accounts().contains(ownNumber);
  Arguments arguments{modelArguments, refers ? stored->name() : ownName,
                      refers && map.hasBank(ownTo) ? map.bank(ownTo).name() : ownTo,
                      isHeld ? stored->accounts().find(ownNumber)->first : ownNumber,
                      static_cast<BankAccountTypes>(kind)};

  auto const before = map;
  auto const modelBefore = modelled;
  auto const expected = outcome(operation.modelled, modelled, modelArguments);
  if (rehearse) {
    rehearse(map, [&](BankMap& copy) { operation.real(copy, arguments); });
  }
  expectSame(outcome(operation.real, map, arguments), expected);
  expectSame(LogRecorder::take().join(u'\n'), std::exchange(model::log, {}).join(u'\n'));
  expectSame(arguments.text, modelArguments.text);
  expectAsModelled(map, modelled);
  expect((map == before) == (modelled == modelBefore), "takes other registries for equal");
  expect(stored == nullptr || !map.hasBank(ownName) || !modelArguments.drawnBanks.empty() ||
             stored == &map.bank(ownName),
         "moves a bank");
  expect(map.find(ownNumber) || !modelled.holder(number, {}), "finds no holder");
}

} // namespace

std::size_t holdAgainstModel(std::span<unsigned char const> bytes, QString const& mark,
                             Rehearsal const& rehearse)
{
  model::mark = mark;
  LogRecorder const recorder;
  Bytes rest{bytes};
  BankMap map;
  model::BankMap modelled;
  std::size_t steps = 0;
  for (; !rest.rest.empty(); ++steps) {
    auto const& operation = rest.pick(operations);
    try {
      takeStep(rest, operation, map, modelled, rehearse);
    } catch (std::logic_error const& difference) {
      throw std::logic_error("Step " + std::to_string(steps) + ", " + operation.name + ", " +
                             difference.what());
    }
  }
  return steps;
}

std::vector<unsigned char> randomBytes(unsigned int seed)
{
  std::vector<unsigned char> bytes(6000);
  std::generate(bytes.begin(), bytes.end(), std::mt19937(seed));
  return bytes;
}
