#include <gtest/gtest.h>

#include "common/frame/shared_state.h"
#include "common/text/lang_changer.h"
#include "common/text/text_resources.h"
#include "tests/common/text/text_fixture.h"

namespace mv::test {
namespace {

class TextResourcesTest : public TextFixture {
 protected:
  TextResourcesTest() {
    WriteCatalogue(
        "2000=Delete %s\n"
        "8000=刪除%s\n"
        "4999=Communication error %d.\n"
        "10999=通訊錯誤 %d。\n"
        "30=English only\n"
        "6031=只有中文\n");
  }
};

TEST_F(TextResourcesTest, LoadCStrFollowsTheCurrentLanguage) {
  const modules::TFormatArg name[] = {std::string("Invoice")};
  const modules::TFormatArg code[] = {int64_t{42}};
  LangChanger().SetLanguage(kLangEnglish);
  EXPECT_EQ(LoadCStr(2000), "Delete %s");
  EXPECT_EQ(LoadCStr(2000, name), "Delete Invoice");
  EXPECT_EQ(LoadCStrW(4999, code), u"Communication error 42.");
  EXPECT_EQ(LoadCStr(31), "");  // no fallback to the other language
  LangChanger().SetLanguage(kLangChinese);
  EXPECT_EQ(LoadCStr(4999, code), Big5("通訊錯誤 42。"));
  EXPECT_EQ(LoadCStr(30), "");
  LangChanger().SetLanguage(kLangSimplified);
  EXPECT_EQ(LoadCStr(2000, name), Gbk("删除Invoice"));
  EXPECT_EQ(LoadCStrW(2000), u"删除%s");
}

TEST_F(TextResourcesTest, LoadSStrFollowsTheInstallationAndFallsBackToEnglish) {
  const modules::TFormatArg name[] = {std::string("Invoice")};
  LangChanger().SetLanguage(kLangEnglish);
  SysLanguageMode = 0;
  EXPECT_EQ(LoadSStr(2000, name), Big5("刪除Invoice"));
  EXPECT_EQ(LoadSStr(30), "English only");  // Chinese missing
  EXPECT_EQ(LoadSStr(31), Big5("只有中文"));
  EXPECT_EQ(LoadSStr(32), "");
  EXPECT_EQ(LoadCStr(2000, name, true), Big5("刪除Invoice"));
  EXPECT_EQ(LoadCStr(2000, name, false), "Delete Invoice");
  EXPECT_EQ(LoadCStr(2000, false), "Delete %s");
  SysLanguageMode = 1;
  EXPECT_EQ(LoadCStr(31, true), "");  // a missing English text stays empty
  EXPECT_EQ(LoadSStr(2000), "Delete %s");
}

TEST_F(TextResourcesTest, LoadResStrTakesExactlyTheNumber) {
  LangChanger().SetLanguage(kLangEnglish);
  EXPECT_EQ(LoadResStr(8000), Big5("刪除%s"));
  EXPECT_EQ(LoadResStr(6031), Big5("只有中文"));
  EXPECT_EQ(LoadResStr(31), "");
}

}  // namespace
}  // namespace mv::test
