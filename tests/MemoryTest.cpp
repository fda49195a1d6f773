#include "support/Testing.hpp"

#include <cstdlib>

namespace {

// Counts what malloc is asked for, and so operator new, the standard containers and Qt. Memory is full for
// the allocation that comes after so many and, if it stays full, for those after it.
struct Memory
{
  long room;
  bool staysFull;
  long made = 0;

  bool isFull() noexcept { return staysFull ? ++made > room : ++made == room + 1; }
};

Memory* memory = nullptr; // that counts, if any

} // namespace

extern "C" {

// What glibc's functions are called beside the names that this program takes over.
void* systemMalloc(std::size_t) noexcept __asm__("__libc_malloc");
void* systemRealloc(void*, std::size_t) noexcept __asm__("__libc_realloc");

void* malloc(std::size_t size) noexcept
{
  return memory != nullptr && memory->isFull() ? nullptr : systemMalloc(size);
}

void* realloc(void* block, std::size_t size) noexcept
{
  return memory != nullptr && memory->isFull() ? nullptr : systemRealloc(block, size);
}

} // extern "C"

namespace {

constexpr long any = -1; // as many as Qt needs
AccountNumber const other(2);
QString const unknown("Unknown"); // the last that is recognised

// What the operations change, and what they take.
struct Books
{
  BankMap map{{{elm, Bank(elm, {{some, Loan}}, false)}, {oak, Bank(oak, {}, true)}}};
  ReconciledBankAccount account{{elm, {some, Loan}}, dollars, march};
  std::map<AccountNumber, BankAccountTypes> accounts{{other, Loan}};
  Bank updated{elm, accounts, false};
  Bank added{pine, accounts, false};
  Bank clashing{pine, {{some, Loan}}, false};
  std::map<BankName, Bank> banks{{elm, map.bank(elm)}, {pine, added}};
};

using Operation = std::function<void(Books&)>;

// With the number of allocations.
std::tuple<char const*, long, Operation> const operations[] = {
    {"text of a number", 1, [](auto&) { return presentationText(some); }},
    {"find, its copy's node", 1, [](auto& books) { return books.map.find(some); }},
    {"find nothing", 0, [](auto& books) { return books.map.find(other); }},
    {"names, their nodes", 2, [](auto& books) { return books.map.names(); }},
    {"construct, two lists", 2, [](auto& books) { BankMap(std::move(books.banks)); }},
    {"construct a bank", 0, [](auto& books) { Bank(elm, std::move(books.accounts), true); }},
    {"look up", 0, [](auto& books) { books.map.hasBank(pine) || books.map.bank(elm).isClosed(); }},
    {"add, its node", 1, [](auto& books) { books.map.add(std::move(books.added)); }},
    {"update", 0, [](auto& books) { books.map.update(std::move(books.updated)); }},
    {"rename", 0, [](auto& books) { books.map.rename(elm, pine); }},
    {"remove", 0, [](auto& books) { books.map.remove(elm); }},
    {"move", 0, [](auto& books) { books.map = BankMap(std::move(books.map)); }},
    {"reconcile", 0, [](auto& books) { books.account.reconcile(march, dollars); }},
    {"kind", 0, [](auto&) { return toNonLocalisedText(toBankAccountTypes(unknown)); }},
    // Those that log.
    {"close", any, [](auto& books) { books.map.close(elm); }},
    {"add a number", any, [](auto& books) { books.map.add(elm, other, Loan); }},
    {"remove a number", any, [](auto& books) { books.map.remove(elm, some); }},
    // Those that are refused.
    {"open", any, [](auto& books) { books.map.open(elm); }},
    {"add a clash", any, [](auto& books) { books.map.add(std::move(books.clashing)); }},
    {"look up nothing", any, [](auto& books) { return books.map.bank(pine); }},
    {"reconcile earlier", any, [](auto& books) { books.account.reconcile({}, dollars); }},
};

QString lastMessage; // keeping it takes no memory, as its text is shared

void keepLastMessage(QtMsgType, QMessageLogContext const&, QString const& text)
{
  lastMessage = text;
}

// What there is after the operation, and its refusal and message unless memory was full.
QString outcome(Operation const& operation, Memory& available)
{
  Books books;
  QString refusal;
  memory = &available;
  try {
    operation(books);
    memory = nullptr;
  } catch (std::exception const& error) {
    memory = nullptr;
    refusal = error.what();
  }
  auto const message = std::exchange(lastMessage, {});
  auto const isFull = refusal == std::bad_alloc().what();
  return streamed(books.map) + streamed(books.account) + refusal + (isFull ? "" : message);
}

} // namespace

// Either nothing changes, or all is as if there were memory.
TEST(Memory, IsTakenForWhatIsGivenAndMayBeFull)
{
  qInstallMessageHandler(&keepLastMessage);
  Memory all{1000, false};
  auto const unchanged = outcome([](auto&) { throw std::bad_alloc(); }, all);
  for (auto const& [name, allocations, operation] : operations) {
    SCOPED_TRACE(name);
    all.made = 0;
    auto const expected = outcome(operation, all);
    EXPECT_TRUE(all.made == allocations || allocations == any) << all.made;
    for (long room = 0; room < 2 * all.made; ++room) {
      Memory some{room / 2, room % 2 == 0};
      EXPECT_THAT(outcome(operation, some), testing::AnyOf(unchanged, expected)) << room / 2;
    }
  }
}
