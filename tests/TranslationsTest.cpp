#include "support/Printing.hpp"

#include <banking/BankAccountTypes.hpp>
#include <banking/BankError.hpp>
#include <banking/BankMap.hpp>

#include <QCoreApplication>
#include <QDir>
#include <QTranslator>

#include <functional>
#include <gmock/gmock.h>

using namespace orv::banking;
using orv::accounting::AccountNumber;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

namespace {

void inEachLanguage(std::function<void()> const& test)
{
  QDir const folder(ORV_BANKING_TRANSLATIONS);
  auto files = folder.entryList({"*.qm"});
  files.removeAll("orv-banking_en.qm"); // it is empty
  EXPECT_GE(files.size(), 2);
  for (auto const& file : files) {
    SCOPED_TRACE(file.toStdString());
    QTranslator translator;
    EXPECT_TRUE(translator.load(folder.filePath(file)));
    EXPECT_TRUE(QCoreApplication::installTranslator(&translator));
    test();
  }
}

} // namespace

TEST(Translations, LetEachKindBeReadBack)
{
  inEachLanguage([] {
    for (int value = 0; value <= 5; ++value) {
      auto const type = static_cast<BankAccountTypes>(value);
      EXPECT_EQ(toBankAccountTypes(presentationText(type)), type);
    }
  });
}

TEST(Translations, TellWhatARefusalIsAbout)
{
  BankName const elm("Elm");
  BankName const oak("Oak");
  BankMap banks({{elm, Bank(elm, {{AccountNumber(7), BankAccountTypes::Loan}}, false)},
                 {oak, Bank(oak, {}, false)}});
  struct Refusal
  {
    std::function<void()> call;
    std::string number; // "" where the text names none
    std::string otherBank;
  };
  for (auto const& refusal :
       {Refusal{[&] { banks.add(Bank(oak, {}, false)); }, "", ""},
        Refusal{[&] { banks.rename(oak, elm); }, "", "Elm"},
        Refusal{[&] { banks.add(oak, AccountNumber(7), BankAccountTypes::Loan); }, "7", "Elm"}}) {
    inEachLanguage([&] {
      EXPECT_THAT(refusal.call,
                  testing::ThrowsMessage<BankError>(AllOf(
                      HasSubstr("Oak"), HasSubstr(refusal.number), HasSubstr(refusal.otherBank),
                      Not(HasSubstr("%")), Not(HasSubstr("There is an issue")))));
    });
  }
}
