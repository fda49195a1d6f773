#include "Book.hpp"

#include "BookReader.hpp"
#include "support/Log.hpp"

#include <banking/BankError.hpp>

// Whatever the bytes, each line of such a book is carried out, or refused with nothing changed; and what
// is printed in the end makes the same book again.
extern "C" int LLVMFuzzerTestOneInput(unsigned char const* data, std::size_t size)
{
  auto const shown = [](Book& book) { return execute(book, {"list"}) + execute(book, {"print"}); };
  Book book;
  auto before = shown(book);
  QByteArray const text(reinterpret_cast<char const*>(data), static_cast<qsizetype>(size));
  for (auto const& line : text.split('\n')) {
    try {
      execute(book, toWords(toText(line)));
      before = shown(book);
    } catch (BookError const&) { // anything else ends the program
    } catch (orv::banking::BankError const&) {
    }
    if (shown(book) != before) {
      std::abort();
    }
  }
  Book again;
  for (auto const& line : execute(book, {"print"}).toUtf8().split('\n')) {
    execute(again, toWords(toText(line)));
  }
  if (shown(again) != before) {
    std::abort();
  }
  takeMessages();
  return 0;
}
