// Code tables read from the system configuration file of throw-away installations: which
// sections count, the order and duplicates of codes, the split of Big5 values, the pick list in
// each language, and the one reading per server folder.
#include "common/services/code_tables.h"

#include <gtest/gtest.h>

#include "common/frame/shared_state.h"
#include "common/text/lang_changer.h"
#include "platform/codepage/codepage.h"
#include "tests/support/installation.h"

namespace mv::test {
namespace {

std::string Big5(std::u16string_view text) {
  return codepage::FromWide(text, 950);
}

class CodeTablesTest : public testing::Test {
 protected:
  CodeTablesTest() {
    install_.WriteSystemIni(
        "[System]\nCode_Page=1\n"
        "[EXPORT_CODE_CURRENCY]\n"
        "USD=US Dollar|" +
        Big5(u"美元") +
        "\n"
        "; EUR=commented out\n"
        "HKD=Hong Kong Dollar|" +
        Big5(u"港元") +
        "\n"
        "usd=second line of a code\n"
        "XXX=No Chinese|\n"
        "4=" +
        Big5(u"四 Four|四川|成都") +
        "\n"
        "BARE=" +
        Big5(u"只有一種") +
        "\n"
        "[Import_code_Port]\nHKHKG=Hong Kong|" +
        Big5(u"香港") +
        "\n"
        "[CODES]\nA=not a table\n"
        "[export_code_currency]\nJPY=a second section of the same name\n");
    ServerPath = install_.ServerFolder() + "/";
    Global_Merovan_Ini = "SEDIFSYS.INI";  // as the start-up sets it
  }

  ScopedEnv codePage_{"MV_CODEPAGE", "950"};
  TestInstallation install_;
};

TEST_F(CodeTablesTest, SectionsCodesAndBig5Values) {
  EXPECT_EQ(CodeTableNames(),
            (std::vector<std::string>{"EXPORT_CODE_CURRENCY", "Import_code_Port"}));
  const TCodeTable& currency = CodeTable("export_code_currency");
  ASSERT_EQ(currency.size(), 5u);
  EXPECT_EQ(currency[0].Code + "/" + currency[0].English, "USD/US Dollar");
  EXPECT_EQ(currency[0].Chinese, Big5(u"美元"));
  EXPECT_EQ(currency[1].Code, "HKD");
  EXPECT_EQ(currency[2].Code + "/" + currency[2].English + "/" + currency[2].Chinese,
            "XXX/No Chinese/");
  // 四 is A5 7C in Big5: its second byte is no separator; a second "|" stays in the Chinese text.
  EXPECT_EQ(currency[3].English, Big5(u"四 Four"));
  EXPECT_EQ(currency[3].Chinese, Big5(u"四川|成都"));
  EXPECT_EQ(currency[4].English, Big5(u"只有一種"));
  EXPECT_EQ(currency[4].Chinese, Big5(u"只有一種"));
  EXPECT_TRUE(CodeTable("CODES").empty());
  EXPECT_TRUE(CodeTable("EXPORT_CODE").empty());
}

TEST_F(CodeTablesTest, PickListsInEachLanguage) {
  LangChanger().SetLanguage(kLangEnglish);
  EXPECT_EQ(CodePickList("Import_Code_Port"), std::vector<std::string>{"HKHKG|Hong Kong"});
  const std::vector<std::string> english = CodePickList("EXPORT_CODE_CURRENCY");
  EXPECT_EQ(english[2], "XXX|No Chinese");
  LangChanger().SetLanguage(kLangChinese);
  const std::vector<std::string> chinese = CodePickList("EXPORT_CODE_CURRENCY");
  EXPECT_EQ(chinese[0], "USD|" + Big5(u"美元"));
  EXPECT_EQ(chinese[2], "XXX|No Chinese");  // no Chinese text: the English one
  EXPECT_EQ(chinese[3], "4|" + Big5(u"四川/成都"));
  LangChanger().SetLanguage(kLangSimplified);
  EXPECT_EQ(CodePickList("EXPORT_CODE_CURRENCY")[1], "HKD|" + codepage::FromWide(u"港元", 936));
  EXPECT_TRUE(CodePickList("missing").empty());
}

TEST_F(CodeTablesTest, ReadOncePerServerFolder) {
  ASSERT_EQ(CodeTable("EXPORT_CODE_CURRENCY").size(), 5u);
  install_.WriteSystemIni("[EXPORT_CODE_CURRENCY]\nEUR=Euro|" + Big5(u"歐元") + "\n");
  EXPECT_EQ(CodeTable("EXPORT_CODE_CURRENCY").size(), 5u);
  TestInstallation other;
  other.WriteSystemIni("[OTHER_CODE_X]\nA=a|b\n");
  ServerPath = other.ServerFolder() + "/";
  EXPECT_EQ(CodeTableNames(), std::vector<std::string>{"OTHER_CODE_X"});
  ServerPath = install_.ServerFolder() + "/";
  ASSERT_EQ(CodeTable("EXPORT_CODE_CURRENCY").size(), 1u);
  EXPECT_EQ(CodeTable("EXPORT_CODE_CURRENCY")[0].Chinese, Big5(u"歐元"));
  ServerPath = install_.Dir().File("nowhere/");
  EXPECT_TRUE(CodeTableNames().empty());
}

}  // namespace
}  // namespace mv::test
