#include "BookReader.hpp"
#include "OfxReader.hpp"

// Whatever the bytes, of each statement everything is known, or what is wrong; or the file is
// refused.
extern "C" int LLVMFuzzerTestOneInput(unsigned char const* data, std::size_t size)
{
  try {
    QByteArray const content(reinterpret_cast<char const*>(data), static_cast<qsizetype>(size));
    for (auto const& [identifier, statement] : readOfx(content).asKeyValueRange()) {
      auto const isKnown = statement.balance.occurredOn.isValid() &&
                           isCurrency(statement.balance.balance.currency().isoCode());
      if (identifier.split(u' ').size() != 3 || (statement.fault.isEmpty() && !isKnown)) {
        std::abort();
      }
    }
  } catch (BookError const&) { // anything else ends the program
  }
  return 0;
}
