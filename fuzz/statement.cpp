#include "BookReader.hpp"
#include "OfxReader.hpp"

// Whatever the bytes, of each statement everything is known, or what is wrong; or the file is refused.
extern "C" int LLVMFuzzerTestOneInput(unsigned char const* data, std::size_t size)
{
  try {
    for (auto const& [identifier, statements] :
         readOfx(QByteArray(reinterpret_cast<char const*>(data), static_cast<qsizetype>(size)))
             .asKeyValueRange()) {
      for (auto const& [balance, fault] : statements) {
        auto const isKnown =
            balance.occurredOn.isValid() && isCurrency(balance.balance.currency().isoCode());
        if (toWords(identifier).size() != 3 || isKnown != fault.isEmpty()) {
          std::abort();
        }
      }
    }
  } catch (BookError const&) { // anything else ends the program
  }
  return 0;
}
