// The user-defined reference fields of a service, from table Settings of a copy of the demo
// database.
#include "common/services/user_fields.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "common/text/lang_changer.h"
#include "platform/db/connections.h"
#include "tests/common/text/text_fixture.h"
#include "tests/platform/db/db_fixture.h"

namespace mv::test {
namespace {

const TStringList kDefaultCaptions = {"Ref #1", "Ref #2", "Ref #3", "Ref #4", "Ref #5"};

class UserFieldsTest : public TextFixture {
 protected:
  UserFieldsTest() {
    std::filesystem::copy_file(MV_DEMO_DATABASE_FILE, dir_.File("main.db"));
    db::OpenConnection("DBMAIN", "sqlite:" + dir_.File("main.db"));
  }
  ~UserFieldsTest() override { db::CloseConnection("DBMAIN"); }

  TempDir dir_;
  TDefinedRecord record_;
};

TEST_F(UserFieldsTest, ServiceWithoutRowsHasTheDefaults) {
  GetUserDefineFields("RCM_SERVICE", record_);
  EXPECT_EQ(*record_.FieldName, (TStringList{"Ref1", "Ref2", "Ref3", "Ref4", "Ref5"}));
  EXPECT_EQ(*record_.EngCaption, kDefaultCaptions);
  EXPECT_EQ(*record_.ChiCaption, kDefaultCaptions);
  EXPECT_TRUE(dialogs_.Requests().empty());
}

TEST_F(UserFieldsTest, ConfiguredCaptionsReplaceTheDefaultsTheyName) {
  Exec("insert into Settings values ('TDEC_SERVICE', 4, '', NULL)");  // empty: default kept
  Exec(u"insert into Settings values ('TDEC_SERVICE', 5, 'Vessel', '船名')");
  record_.EngCaption = std::make_unique<TStringList>(TStringList{"stale"});
  GetUserDefineFields("TDEC_SERVICE", record_);
  EXPECT_EQ(*record_.EngCaption,
            (TStringList{"Purchase Order", "Origin", "Ref #3", "Ref #4", "Vessel"}));
  EXPECT_EQ(*record_.ChiCaption,
            (TStringList{Big5("訂單編號"), Big5("原產地"), "Ref #3", "Ref #4", Big5("船名")}));
  // Captions in the installation's language, as forms show them.
  SysLanguageMode = kLangChinese;
  EXPECT_EQ(LangChanger().SysLangUnicodeStr((*record_.EngCaption)[0], (*record_.ChiCaption)[0]),
            u"訂單編號");
}

TEST_F(UserFieldsTest, DatabaseErrorsShowABoxAndKeepTheDefaults) {
  Exec("drop table Settings");
  LangChanger().SetLanguage(kLangEnglish);
  GetUserDefineFields("TDEC_SERVICE", record_);
  EXPECT_EQ(*record_.EngCaption, kDefaultCaptions);
  ASSERT_EQ(dialogs_.Requests().size(), 1u);
  EXPECT_EQ(dialogs_.Requests()[0].kind, dialogs::mtError);
  const std::u16string text = dialogs_.Requests()[0].text;
  EXPECT_EQ(text.rfind(u"Cannot read the user-defined fields\r\nReason : ", 0), 0u);
  EXPECT_NE(text.find(u"Settings"), std::u16string::npos);
}

}  // namespace
}  // namespace mv::test
