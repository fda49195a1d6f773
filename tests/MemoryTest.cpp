#include "support/Testing.hpp"

#include <cstdlib>

namespace {

// What the program asks malloc for, and so operator new, the standard containers and Qt. While it is
// watched, memory is full for the allocation that comes after so many and, if it stays full, for those
// after it.
struct Memory
{
  static inline long live = 0; // not yet freed
  static inline long made = 0;
  static inline long room = 0;
  static inline bool staysFull = false;
  static inline bool isWatched = false;

  static bool isFull() noexcept
  {
    made += isWatched ? 1 : 0;
    auto const fails = isWatched && (staysFull ? made > room : made == room + 1);
    live += fails ? 0 : 1;
    return fails;
  }
};

} // namespace

extern "C" {

// What glibc's functions are called beside the names that this program takes over.
void* systemMalloc(std::size_t) noexcept __asm__("__libc_malloc");
void* systemCalloc(std::size_t, std::size_t) noexcept __asm__("__libc_calloc");
void* systemRealloc(void*, std::size_t) noexcept __asm__("__libc_realloc");
void systemFree(void*) noexcept __asm__("__libc_free");

void* malloc(std::size_t size) noexcept
{
  return Memory::isFull() ? nullptr : systemMalloc(size);
}

void* calloc(std::size_t count, std::size_t size) noexcept
{
  return Memory::isFull() ? nullptr : systemCalloc(count, size);
}

void free(void* memory) noexcept
{
  Memory::live -= memory != nullptr ? 1 : 0;
  systemFree(memory);
}

void* realloc(void* memory, std::size_t size) noexcept
{
  auto const isFull = Memory::isFull();
  Memory::live -= memory != nullptr && !isFull ? 1 : 0;
  return isFull ? nullptr : systemRealloc(memory, size);
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
  std::map<BankName, Bank> clashingBanks{{elm, map.bank(elm)}, {pine, clashing}};
};

struct Operation
{
  char const* name;
  long allocations;
  std::function<void(Books&)> call;
};

Operation const operations[] = {
    {"text of a number", 1, [](auto&) { return presentationText(some); }},
    {"find, its copy's node", 1, [](auto& books) { return books.map.find(some); }},
    {"find nothing", 0, [](auto& books) { return books.map.find(other); }},
    {"names, their nodes", 2, [](auto& books) { return books.map.names(); }},
    {"construct, two lists", 2, [](auto& books) { BankMap(std::move(books.banks)); }},
    {"construct a bank", 0, [](auto& books) { Bank(elm, std::move(books.accounts), true); }},
    {"compare", 0, [](auto& books) { return books.map == books.map; }},
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
    {"open", any, [](auto& books) { books.map.open(oak); }},
    {"add a number", any, [](auto& books) { books.map.add(elm, other, Loan); }},
    {"change a kind", any, [](auto& books) { books.map.add(elm, some, Goal); }},
    {"remove a number", any, [](auto& books) { books.map.remove(elm, some); }},
    // Those that are refused.
    {"open again", any, [](auto& books) { books.map.open(elm); }},
    {"construct a clash", any, [](auto& books) { BankMap(std::move(books.clashingBanks)); }},
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
QString outcome(Operation const& operation, long room, bool staysFull)
{
  Books books;
  QString refusal;
  Memory::made = 0;
  Memory::room = room;
  Memory::staysFull = staysFull;
  Memory::isWatched = true;
  try {
    operation.call(books);
    Memory::isWatched = false;
  } catch (std::exception const& error) {
    Memory::isWatched = false;
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
  auto const unchanged = outcome({"nothing", 0, [](auto&) { throw std::bad_alloc(); }}, 0, false);
  for (auto const& operation : operations) {
    SCOPED_TRACE(operation.name);
    auto const expected = outcome(operation, 1000, false);
    auto const made = Memory::made;
    EXPECT_TRUE(made == operation.allocations || operation.allocations == any) << made;
    for (long room = 0; room < 2 * made; ++room) {
      auto const live = Memory::live;
      EXPECT_THAT(outcome(operation, room / 2, room % 2 == 0), testing::AnyOf(unchanged, expected));
      auto const leaked = Memory::live - live;
      EXPECT_EQ(leaked, 0) << room / 2;
    }
  }
}
