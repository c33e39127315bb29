// Switching the language: the changer's choice of texts, its listeners, the forms' captions and
// the program group's shortcuts.
#include <gtest/gtest.h>

#include <map>
#include <memory>

#include "common/frame/shared_state.h"
#include "common/text/caption_handler.h"
#include "common/text/lang_changer.h"
#include "common/text/user_language.h"
#include "platform/shell/program_group.h"
#include "tests/common/text/text_fixture.h"

namespace mv::test {
namespace {

using shell::TShortcutLanguage;
using LangChangerTest = TextFixture;

constexpr std::string_view kClientEntry =
    "[Desktop Entry]\r\n"
    "Name=Merovan Client\r\n"
    "Name[en]=Merovan Client\r\n"
    "Name[zh_TW]=Merovan 用戶端\r\n"
    "\r\n"
    "[Desktop Action Send]\r\n"
    "Name=Send\r\n"
    "Name[zh_TW]=傳送\r\n";

// A form with the controls "btnOK" and "lblName".
class FakeForm : public dialogs::TCaptionTarget {
 public:
  bool SetCaption(std::string_view name, const std::u16string& caption) override {
    if (name != "btnOK" && name != "lblName") return false;
    captions[std::string(name)] = caption;
    ++sets;
    return true;
  }
  std::map<std::string, std::u16string> captions;
  int sets = 0;
};

TEST_F(LangChangerTest, ChoosesByCurrentAndInstallationLanguage) {
  TLangChanger& lang = LangChanger();
  SysLanguageMode = 1;
  lang.SetLanguage(0);
  EXPECT_EQ(lang.CStr("Draft", "草稿"), "\xAF\xF3\xBD\x5A");  // Big5
  EXPECT_EQ(lang.CStrW(u"Draft", u"草稿"), u"草稿");
  EXPECT_EQ(lang.SStrW(u"Draft", u"草稿"), u"Draft");
  lang.SetLanguage(1);
  SysLanguageMode = 0;
  EXPECT_EQ(lang.CStr(u"Draft", u"草稿"), "Draft");
  EXPECT_EQ(lang.SStrW("Draft", "草稿"), u"草稿");
  // A narrow pair in the system code page (Big5 here) to wide text of the installation.
  EXPECT_EQ(lang.SysLangUnicodeStr("Draft", "\xAF\xF3\xBD\x5A"), u"草稿");
  SysLanguageMode = 1;
  EXPECT_EQ(lang.SysLangUnicodeStr("Draft", "\xAF\xF3\xBD\x5A"), u"Draft");
  // Language 3 shows the Chinese text in Simplified characters: GBK when narrow, whatever the
  // user's code page.
  lang.SetLanguage(kLangSimplified);
  EXPECT_EQ(lang.CStr("Delete file", "刪除檔案"), "\xC9\xBE\xB3\xFD\xB5\xB5\xB0\xB8");
  EXPECT_EQ(lang.CStrW("Delete file", "刪除檔案"), u"删除档案");
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
  EXPECT_EQ(told, std::vector<std::string>{"first 1"});
  lang.RemoveSwitchListener(first);
  SysLanguageMode = 1;
  lang.ChineseTogether();
  EXPECT_EQ(told.size(), 1u);
  EXPECT_EQ(lang.SystemLanguage(), 1);  // the installation's language stays
}

TEST_F(LangChangerTest, CaptionsShowTheHandlersLanguageAndFollowTheSwitch) {
  FakeForm form, other;
  LangChanger().SetLanguage(kLangEnglish);
  TCaptionHandler handler(form);
  handler.AddCaption("btnOK", u"OK", u"確定");
  handler.AddCaption("missing", u"Gone", u"沒有");
  handler.AddCaption("lblName", u"Name", u"名稱");
  handler.AddCaption("lblName", u"User name", u"用戶名稱");  // replaces the pair
  EXPECT_EQ(form.captions["lblName"], u"User name");

  auto second = std::make_unique<TCaptionHandler>(other);
  second->AddCaption("btnOK", u"OK", u"確定");
  handler.ChineseTogether();  // reaches every registered form
  EXPECT_EQ(LangChanger().Language(), kLangChinese);
  EXPECT_EQ(form.captions["lblName"], u"用戶名稱");
  EXPECT_EQ(other.captions["btnOK"], u"確定");

  EXPECT_EQ(handler.ApplyLanguage(kLangSimplified), 2);  // this form only; "missing" skipped
  EXPECT_EQ(form.captions["lblName"], u"用户名称");
  EXPECT_EQ(other.captions["btnOK"], u"確定");

  second.reset();  // a destroyed handler is no longer told
  const int otherSets = other.sets;
  LangChanger().EnglishTogether();
  EXPECT_EQ(form.captions["btnOK"], u"OK");
  EXPECT_EQ(other.sets, otherSets);
}

// The user's language reaches the captions only when it differs from the handler's and is 0 or
// 1; LanguageMode takes it in every case, and the shortcuts on disk follow it even without a
// switch.
TEST_F(LangChangerTest, UserLanguageSwitchesCaptionsOnChangeAndShortcutsAlways) {
  const TempDir& dir = installation_.Dir();
  BasePath = installation_.BaseFolder() + "/";
  dir.Write("client/Programs/client.desktop", kClientEntry);
  dir.Write("client/Programs/readme.txt", "Name[zh_TW]=x\nName=y\n");
  FakeForm form;
  TCaptionHandler handler(form);
  handler.AddCaption("btnOK", u"OK", u"確定");
  const int shownOnce = form.sets;

  UserRecord.Language = 0;  // same as the handler's: nothing is shown again
  UpdateUserLanguageMode(handler);
  EXPECT_EQ(form.sets, shownOnce);
  EXPECT_NE(dir.Read("client/Programs/client.desktop").find("Name=Merovan 用戶端\r\n"),
            std::string::npos);
  EXPECT_EQ(dir.Read("client/Programs/readme.txt"), "Name[zh_TW]=x\nName=y\n");

  UserRecord.Language = 1;
  UpdateUserLanguageMode(handler);
  EXPECT_EQ(LanguageMode, 1);
  EXPECT_EQ(form.captions["btnOK"], u"OK");
  EXPECT_EQ(dir.Read("client/Programs/client.desktop"), kClientEntry);
  EXPECT_EQ(shell::SetProgramGroupLanguage(BasePath + "nowhere/", TShortcutLanguage::Chinese), 0);

  UserRecord.Language = 3;
  UpdateUserLanguageMode(handler);
  EXPECT_EQ(LanguageMode, 3);
  EXPECT_EQ(handler.Language(), kLangEnglish);
}

TEST(DesktopEntry, SetsTheNameLineOfTheEntryGroupOnly) {
  std::string expected(kClientEntry);
  expected.replace(expected.find("Name=Merovan Client"), 19, "Name=Merovan 用戶端");
  EXPECT_EQ(shell::DesktopEntryInLanguage(kClientEntry, TShortcutLanguage::Chinese), expected);
  // No localized name of the language, or no Name line: unchanged.
  constexpr std::string_view kEnglishOnly = "[Desktop Entry]\nName=A\nName[en]=B";
  EXPECT_EQ(shell::DesktopEntryInLanguage(kEnglishOnly, TShortcutLanguage::Chinese), kEnglishOnly);
  EXPECT_EQ(shell::DesktopEntryInLanguage(kEnglishOnly, TShortcutLanguage::English),
            "[Desktop Entry]\nName=B\nName[en]=B");
  constexpr std::string_view kNoName = "[Desktop Entry]\nName[en]=B\n";
  EXPECT_EQ(shell::DesktopEntryInLanguage(kNoName, TShortcutLanguage::English), kNoName);
}

}  // namespace
}  // namespace mv::test
