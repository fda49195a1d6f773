#include "support/Testing.hpp"

#include <cstdlib>

static bool isMeasured = false;
static long room = 0;        // for how many allocations there is memory
static bool isBrief = false; // whether only the next one fails
static long made = 0;

static bool isFull() noexcept
{
  return isMeasured && (++made == room + 1 || (made > room && !isBrief));
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

// Keeps what the value writes to a debug stream.
auto const debug = [](Books& books, auto const& value) {
  QString text;
  QDebug(&text) << value;
  books.text = text;
};

// The name, whether it may take memory, and the operation.
std::tuple<char const*, bool, std::function<void(Books&)>> const rows[] = {
    {"update", false, [](auto& books) { books.map.update(std::move(books.updated)); }},
    {"rename", false, [](auto& books) { books.map.rename(elm, pine); }},
    {"remove", false, [](auto& books) { books.map.remove(elm); }},
    {"reconcile", false, [](auto& books) { books.account.reconcile(march, dollars); }},
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
    {"debug a name", true, [](auto& books) { debug(books, elm); }},
    {"debug a bank", true, [](auto& books) { debug(books, books.updated); }},
    {"debug an account", true, [](auto& books) { debug(books, books.account); }},
    {"debug an amount", true, [](auto& books) { debug(books, dollars); }},
};

// What there is after the operation, and its refusal.
QString outcome(std::function<void(Books&)> const& operation)
{
  Books books;
  QString refusal;
  made = 0;
  isMeasured = true;
  try {
    operation(books);
    isMeasured = false;
  } catch (std::exception const& error) {
    isMeasured = false;
    refusal = error.what();
  }
  return streamed(books.map) + streamed(books.account) + refusal + books.text;
}

} // namespace

// Either nothing changes, or all is as if there were memory: if it stays full, and if one
// allocation alone fails.
TEST(Memory, FullLeavesEverythingUnchangedOrDone)
{
  qInstallMessageHandler([](auto, auto const&, auto const&) {});
  auto const unchanged = outcome([](auto&) { throw std::bad_alloc(); });
  for (auto const& [name, takesMemory, operation] : rows) {
    room = 1000;
    auto const expected = outcome(operation);
    EXPECT_TRUE(made == 0 || takesMemory) << name << ": " << made;
    auto const needed = made;
    for (long i = 0; i < 2 * needed; ++i) {
      room = i / 2;
      isBrief = i % 2 == 1;
      auto const left = outcome(operation);
      EXPECT_TRUE(left == unchanged || left == expected) << name << ": " << left.toStdString();
    }
  }
}
