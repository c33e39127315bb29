// The start of the backup and restore tool on real installations, with the demo database and
// real sample packages.
#include "common/frame/backup_startup.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "common/frame/startup.h"
#include "common/text/lang_changer.h"
#include "platform/db/connections.h"
#include "platform/system/machine.h"
#include "tests/common/text/text_fixture.h"
#include "tests/platform/db/db_fixture.h"

namespace mv::test {
namespace {

class BackupStartupTest : public TextFixture {
 protected:
  BackupStartupTest() {
    std::filesystem::copy_file(MV_DEMO_DATABASE_FILE, dir_.File("main.db"));
    db::OpenConnection("DBMAIN", "sqlite:" + dir_.File("main.db"));
    Exec("insert into Settings values ('ETDEC_SERVICE', 1, 'Halvo ref', '')");
    SetPrintPreviewRegistration([this] { ++previews_; });
  }
  ~BackupStartupTest() override {
    SetPrintPreviewRegistration(nullptr);
    db::CloseConnection("DBMAIN");
    DefinedRecord = {};
  }
  std::string Server() const { return installation_.ServerFolder() + "/"; }

  TempDir dir_;
  int previews_ = 0;
};

TEST_F(BackupStartupTest, ReadsOnlyWhatTheToolNeeds) {
  installation_.WriteSystemIni(
      "[Receipient]\nGovernment= \t hkgovt-with-a-very-long-identity-of-40-chars\x01\n"
      "ECIC=ecic\nMerovan=\x02mvn\n[Advance]\nEDIOutPath=/edi/out\nWarnTDEC=0\n"
      "[Language]\nAnsiGUI=1\nInterface=0\n[Duplicate_Submission]\nDays=5\n");
  LangChanger().SetLanguage(kLangEnglish);
  SysLanguageMode = kLangEnglish;
  Init_BackupRestore();
  EXPECT_EQ(ServerPath, Server());
  EXPECT_EQ(BasePath, installation_.BaseFolder() + "/");
  EXPECT_EQ(Global_Merovan_Ini, "SEDIFSYS.INI");
  EXPECT_EQ((*DefinedRecord.EngCaption)[0], "Purchase Order");
  EXPECT_EQ(Advance.Government, "HKGOVT-WITH-A-VERY-LONG-IDENTITY-OF");
  EXPECT_EQ(Advance.Merovan, "MVN");
  EXPECT_EQ(Advance.ECIC, "");
  EXPECT_EQ(Advance.EDIInPath, installation_.BaseFolder() + "/INBOX/");
  EXPECT_EQ(Advance.EDIOutPath, "/edi/out/");
  EXPECT_FALSE(Advance.WarnTDEC);
  EXPECT_FALSE(Advance.SupportTypeB);
  EXPECT_TRUE(LangChanger().AnsiInterface());
  EXPECT_EQ(LanguageMode, 0);
  // The installation's language and the interface stay as they were; no other settings.
  EXPECT_EQ(SysLanguageMode, kLangEnglish);
  EXPECT_EQ(LangChanger().Language(), kLangEnglish);
  EXPECT_EQ(CheckDupTDECSub.Days, 0);
  EXPECT_EQ(Service, nullptr);
  EXPECT_EQ(previews_, 1);
  EXPECT_TRUE(dialogs_.Requests().empty());
}

TEST_F(BackupStartupTest, EditionsChooseTheDeclarationService) {
  installation_.WriteSystemIni("[System]\nEdition=Halvo\n[Language]\nAnsiGUI=1\n");
  Init_BackupRestore();
  EXPECT_EQ((*DefinedRecord.EngCaption)[0], "Halvo ref");
  EXPECT_TRUE(Advance.SupportTypeB);
  EXPECT_TRUE(LangChanger().AnsiInterface());
  EXPECT_EQ(LanguageMode, 1);
  // The Lumora tool always takes the declaration service and leaves AnsiGUI unread.
  LangChanger().SetAnsiInterface(false);
  Init_LumoraBackupRestore();
  EXPECT_EQ((*DefinedRecord.EngCaption)[0], "Purchase Order");
  EXPECT_TRUE(Advance.SupportTypeB);
  EXPECT_FALSE(LangChanger().AnsiInterface());
  EXPECT_EQ(previews_, 2);
}

TEST_F(BackupStartupTest, MissingServerFolderEndsTheProcess) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  dialogs::SetProvider(nullptr);
  sys::SetApplicationTitle("Backup");
  installation_.WriteRegistry("/no/such/folder");
  EXPECT_EXIT(Init_LumoraBackupRestore(), ::testing::ExitedWithCode(0),
              "Unable to initialize Backup\\. Server Path: \"/no/such/folder\" not found\\. "
              "Application Terminated\\.");
  sys::SetApplicationTitle("");
}

TEST_F(BackupStartupTest, PackagesAreLoadedFromTheServerFolderAndTitledByLanguage) {
  for (const char* name : {"ALPHA", "BETA"}) {
    std::filesystem::copy_file(std::string(SAMPLE_PACKAGE_DIR) + "/" + name + ".so",
                               Server() + name + ".so");
  }
  ServerPath = Server();
  LangChanger().SetLanguage(kLangEnglish);
  LoadPkg_BackupRestore({"ALPHA,Backup," + Big5("備份"), "GONE,Gone," + Big5("沒有")});
  LangChanger().SetLanguage(kLangChinese);
  LoadPkg_BackupRestore({"BETA,Restore," + Big5("還原"), "GONE,Gone," + Big5("沒有")});
  ASSERT_EQ(AryPkgInfo.size(), 2u);
  EXPECT_EQ(AryPkgInfo[0].ServiceName, "ALPHA");
  EXPECT_EQ(AryPkgInfo[0].ServiceExtra, "Backup");
  EXPECT_NE(AryPkgInfo[0].Handle, 0u);
  EXPECT_EQ(AryPkgInfo[1].ServiceName, "BETA");
  EXPECT_EQ(AryPkgInfo[1].ServiceExtra, Big5("還原"));
  ASSERT_EQ(dialogs_.Requests().size(), 2u);
  EXPECT_EQ(dialogs_.Requests()[0].kind, dialogs::mtError);
  EXPECT_EQ(dialogs_.Requests()[0].text, u"Can't load Package: GONE,Gone,沒有");
  EXPECT_EQ(dialogs_.Requests()[1].text, u"不能安裝建立裝置: GONE,Gone,沒有");
}

}  // namespace
}  // namespace mv::test
