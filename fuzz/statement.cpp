#include "Statement.hpp"

#include "BookReader.hpp"

// Whatever the bytes, they are a statement of which everything is known, or are refused in words.
extern "C" int LLVMFuzzerTestOneInput(unsigned char const* data, std::size_t size)
{
  QByteArray const content(reinterpret_cast<char const*>(data), static_cast<qsizetype>(size));
  using enum orv::banking::BankAccountTypes;
  for (auto const kind : {Chequeing, CreditCard}) {
    try {
      auto const statement =
          statementFor({orv::accounting::AccountNumber(1), kind}, toStatements(content), {});
      if (statement.accountId.isEmpty() || !statement.date.isValid() ||
          statement.balance.money() == mintar::Money()) {
        std::abort();
      }
    } catch (BookError const&) { // anything else ends the program
    }
  }
  return 0;
}
