#include "Book.hpp"
#include "BookReader.hpp"

#include <banking/BankError.hpp>

#include <QByteArray>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <set>
#include <typeindex>

namespace {

bool readsAFile(QByteArray const& line)
{
  try {
    return toWords(toText(line)).value(0) == "statement";
  } catch (BookError const&) {
    return false;
  }
}

} // namespace

// Whatever the bytes, each line of such a book is carried out, or refused with nothing changed.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
  std::set<std::type_index> const refusals{typeid(BookError), typeid(orv::banking::BankError)};
  Book book;
  auto const shown = [&book] { return book.execute("list") + book.execute("print"); };
  auto before = shown();
  QByteArray const text(reinterpret_cast<char const*>(data), static_cast<qsizetype>(size));
  for (auto const& line : text.split('\n')) {
    if (readsAFile(line)) {
      continue;
    }
    try {
      book.execute(line);
      before = shown();
    } catch (std::exception const& error) {
      if (!refusals.contains(typeid(error)) || shown() != before) {
        std::abort();
      }
    }
  }
  return 0;
}
