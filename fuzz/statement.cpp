#include "Statement.hpp"

#include "BookReader.hpp"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

using orv::banking::BankAccountTypes;

// Whatever the bytes, they are a statement of which everything is known, or are refused in words.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
  QByteArray const content(reinterpret_cast<char const*>(data), static_cast<qsizetype>(size));
  for (auto const kind : {BankAccountTypes::Chequeing, BankAccountTypes::CreditCard}) {
    try {
      auto const statement = readStatement(content, {}, {orv::accounting::AccountNumber(1), kind});
      if (statement.accountId.isEmpty() || !statement.date.isValid() ||
          statement.balance == mintar::Money()) {
        std::abort();
      }
    } catch (BookError const&) { // anything else ends the program
    }
  }
  return 0;
}
