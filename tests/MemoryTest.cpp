#include "support/Testing.hpp"

#include <QScopedValueRollback>

#include <cstdlib>
#include <limits>

static constexpr auto never = std::numeric_limits<int>::max();
static bool isMeasured = false;
static int made = 0; // allocations, the first of which is 1
static int firstFailing = never;
static int lastFailing = never;

static bool isFull() noexcept
{
  return isMeasured && ++made >= firstFailing && made <= lastFailing;
}

// These stand before the C library's, and so before operator new, the standard containers and Qt.
// What they call are the C library's other names for them.
extern "C" {
void* systemMalloc(std::size_t) noexcept __asm__("__libc_malloc");
void* systemRealloc(void*, std::size_t) noexcept __asm__("__libc_realloc");
void* systemAlign(std::size_t, std::size_t) noexcept __asm__("__libc_memalign");

void* malloc(std::size_t size) noexcept
{
  return isFull() ? nullptr : systemMalloc(size);
}
void* realloc(void* block, std::size_t size) noexcept
{
  return isFull() ? nullptr : systemRealloc(block, size);
}
void* aligned_alloc(std::size_t alignment, std::size_t size) noexcept
{
  return isFull() ? nullptr : systemAlign(alignment, size);
}
}

namespace {

QString const unknown("Unknown"); // the last that is recognised

// What the operations change, and what they take.
struct Books
{
  std::map<AccountNumber, BankAccountTypes> accounts{{AccountNumber(1), Loan}, {hundred, Goal}};
  BankMap map{{{elm, Bank(elm, {{hundred, Loan}}, false)}, {oak, Bank(oak, {}, true)}}};
  ReconciledBankAccount account{{elm, {hundred, Loan}}, dollars, march};
  Bank updated{elm, accounts, false};
  Bank added{pine, {{AccountNumber(1), Loan}}, false};
  std::map<BankName, Bank> banks{{elm, updated}, {oak, Bank(oak, {}, true)}};
  QString text;
};

// The name, whether it may take memory, and the operation.
std::tuple<char const*, bool, std::function<void(Books&)>> const rows[] = {
    {"update", false, [](auto& books) { books.map.update(std::move(books.updated)); }},
    {"rename", false, [](auto& books) { books.map.rename(elm, pine); }},
    {"kind", false, [](auto&) { return toNonLocalisedText(*fromNonLocalisedText(unknown)); }},
    {"construct a bank", false, [](auto& books) { Bank(elm, std::move(books.accounts), true); }},
    {"construct", true, [](auto& books) { books.map = BankMap(std::move(books.banks)); }},
    {"find", true, [](auto& books) { return books.map.find(hundred); }},
    {"add", true, [](auto& books) { books.map.add(std::move(books.added)); }},
    {"close", true, [](auto& books) { books.map.close(elm); }},
    {"add a number", true, [](auto& books) { books.map.add(elm, AccountNumber(1), Loan); }},
    {"change a kind", true, [](auto& books) { books.map.add(elm, hundred, Goal); }},
    {"remove a number", true, [](auto& books) { books.map.remove(elm, hundred); }},
    {"reconcile earlier", true, [](auto& books) { books.account.reconcile({}, dollars); }},
    {"debug a bank", true, [](auto& books) { QDebug(&books.text) << books.updated; }},
    {"debug an account", true, [](auto& books) { QDebug(&books.text) << books.account; }},
    {"debug an amount", true, [](auto& books) { QDebug(&books.text) << dollars; }},
};

// What there is after the operation, or its refusal.
QString outcome(std::function<void(Books&)> const& operation)
{
  Books books;
  QString refusal;
  made = 0;
  try {
    QScopedValueRollback const measured(isMeasured, true);
    operation(books);
  } catch (std::exception const& error) {
    refusal = error.what();
  }
  return streamed(books.map) + streamed(books.account) + (refusal.isEmpty() ? books.text : refusal);
}

} // namespace

// Either nothing changes, or all is as if there were memory: if one allocation alone fails, and if
// all that follow it fail too.
TEST(Memory, FullLeavesEverythingUnchangedOrDone)
{
  qInstallMessageHandler([](auto, auto const&, auto const&) {});
  auto const unchanged = outcome([](auto&) { throw std::bad_alloc(); });
  for (auto const& [name, takesMemory, operation] : rows) {
    firstFailing = never;
    auto const expected = outcome(operation);
    auto const needed = made;
    EXPECT_TRUE(needed == 0 || takesMemory) << name << ": " << needed;
    for (int i = 1; i <= needed; ++i) {
      for (auto const last : {i, never}) {
        firstFailing = i;
        lastFailing = last;
        EXPECT_THAT(outcome(operation), testing::AnyOf(unchanged, expected)) << name;
      }
    }
  }
}
