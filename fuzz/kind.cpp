#include <banking/BankAccountTypes.hpp>

#include <QString>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <stdexcept>

using namespace orv::banking;

namespace {

// A text gives the kind whose text it is, or is refused.
void read(QString const& text)
{
  auto const refusal = "Failed to convert from the weak value '" + text +
                       "' to another type for 'N3orv7banking16BankAccountTypesE'.";
  try {
    if (toNonLocalisedText(toBankAccountTypes(text)) != text) {
      std::abort();
    }
  } catch (std::logic_error const& error) {
    if (std::strcmp(error.what(), refusal.toUtf8().constData()) != 0) {
      std::abort();
    }
  }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
  read(QString::fromUtf8(reinterpret_cast<char const*>(data), static_cast<qsizetype>(size)));
  QString units(static_cast<qsizetype>(size / 2), u'\0');
  std::memcpy(units.data(), data, size / 2 * 2);
  read(units);
  return 0;
}
