#include <gtest/gtest.h>

#include "common/frame/shared_state.h"
#include "common/text/caption_handler.h"
#include "common/text/user_language.h"
#include "platform/shell/program_group.h"
#include "tests/common/text/text_fixture.h"

namespace mv::test {
namespace {

using shell::TShortcutLanguage;

constexpr std::string_view kClientEntry =
    "[Desktop Entry]\r\n"
    "Type=Application\r\n"
    "Name=Merovan Client\r\n"
    "Name[en]=Merovan Client\r\n"
    "Name[zh_TW]=Merovan 用戶端\r\n"
    "Exec=mvclient\r\n"
    "\r\n"
    "[Desktop Action Send]\r\n"
    "Name=Send\r\n"
    "Name[zh_TW]=傳送\r\n";

TEST(DesktopEntry, SetsTheNameLineOfTheEntryGroupOnly) {
  std::string chinese = shell::DesktopEntryInLanguage(kClientEntry, TShortcutLanguage::Chinese);
  std::string expected(kClientEntry);
  expected.replace(expected.find("Name=Merovan Client"), 19, "Name=Merovan 用戶端");
  EXPECT_EQ(chinese, expected);
  EXPECT_EQ(shell::DesktopEntryInLanguage(chinese, TShortcutLanguage::English), kClientEntry);
  // No localized name of the language, or no Name line: unchanged.
  constexpr std::string_view kEnglishOnly = "[Desktop Entry]\nName=A\nName[en]=B";
  EXPECT_EQ(shell::DesktopEntryInLanguage(kEnglishOnly, TShortcutLanguage::Chinese), kEnglishOnly);
  EXPECT_EQ(shell::DesktopEntryInLanguage(kEnglishOnly, TShortcutLanguage::English),
            "[Desktop Entry]\nName=B\nName[en]=B");
  constexpr std::string_view kNoName = "[Desktop Entry]\nName[en]=B\n";
  EXPECT_EQ(shell::DesktopEntryInLanguage(kNoName, TShortcutLanguage::English), kNoName);
}

class ProgramGroupTest : public TextFixture {
 protected:
  ProgramGroupTest() {
    BasePath = installation_.BaseFolder() + "/";
    Dir().Write("client/Programs/client.desktop", kClientEntry);
    Dir().Write("client/Programs/readme.txt", "Name[zh_TW]=x\nName=y\n");
  }
  const TempDir& Dir() const { return installation_.Dir(); }
};

TEST_F(ProgramGroupTest, UserLanguageRenamesTheShortcutsOnDisk) {
  struct NoControls : dialogs::TCaptionTarget {
    bool SetCaption(std::string_view, const std::u16string&) override { return false; }
  } form;
  TCaptionHandler handler(form);
  UserRecord.Language = 0;
  UpdateUserLanguageMode(handler);  // no switch, but the shortcuts follow all the same
  EXPECT_NE(Dir().Read("client/Programs/client.desktop").find("Name=Merovan 用戶端\r\n"),
            std::string::npos);
  EXPECT_EQ(Dir().Read("client/Programs/readme.txt"), "Name[zh_TW]=x\nName=y\n");

  UserRecord.Language = 1;
  UpdateUserLanguageMode(handler);
  EXPECT_EQ(Dir().Read("client/Programs/client.desktop"), kClientEntry);
  EXPECT_EQ(shell::SetProgramGroupLanguage(BasePath, TShortcutLanguage::English), 0);
  EXPECT_EQ(shell::SetProgramGroupLanguage(BasePath + "nowhere/", TShortcutLanguage::Chinese), 0);
}

}  // namespace
}  // namespace mv::test
