#include "Book.hpp"

#include "BookReader.hpp"

// What the library logs is written to texts, and to no file.
static auto const handler =
    qInstallMessageHandler([](QtMsgType, QMessageLogContext const&, QString const&) {});

// Whatever the bytes, each line of such a book is carried out, or refused with nothing changed.
extern "C" int LLVMFuzzerTestOneInput(unsigned char const* data, std::size_t size)
{
  Book book;
  auto const known = [&] { return std::pair(execute(book, {"list"}).table, book.identifiers); };
  auto before = known();
  QByteArray const text(reinterpret_cast<char const*>(data), static_cast<qsizetype>(size));
  for (auto const& line : text.split('\n')) {
    try {
      execute(book, toWords(toText(line)));
      before = known();
    } catch (orv::foundation::Error const&) { // anything else ends the program
    }
    if (known() != before) {
      std::abort();
    }
  }
  return 0;
}
