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

TEST(Translations, LetKindsBeReadBackAndTellWhatARefusalIsAbout)
{
  BankName const elm("Elm");
  BankName const oak("Oak");
  AccountNumber const seven(7);
  BankMap banks(
      {{elm, Bank(elm, {{seven, BankAccountTypes::Loan}}, false)}, {oak, Bank(oak, {}, false)}});
  // With the number and the other bank that the text names.
  std::tuple<std::function<void()>, std::string, std::string> const refusals[] = {
      {[&] { banks.add(Bank(oak, {}, false)); }, "", ""},
      {[&] { banks.rename(oak, elm); }, "", "Elm"},
      {[&] { banks.add(oak, seven, BankAccountTypes::Loan); }, "7", "Elm"},
  };
  QDir const folder(ORV_BANKING_TRANSLATIONS);
  auto files = folder.entryList({"*.qm"});
  files.removeAll("orv-banking_en.qm"); // it is empty
  EXPECT_GE(files.size(), 2);
  for (auto const& file : files) {
    SCOPED_TRACE(file.toStdString());
    QTranslator translator;
    EXPECT_TRUE(translator.load(folder.filePath(file)));
    EXPECT_TRUE(QCoreApplication::installTranslator(&translator));
    for (int value = 0; value <= 5; ++value) {
      auto const type = static_cast<BankAccountTypes>(value);
      EXPECT_EQ(toBankAccountTypes(presentationText(type)), type);
    }
    for (auto const& [call, number, otherBank] : refusals) {
      EXPECT_THAT(call, testing::ThrowsMessage<BankError>(
                            AllOf(HasSubstr("Oak"), HasSubstr(number), HasSubstr(otherBank),
                                  Not(HasSubstr("%")), Not(HasSubstr("There is an issue")))));
    }
  }
}
