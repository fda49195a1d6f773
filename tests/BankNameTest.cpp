#include "support/Refusal.hpp"

#include <banking/BankName.hpp>

using orv::banking::BankError;
using orv::banking::BankName;

static_assert(std::is_base_of_v<orv::foundation::Error, BankError>);

TEST(BankName, IsRefusedWhenBlank)
{
  for (auto const& blank : {QString(), QString(""), QString("   "), QString("\t\n\u00a0")}) {
    Refusal<BankName> const refusals[] = {{[&](auto& name) { name = BankName(blank); }, "",
                                           "The name of a financial institution cannot be empty."}};
    expectRefusals(BankName(), refusals);
  }
}

TEST(BankName, IsWrittenAsText)
{
  BankName const name(QStringLiteral(" É \"A\\B\""));
  EXPECT_EQ(debuggedPlainly(name), QStringLiteral("Financial Institution Name: ( É \"A\\B\")"));

  QString text;
  QDebug(&text).nospace() << name << BankName("B") << "after";
  EXPECT_EQ(text, QStringLiteral("\"Financial Institution Name: ( É \\\"A\\\\B\\\")\""
                                 "\"Financial Institution Name: (B)\"after"));
  EXPECT_EQ(debugged(BankName()), "\"Financial Institution Name: ()\" ");
}
