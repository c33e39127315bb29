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

template <class Backend>
class UserPreferenceTest : public TextFixture {
 protected:
  UserPreferenceTest() {
    std::stringstream schema;
    schema << std::ifstream(MV_SYSUSER_SQL).rdbuf();
    Exec(schema.str());
    Exec("insert into sysuser (userid) values ('DEMO'), ('OTHER')");
    UserRecord.UserID = "DEMO";
    LangChanger().SetLanguage(kLangEnglish);
  }
  ~UserPreferenceTest() override {
    EXPECT_TRUE(dialogs_.Requests().empty());  // every box shown was expected
    LangChanger().SetLanguage(kLangChinese);
  }
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
  // The text of the last box shown, an error box; the boxes are forgotten.
  std::u16string LastBox() {
    if (dialogs_.Requests().empty()) return u"(no box)";
    EXPECT_EQ(dialogs_.Requests().back().kind, dialogs::mtError);
    const std::u16string text = dialogs_.Requests().back().text;
    dialogs_.Clear();
    return text;
  }

  Backend db_{installation_.Dir()};
};

using Backends = ::testing::Types<SqliteBackend, OdbcBackend>;
TYPED_TEST_SUITE(UserPreferenceTest, Backends);

TYPED_TEST(UserPreferenceTest, AUserWithoutARowGetsNoRowAndNoMessage) {
  UserRecord.UserID = "NOBODY";
  SaveUserPreference("PeriodPreset", "1W");
  EXPECT_EQ(GetUserPreference("PeriodPreset"), "");
  EXPECT_EQ(Exec("update sysuser set Language = 1"), 2);
}

TYPED_TEST(UserPreferenceTest, SavingChangesOneLineOfOneUserAndWritesCrLf) {
  EXPECT_EQ(GetUserPreference("PeriodPreset"), "");
  SaveUserPreference("PeriodPreset", "-1D#1W");
  EXPECT_EQ(this->Stored("DEMO"), u"PeriodPreset=-1D#1W\r\n");
  EXPECT_EQ(this->Stored("OTHER"), u"");
  this->Store(u"x=1\nperiodpreset=3M\n😀=far\nnote");
  SaveUserPreference("PeriodPreset", "a=b,c");
  SaveUserPreference("x", "");
  EXPECT_EQ(this->Stored("DEMO"), u"PeriodPreset=a=b,c\r\n😀=far\r\nnote\r\n");
  EXPECT_EQ(GetUserPreference("PERIODPRESET"), "a=b,c");
}

TYPED_TEST(UserPreferenceTest, NarrowTextsAreInTheUsersCodePage) {
  SaveUserPreference(Big5("欄位"), Big5("寬=中"));
  SaveUserPreference(u"簡", u"经");  // not in Big5: kept as stored, "?" only when read narrow
  EXPECT_EQ(this->Stored("DEMO"), u"欄位=寬=中\r\n簡=经\r\n");
  EXPECT_EQ(GetUserPreference(Big5("欄位")), Big5("寬=中"));
  EXPECT_EQ(GetUserPreference(Big5("簡")), "?");
}

// The user's row is written by its key, whatever the text holds: here Big5 bytes stored raw in a
// national text column (the server's column type), which do not read back as stored.
TYPED_TEST(UserPreferenceTest, ATextThatDoesNotReadBackAsStoredIsSavedOver) {
  Exec("drop table sysuser");
  Exec("create table sysuser (userid nvarchar(20) primary key, Preference nvarchar(4000))");
  Exec("insert into sysuser values ('DEMO', cast(X'A4A4A4E5' as text)), ('OTHER', 'x=1')");
  SaveUserPreference("PeriodPreset", "3M");
  EXPECT_EQ(GetUserPreference("PeriodPreset"), "3M");
  EXPECT_EQ(this->Stored("OTHER"), u"x=1");
}

// A NUL or a lone surrogate in a value loses nothing after it on either way to the database. The
// SQLite ODBC driver cannot carry a NUL in a text, so there the NUL itself is U+FFFD.
TYPED_TEST(UserPreferenceTest, NulsAndLoneSurrogatesInValuesLoseNothingAfterThem) {
  using namespace std::string_literals;
  SaveUserPreference(u"a", u"x\0y=z"s);
  SaveUserPreference(u"b", u"\xD800'c");
  SaveUserPreference(u"c", u"last\xDC00");
  const std::u16string nul = std::is_same_v<TypeParam, OdbcBackend> ? u"\xFFFD" : u"\0"s;
  EXPECT_EQ(this->Stored("DEMO"), u"a=x" + nul + u"y=z\r\nb=\xFFFD'c\r\nc=last\xFFFD\r\n");
  EXPECT_EQ(GetUserPreference(u"a"), u"x" + nul + u"y=z");
  EXPECT_EQ(GetUserPreference(u"c"), u"last\xFFFD");
}

TYPED_TEST(UserPreferenceTest, DatabaseErrorsAndRefusedValuesAreShownWithTheKeyAndTheReason) {
  // A value that would read back as other entries is refused, and nothing is stored.
  SaveUserPreference("a", "2\r\nevil=1");
  EXPECT_EQ(this->LastBox(),
            u"Error in saving user preference.\r\na=2\r\nevil=1\r\nReason : A preference value may "
            u"not hold a line break");
  EXPECT_EQ(this->Stored("DEMO"), u"");
  Exec("drop table sysuser");
  LangChanger().SetLanguage(kLangChinese);
  SaveUserPreference("Period", "3M");
  const std::u16string box = this->LastBox();
  EXPECT_TRUE(box.starts_with(u"記錄使用者設定發生錯誤\r\nPeriod=3M\r\n原因 : "));
  EXPECT_NE(box.find(u"no such table: sysuser"), std::u16string::npos);
  EXPECT_EQ(GetUserPreference("Period"), "");
  EXPECT_TRUE(this->LastBox().starts_with(u"讀取使用者設定發生錯誤\r\nPeriod\r\n原因 : "));
}

}  // namespace
}  // namespace mv::test
