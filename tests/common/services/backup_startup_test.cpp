// The user-defined fields of a service and the start of the backup and restore tool, on real
// installations with a copy of the demo database and real sample packages.
#include "common/frame/backup_startup.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <tuple>

#include "common/frame/startup.h"
#include "common/services/user_fields.h"
#include "common/text/lang_changer.h"
#include "platform/db/connections.h"
#include "tests/common/text/text_fixture.h"
#include "tests/platform/db/db_fixture.h"

namespace mv::test {
namespace {

class BackupStartupTest : public TextFixture {
 protected:
  BackupStartupTest() {
    std::filesystem::copy_file(MV_DEMO_DATABASE_FILE, dir_.File("main.db"));
    db::OpenConnection("DBMAIN", "sqlite:" + dir_.File("main.db"));
    Exec(
        u"insert into Settings values ('TDEC_SERVICE', 4, '', NULL), "
        u"('TDEC_SERVICE', 5, 'Vessel', '船名'), ('ETDEC_SERVICE', 1, 'Halvo ref', '')");
  }
  ~BackupStartupTest() override {
    db::CloseConnection("DBMAIN");
    DefinedRecord = {};
  }
  std::string FirstCaption() const { return DefinedRecord.EngCaption->at(0); }

  TempDir dir_;
};

TEST_F(BackupStartupTest, UserDefinedFieldsTakeTheirCaptionsFromSettings) {
  GetUserDefineFields("RCM_SERVICE", DefinedRecord);
  EXPECT_EQ(*DefinedRecord.FieldName, (TStringList{"Ref1", "Ref2", "Ref3", "Ref4", "Ref5"}));
  EXPECT_EQ(*DefinedRecord.ChiCaption,
            (TStringList{"Ref #1", "Ref #2", "Ref #3", "Ref #4", "Ref #5"}));
  GetUserDefineFields("TDEC_SERVICE", DefinedRecord);
  EXPECT_EQ(*DefinedRecord.EngCaption,
            (TStringList{"Purchase Order", "Origin", "Ref #3", "Ref #4", "Vessel"}));
  EXPECT_EQ(DefinedRecord.ChiCaption->at(4), Big5("船名"));
  Exec("drop table Settings");
  GetUserDefineFields("TDEC_SERVICE", DefinedRecord);
  EXPECT_EQ(FirstCaption(), "Ref #1");
  ASSERT_EQ(dialogs_.Requests().size(), 1u);
  EXPECT_EQ(dialogs_.Requests()[0].text.rfind(u"不能讀取自訂欄位\r\n原因 : ", 0), 0u);
}

TEST_F(BackupStartupTest, ReadsOnlyWhatTheToolNeeds) {
  installation_.WriteSystemIni(
      "[Receipient]\nGovernment= \t hkgovt-with-a-very-long-identity-of-40-chars\x01\n"
      "ECIC=ecic\nMerovan=\x02mvn\n[Advance]\nEDIOutPath=/out\nWarnTDEC=0\n"
      "[Language]\nAnsiGUI=1\nInterface=0\n");
  LangChanger().SetLanguage(kLangEnglish);
  SysLanguageMode = kLangEnglish;
  Init_BackupRestore();
  EXPECT_EQ(FirstCaption(), "Purchase Order");
  EXPECT_EQ(Advance.Government, "HKGOVT-WITH-A-VERY-LONG-IDENTITY-OF");
  EXPECT_EQ(Advance.Merovan + "|" + Advance.ECIC, "MVN|");
  EXPECT_EQ(Advance.EDIInPath, installation_.BaseFolder() + "/INBOX/");
  EXPECT_EQ(Advance.EDIOutPath, "/out/");
  EXPECT_FALSE(Advance.WarnTDEC || Advance.SupportTypeB);
  EXPECT_TRUE(LangChanger().AnsiInterface());
  // LanguageMode only: neither the installation's language nor the interface is switched.
  EXPECT_EQ((std::tuple<int, int, int>(LanguageMode, SysLanguageMode, LangChanger().Language())),
            (std::tuple<int, int, int>(0, 1, 1)));
  EXPECT_EQ(Service, nullptr);
}

TEST_F(BackupStartupTest, OnlyTheFirstToolAsksForTheEditionAndAnsiGui) {
  installation_.WriteSystemIni("[System]\nEdition=Halvo\n[Language]\nAnsiGUI=1\n");
  Init_BackupRestore();
  EXPECT_EQ(FirstCaption(), "Halvo ref");
  EXPECT_TRUE(Advance.SupportTypeB && LangChanger().AnsiInterface());
  LangChanger().SetAnsiInterface(false);
  Init_LumoraBackupRestore();
  EXPECT_EQ(FirstCaption(), "Purchase Order");
  EXPECT_TRUE(Advance.SupportTypeB && !LangChanger().AnsiInterface());
}

TEST_F(BackupStartupTest, PackagesLoadFromTheServerFolderTitledByLanguage) {
  for (const std::string name : {"ALPHA.so", "BETA.so"})
    std::filesystem::copy_file(SAMPLE_PACKAGE_DIR "/" + name, ServerPath + name);
  LangChanger().SetLanguage(kLangEnglish);
  LoadPkg_BackupRestore({"ALPHA,Backup," + Big5("備份"), "GONE,Gone," + Big5("沒有")});
  LangChanger().SetLanguage(kLangChinese);
  LoadPkg_BackupRestore({"BETA,Restore," + Big5("還原"), "GONE,Gone," + Big5("沒有")});
  ASSERT_EQ(AryPkgInfo.size(), 2u);
  EXPECT_EQ(AryPkgInfo[0].ServiceName + AryPkgInfo[0].ServiceExtra, "ALPHABackup");
  EXPECT_EQ(AryPkgInfo[1].ServiceExtra, Big5("還原"));
  EXPECT_NE(AryPkgInfo[1].Handle, 0u);
  ASSERT_EQ(dialogs_.Requests().size(), 2u);
  EXPECT_EQ(dialogs_.Requests()[0].text, u"Can't load Package: GONE,Gone,沒有");
  EXPECT_EQ(dialogs_.Requests()[1].text, u"不能安裝建立裝置: GONE,Gone,沒有");
}

}  // namespace
}  // namespace mv::test
