#include <gtest/gtest.h>

#include "common/frame/shared_state.h"
#include "common/text/lang_changer.h"
#include "tests/common/text/text_fixture.h"

namespace mv::test {
namespace {

using LangChangerTest = TextFixture;

TEST_F(LangChangerTest, ChoosesByCurrentAndInstallationLanguage) {
  TLangChanger& lang = LangChanger();
  SysLanguageMode = 1;
  lang.SetLanguage(0);
  EXPECT_EQ(lang.CStr("Draft", "草稿"), "\xAF\xF3\xBD\x5A");  // Big5
  EXPECT_EQ(lang.CStrW(u"Draft", u"草稿"), u"草稿");
  EXPECT_EQ(lang.SStr("Draft", "草稿"), "Draft");
  EXPECT_EQ(lang.SStrW(u"Draft", u"草稿"), u"Draft");
  lang.SetLanguage(1);
  SysLanguageMode = 0;
  EXPECT_EQ(lang.CStr(u"Draft", u"草稿"), "Draft");
  EXPECT_EQ(lang.SStrW("Draft", "草稿"), u"草稿");
  // A narrow pair in the system code page (Big5 here) to wide text of the installation.
  EXPECT_EQ(lang.SysLangUnicodeStr("Draft", "\xAF\xF3\xBD\x5A"), u"草稿");
  SysLanguageMode = 1;
  EXPECT_EQ(lang.SysLangUnicodeStr("Draft", "\xAF\xF3\xBD\x5A"), u"Draft");
}

// Language 3 shows the Chinese text in Simplified characters: GBK when narrow, whatever the
// user's code page.
TEST_F(LangChangerTest, SimplifiedChineseIsGbWhenNarrow) {
  TLangChanger& lang = LangChanger();
  lang.SetLanguage(kLangSimplified);
  EXPECT_EQ(lang.CStr("Delete file", "刪除檔案"), "\xC9\xBE\xB3\xFD\xB5\xB5\xB0\xB8");
  EXPECT_EQ(lang.CStrW("Delete file", "刪除檔案"), u"删除档案");
  EXPECT_EQ(ShownNarrow(kLangSimplified, u"Merovan在處理中"), Gbk("Merovan在处理中"));
  EXPECT_EQ(ShownNarrow(kLangChinese, u"Merovan在處理中"), Big5("Merovan在處理中"));
}

TEST_F(LangChangerTest, SwitchTellsListenersAndSurvivesRemovalDuringIt) {
  TLangChanger& lang = LangChanger();
  std::vector<std::string> told;
  int second = 0;
  int first = lang.AddSwitchListener([&](uint8_t l) {
    told.push_back("first " + std::to_string(l));
    lang.RemoveSwitchListener(second);
  });
  second =
      lang.AddSwitchListener([&](uint8_t l) { told.push_back("second " + std::to_string(l)); });
  lang.SetLanguage(kLangSimplified);
  lang.EnglishTogether();
  EXPECT_EQ(lang.Language(), kLangEnglish);
  EXPECT_EQ(told, std::vector<std::string>{"first 1"});
  lang.RemoveSwitchListener(first);
  SysLanguageMode = 1;
  lang.ChineseTogether();
  EXPECT_EQ(lang.Language(), kLangChinese);
  EXPECT_EQ(told.size(), 1u);
  EXPECT_EQ(lang.SystemLanguage(), 1);  // the installation's language stays
}

}  // namespace
}  // namespace mv::test
