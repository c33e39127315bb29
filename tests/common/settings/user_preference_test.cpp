// The preference store on a real user table (the demo installation's sysuser schema), through
// SQLite and through unixODBC alike: entries saved and read, the text kept, and the error boxes.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "common/frame/shared_state.h"
#include "common/settings/user_preference.h"
#include "common/text/lang_changer.h"
#include "platform/db/dataset.h"
#include "tests/common/text/text_fixture.h"
#include "tests/platform/db/db_fixture.h"

namespace mv::test {
namespace {

std::string ReadFile(const char* path) {
  std::ifstream in(path, std::ios::binary);
  std::stringstream bytes;
  bytes << in.rdbuf();
  return bytes.str();
}

template <class Backend>
class UserPreferenceTest : public TextFixture {
 protected:
  UserPreferenceTest() {
    Exec(ReadFile(MV_SYSUSER_SQL));
    Exec("insert into sysuser (userid, Preference) values ('DEMO', NULL)");
    Exec("insert into sysuser (userid, Preference) values ('OTHER', NULL)");
    UserRecord.UserID = "DEMO";
    LangChanger().SetLanguage(kLangEnglish);
  }
  ~UserPreferenceTest() override { LangChanger().SetLanguage(kLangChinese); }

  static std::u16string Stored(const char* user) {
    db::TMVADODataSet ds;
    ds.SetCommandText(std::string("select Preference from sysuser where userid = '") + user + "'");
    ds.Open();
    return ds.Fields(0).AsWideString();
  }
  static void Store(const std::u16string& text) {
    db::TMVADOCommand command;
    command.SetCommandText("update sysuser set Preference = :p where userid = 'DEMO'");
    command.SetUnicodeParamValue(0, text, false);
    command.Execute();
  }
  const dialogs::DialogRequest& OnlyBox() const {
    EXPECT_EQ(dialogs_.Requests().size(), 1u);
    EXPECT_EQ(dialogs_.Requests().back().kind, dialogs::mtError);
    return dialogs_.Requests().back();
  }

  Backend db_{installation_.Dir()};
};

using Backends = ::testing::Types<SqliteBackend, OdbcBackend>;
TYPED_TEST_SUITE(UserPreferenceTest, Backends);

TYPED_TEST(UserPreferenceTest, AUserWithoutARowGetsNoRowAndNoMessage) {
  UserRecord.UserID = "NOBODY";
  SaveUserPreference("PeriodPreset", "1W");
  EXPECT_EQ(GetUserPreference("PeriodPreset"), "");
  EXPECT_TRUE(this->dialogs_.Requests().empty());
  EXPECT_EQ(Exec("update sysuser set Language = 1"), 2);
}

TYPED_TEST(UserPreferenceTest, AnEmptyTextGetsOneLineAndOtherUsersKeepTheirs) {
  EXPECT_EQ(GetUserPreference("PeriodPreset"), "");
  SaveUserPreference("PeriodPreset", "-1D#1W");
  EXPECT_EQ(this->Stored("DEMO"), u"PeriodPreset=-1D#1W\r\n");
  EXPECT_EQ(this->Stored("OTHER"), u"");
  EXPECT_EQ(GetUserPreference("periodpreset"), "-1D#1W");
  EXPECT_TRUE(this->dialogs_.Requests().empty());
}

TYPED_TEST(UserPreferenceTest, SavingKeepsEveryOtherLineAndWritesCrLf) {
  this->Store(u"x=1\nperiodpreset=3M\n😀=far\nnote");
  SaveUserPreference("PeriodPreset", "a=b,c");
  EXPECT_EQ(this->Stored("DEMO"), u"x=1\r\nPeriodPreset=a=b,c\r\n😀=far\r\nnote\r\n");
  EXPECT_EQ(GetUserPreference("PERIODPRESET"), "a=b,c");
  SaveUserPreference("x", "");
  EXPECT_EQ(this->Stored("DEMO"), u"PeriodPreset=a=b,c\r\n😀=far\r\nnote\r\n");
  EXPECT_EQ(GetUserPreference(u"😀"), u"far");
}

TYPED_TEST(UserPreferenceTest, NarrowTextsAreInTheUsersCodePage) {
  SaveUserPreference(Big5("欄位"), Big5("寬=100,中"));
  EXPECT_EQ(this->Stored("DEMO"), u"欄位=寬=100,中\r\n");
  EXPECT_EQ(GetUserPreference(Big5("欄位")), Big5("寬=100,中"));
  SaveUserPreference(u"簡", u"经");  // not in Big5: kept as stored, "?" only when read narrow
  EXPECT_EQ(GetUserPreference(u"簡"), u"经");
  EXPECT_EQ(GetUserPreference(Big5("簡")), "?");
}

TYPED_TEST(UserPreferenceTest, DatabaseErrorsAreShownWithTheKeyAndTheReason) {
  Exec("drop table sysuser");
  SaveUserPreference("Period", "3M");
  const std::u16string saving = u"Error in saving user preference.\r\nPeriod=3M\r\nReason : ";
  EXPECT_EQ(this->OnlyBox().text.substr(0, saving.size()), saving);
  EXPECT_GT(this->OnlyBox().text.size(), saving.size());

  this->dialogs_.Clear();
  LangChanger().SetLanguage(kLangChinese);
  EXPECT_EQ(GetUserPreference("Period"), "");
  const std::u16string reading = u"讀取使用者設定發生錯誤\r\nPeriod\r\n原因 : ";
  EXPECT_EQ(this->OnlyBox().text.substr(0, reading.size()), reading);
}

TYPED_TEST(UserPreferenceTest, ALineBreakInAValueIsRefusedAndNothingChanges) {
  this->Store(u"a=1");
  SaveUserPreference("a", "2\r\nevil=1");
  EXPECT_EQ(this->OnlyBox().text,
            u"Error in saving user preference.\r\na=2\r\nevil=1\r\nReason : A preference value "
            u"may not hold a line break");
  EXPECT_EQ(this->Stored("DEMO"), u"a=1");
}

}  // namespace
}  // namespace mv::test
