#include "Book.hpp"

#include "BookReader.hpp"
#include "support/Log.hpp"

#include <banking/BankError.hpp>

// Whatever the bytes, each line of such a book is carried out, or refused with nothing changed.
extern "C" int LLVMFuzzerTestOneInput(unsigned char const* data, std::size_t size)
{
  Book book;
  auto const shown = [&book] { return book.execute("list") + book.execute("print"); };
  auto before = shown();
  QByteArray const text(reinterpret_cast<char const*>(data), static_cast<qsizetype>(size));
  for (auto const& line : text.split('\n')) {
    try {
      book.execute(line);
      before = shown();
      continue;
    } catch (BookError const&) { // anything else ends the program
    } catch (orv::banking::BankError const&) {
    }
    if (shown() != before) {
      std::abort();
    }
    takeMessages();
  }
  return 0;
}
