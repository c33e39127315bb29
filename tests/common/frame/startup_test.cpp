// Start-up of both product lines on real installations in a temporary folder: the settings read
// from the configuration files, the lists freed at the end, and the library's own start and stop.
#include "common/frame/startup.h"

#include <gtest/gtest.h>

#include "common/frame/internet_settings.h"
#include "common/frame/library.h"
#include "common/frame/settings_loader.h"
#include "common/frame/shared_state.h"
#include "common/text/lang_changer.h"
#include "platform/dialogs/dialogs.h"
#include "platform/system/machine.h"
#include "tests/support/installation.h"

namespace mv {
namespace {

class StartupTest : public ::testing::Test {
 protected:
  // Starts the Orvex (or Quenta) line on an installation with these configuration files.
  void Load(const std::string& system, bool quenta = false, const std::string& machine = "") {
    install.WriteSystemIni(system);
    if (!machine.empty()) install.WriteMachineIni(machine);
    quenta ? Init_Quenta() : Init();
  }
  std::string Base() const { return install.BaseFolder() + "/"; }
  // The box table as "type code action" lines.
  static std::vector<std::string> Rows(int box) {
    std::vector<std::string> rows;
    for (const TMType& m : BoxRec[box])
      rows.push_back(m.MsgType + " " + m.MsgCode + " " + m.Action);
    return rows;
  }

  test::TestInstallation install;
  dialogs::RecordingDialogProvider boxes;
  dialogs::ScopedProvider scoped{boxes};
};

TEST(GetCountTest, StepsSevenCharactersAfterTheLeadingOne) {
  EXPECT_EQ(GetCount('|', "|HKTDLD|HKCTRA|"), 2);
  EXPECT_EQ(GetCount('|', ""), 0);
  EXPECT_EQ(GetCount('|', "HKTDLD"), 0);
  // Short codes: four delimiters, but the fixed stepping sees only two.
  EXPECT_EQ(GetCount('|', "|A|B|C|D|"), 2);
  // A long code: one delimiter in each of the first two steps.
  EXPECT_EQ(GetCount('|', "|ABCDEFGHIJ|K|"), 2);
}

TEST(RefreshTest, IntervalsInSeconds) {
  EXPECT_EQ(InboxRefreshSeconds(1000), 0);
  EXPECT_EQ(SentboxRefreshSeconds(1000.0), 0);
  EXPECT_EQ(SentboxRefreshSeconds(1002.59), 179);
}

TEST_F(StartupTest, MissingFileGivesEveryDefault) {
  Load("");
  EXPECT_EQ(Version, "4.0");
  EXPECT_EQ(Advance.EDIInPath, Base() + "INBOX/");
  EXPECT_EQ(Advance.UpgradePath, Base() + "UPGRADE/");
  EXPECT_EQ(Advance.SecurePath, Base() + "SEC");
  EXPECT_TRUE(Advance.WarnTDEC);
  EXPECT_FALSE(Advance.SupportTypeB);
  EXPECT_EQ(iInboxRefresh, 600);
  EXPECT_EQ(iSentboxRefresh, 2);
  EXPECT_EQ(CheckDupTDECSub.DocType, "");  // Orvex keeps the zero start value
  EXPECT_EQ(Internet.SMTPPort, 25);
  EXPECT_EQ(VerifyLDAPOption, 1);
  EXPECT_TRUE(TransactionGatewayURL.starts_with("https://")) << TransactionGatewayURL;
  EXPECT_TRUE(MVNCERTCADN.starts_with("c=HK, o=")) << MVNCERTCADN;
}

TEST_F(StartupTest, RecordsAndPathsAreShapedAsTheClientExpects) {
  test::ScopedEnv big5("MV_CODEPAGE", "950");
  Load(
      "[System]\nVersion=4.5.6789012345678901234\n"
      "[Property]\nDateTime=$FF\nString=0x10\nOthers=x\n"
      "[Receipient]\nGovernment=  abcdefghijklmnopqrstuvwxyz0123456789abcd  \n"
      "ECIC=hk\xA4\x61gov\n"
      "[Advance]\nEDIInPath=/edi/in\nEDIOutPath=/edi/out/\nUpgradePath=\nWarnTDEC=0\n"
      "SupportTypeB=1\n[AUTO_REFRESH]\nINBOX=1001\nSENTBOX=1001.30\n");
  EXPECT_EQ(Version, "4.5.6789012345678901");
  EXPECT_EQ(ColorRecord.DateTime, 255);
  EXPECT_EQ(ColorRecord.String, 16);
  EXPECT_EQ(ColorRecord.Others, 0);
  EXPECT_EQ(Advance.Government, "ABCDEFGHIJKLMNOPQRSTUVWXYZ012345678");
  EXPECT_EQ(Advance.ECIC, "HK\xA4\x61GOV");  // the second byte of Big5 兀 is no letter
  EXPECT_EQ(Advance.EDIInPath, "/edi/in/");
  EXPECT_EQ(Advance.EDIOutPath, "/edi/out/");
  EXPECT_EQ(Advance.UpgradePath, "");
  EXPECT_FALSE(Advance.WarnTDEC);
  EXPECT_TRUE(Advance.SupportTypeB);
  EXPECT_EQ(iInboxRefresh, 60);
  EXPECT_EQ(iSentboxRefresh, 90);
}

TEST_F(StartupTest, HalvoEditionAlwaysSupportsTypeB) {
  Load("[System]\nEdition=halvo\n[Advance]\nSupportTypeB=0\n");
  EXPECT_TRUE(Advance.SupportTypeB);
}

TEST_F(StartupTest, ListsKeepTuplesOrValuesAsEachNeeds) {
  Load(
      "[Addon]\nCalc=calc.exe\n[Addon_Toolbar]\nT1=tool.exe,1\n"
      "[SERVICES]\nb=BSERV,x,0\n10=TEN\nA=ASERV,y\n2=TWO\nc=CSERV\n1=ONE\n"
      "[InboxAction]\nDecl=|V|P|\nOther=|X|\n");
  EXPECT_EQ(*Addon, TStringList{"Calc=calc.exe"});
  EXPECT_EQ(*AddonToolBar, TStringList{"tool.exe,1"});
  // Sorted by key without regard to case, "=" before digits, then reduced to values.
  EXPECT_EQ(*Service, (TStringList{"ONE", "TEN", "TWO", "ASERV,y", "BSERV,x,0", "CSERV"}));
  ASSERT_EQ(AryPkgInfo.size(), 6u);
  EXPECT_EQ(AryPkgInfo[4].ServiceName + AryPkgInfo[4].ServiceExtra, "BSERVx");
  EXPECT_EQ(*InboxAction, (TStringList{"|V|P|", "|X|"}));
  EXPECT_EQ(*InboxActList, (TStringList{"Decl", "Other"}));
}

TEST_F(StartupTest, BoxTablesFollowTheFixedStepping) {
  Load(
      "[InboxMsgType]\nDeclaration=|HKTDLD|HKCTRA|\nShort=|A|B|C|D|\n"
      "[InboxAction]\nDecl=|VIEWAC|PRINTA|\nS=|1|2|3|4|\n"
      "[OutboxMsgType]\nOut=|OUT001|\n[SentboxMsgType]\n");
  EXPECT_EQ(*BoxMsgType[bxInbox], (TStringList{"|HKTDLD|HKCTRA|", "|A|B|C|D|"}));
  EXPECT_EQ(Rows(bxInbox),
            (std::vector<std::string>{"Declaration HKTDLD VIEWAC", "Declaration HKCTRA PRINTA",
                                      "Short A 1", "Short B 2"}));
  EXPECT_EQ(Rows(bxOutbox), std::vector<std::string>{"Out OUT001 "});
  EXPECT_TRUE(BoxRec[bxSentbox].empty());
}

TEST_F(StartupTest, InboxLineWithoutItsActionStopsTheStart) {
  EXPECT_THROW(Load("[InboxMsgType]\nA=|AAAAAA|\nB=|BBBBBB|\n[InboxAction]\nA=|V|\n"), EListError);
}

TEST_F(StartupTest, QuentaReadsLanguageChineseListsAndDuplicateCheck) {
  Load(
      "[C_InboxMsgType]\nX=|CCCCCC|\n[C_SentboxMsgType]\nY=1\n"
      "[Language]\nInterface=0\nAnsiGUI=1\n",
      true);
  EXPECT_EQ(*C_InboxMsgType, TStringList{"X=|CCCCCC|"});
  EXPECT_EQ(*C_SentBoxMsgType, TStringList{"Y=1"});
  EXPECT_TRUE(BoxRec[bxInbox].empty());  // the tables use only the sections without prefix
  EXPECT_EQ(SysLanguageMode, 0);
  EXPECT_EQ(LangChanger().Language(), 0);
  EXPECT_TRUE(LangChanger().AnsiInterface());
  EXPECT_EQ(CheckDupTDECSub.DocType, "F2|F2A");
  EXPECT_EQ(CheckDupTDECSub.Days, 60);
}

TEST_F(StartupTest, QuentaInterfaceOutsideZeroOrOneSwitchesNothing) {
  LangChanger().SetLanguage(1);
  Load("[Language]\nInterface=2\n", true);
  EXPECT_EQ(LanguageMode, 2);
  EXPECT_EQ(SysLanguageMode, 2);
  EXPECT_EQ(LangChanger().Language(), 1);
  EXPECT_FALSE(LangChanger().AnsiInterface());
  Load("", true);
  EXPECT_EQ(LanguageMode, 1);
}

TEST_F(StartupTest, InternetTextsAreTrimmedAndCutToFifty) {
  Load("[EMAIL_CONFIG]\nSMTPHost=\"  " + std::string(60, 'h') +
       "  \"\nSMTPPort=2525\nPOP3Port=x\n"
       "[HYPERLINK]\nFAQ=\"  http://faq.example/  \"\n");
  EXPECT_EQ(Internet.SMTPHost, std::string(50, 'h'));
  EXPECT_EQ(Internet.SMTPPort, 2525);
  EXPECT_EQ(Internet.POP3Port, 110);
  EXPECT_EQ(FAQURL, "http://faq.example/");
}

TEST_F(StartupTest, ConnectionComesOnlyFromTheMachineFile) {
  Load("[MEROVAN_CONNECTION]\nRASProfile=FromSystem\nLeaseLine=1\n");
  EXPECT_EQ(Internet.RASProfile, "");
  EXPECT_FALSE(Internet.LeaseLine);
  Load("", false, "[MEROVAN_CONNECTION]\nRASProfile= Dial Up \nLeaseLine=1\n");
  EXPECT_EQ(Internet.RASProfile, "Dial Up");
  EXPECT_TRUE(Internet.LeaseLine);
}

// The file's own spellings: VERFIY, and ECICCERTDN for the ECIC certificate; names keep blanks.
TEST_F(StartupTest, PolicyAndCertificateKeysAreSpelledAsInTheFile) {
  Load(
      "[POLICY]\nVERIFYLDAPOption=7\nVERFIYLDAPOption=8\nENCRYPTLDAPOption=0\nDEBUGMODE=1\n"
      "MVNCERTDN=\" cn=A \"\nECIC_MVNCERTDN=wrong\nECICCERTDN=cn=ECIC\n"
      "MVNCERTCADN=cn=CA\n");
  EXPECT_EQ(VerifyLDAPOption, 8);
  EXPECT_EQ(EncryptLDAPOption, 0);
  EXPECT_TRUE(DebugMode);
  EXPECT_EQ(MVNCERTDN, " cn=A ");
  EXPECT_EQ(ECIC_MVNCERTDN, "cn=ECIC");
  EXPECT_EQ(MVNCERTCADN, "cn=CA");
}

TEST_F(StartupTest, ServerAndBasePathsGetOneFinalSeparator) {
  for (std::string value : {install.ServerFolder(), install.ServerFolder() + "/"}) {
    install.WriteRegistry(value);
    Init();
    EXPECT_EQ(ServerPath, install.ServerFolder() + "/");
    EXPECT_EQ(BasePath, install.BaseFolder() + "/");
    FreeStrList();
  }
  install.WriteRegistry("");  // the override replaces the registry
  SetServerPathOverride(install.ServerFolder());
  Init();
  EXPECT_EQ(ServerPath, install.ServerFolder() + "/");
  EXPECT_TRUE(boxes.Requests().empty());
}

TEST_F(StartupTest, OrvexLeavesMaxRecordsAloneAndQuentaClampsIt) {
  install.WriteSystemIni("[Halvo]\nMaxRecords=20000\n[Language]\nInterface=1\n");
  Init();
  EXPECT_EQ(giMaxRecords, 0);
  EXPECT_EQ(LanguageMode, 0);
  const std::pair<const char*, int> cases[] = {{"", 1000},
                                               {"MaxRecords=999", 1000},
                                               {"MaxRecords=20000", 20000},
                                               {"MaxRecords=50001", 50000}};
  for (const auto& [line, expected] : cases) {
    install.WriteSystemIni(std::string("[Halvo]\n") + line + "\n");
    Init_Quenta();
    EXPECT_EQ(giMaxRecords, expected) << line;
  }
}

// Each start registers the print preview; each line frees its own lists and keeps the others.
TEST_F(StartupTest, EachStartRegistersThePreviewAndEachFreeReleasesItsOwnLists) {
  int calls = 0;
  SetPrintPreviewRegistration([&calls] { ++calls; });
  Init();
  FreeStrList();
  for (auto* list : {&Addon, &AddonToolBar, &Service, &AddonMenu, &InboxMsgType, &OutboxMsgType,
                     &SentBoxMsgType, &InboxSrvType}) {
    EXPECT_EQ(*list, nullptr);
  }
  EXPECT_NE(InboxActList, nullptr);
  EXPECT_NE(BoxMsgType[bxSentbox], nullptr);
  Init_Quenta();
  FreeStrList_Quenta();
  SetPrintPreviewRegistration(nullptr);
  EXPECT_EQ(calls, 2);
  for (auto* list : {&C_InboxMsgType, &C_OutboxMsgType, &C_SentBoxMsgType, &C_InboxSrvType,
                     &DetRecord.FieldName, &DetRecord.EngCaption, &DetRecord.ChiCaption}) {
    EXPECT_EQ(*list, nullptr);
  }
  EXPECT_NE(InboxAction, nullptr);
}

TEST_F(StartupTest, WorkingFolderFollowsTheLanguage) {
  LangChanger().SetLanguage(1);
  EXPECT_EQ(WorkingFolder(), "[Working Folder]");
  test::ScopedEnv utf8("MV_CODEPAGE", "65001");
  LangChanger().SetLanguage(0);
  EXPECT_EQ(WorkingFolder(), "[工作資料夾]");
  test::ScopedEnv big5("MV_CODEPAGE", "950");
  EXPECT_EQ(WorkingFolder(), "[\xA4\x75\xA7\x40\xB8\xEA\xAE\xC6\xA7\xA8]");
}

using StartupDeathTest = StartupTest;

// A missing registry value, an empty one and a folder that does not exist all end the process
// with exit code 0 after the box; the console provider shows the box on standard error.
TEST_F(StartupDeathTest, MissingServerFolderEndsTheProcessWithExitCodeZero) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  dialogs::SetProvider(nullptr);
  sys::SetApplicationTitle("T");
  install.WriteRegistry("");
  EXPECT_EXIT(Init(), ::testing::ExitedWithCode(0),
              "Unable to initialize T\\. Server Path: \"\" not found\\. Application Terminated\\.");
  install.WriteRegistry("/no/such/folder");
  EXPECT_EXIT(Init_Quenta(), ::testing::ExitedWithCode(0),
              "T \\(Error\\): Unable to initialize T\\. Server Path: \"/no/such/folder\" not "
              "found\\. Application Terminated\\. \\[OK\\]");
  sys::SetApplicationTitle("");
}

// The upgrade settings are shared state of their own type, though no key fills them yet.
static_assert(std::is_same_v<decltype(UpgradeRecord), TUpgradeRecord>);

TEST(LibraryTest, OnlyTheLastStopReleasesTheState) {
  ASSERT_EQ(LibraryStartCount(), 1);  // started when the library was loaded
  const uint32_t message = wm_eAdvertise;
  StartLibrary();
  EXPECT_EQ(wm_eAdvertise, message);
  ServerPath = "/srv/";
  StopLibrary();
  EXPECT_EQ(ServerPath, "/srv/");
  StopLibrary();
  EXPECT_EQ(ServerPath, "");
  EXPECT_EQ(strChineseTable, "");
  {
    test::ScopedEnv codePage("MV_CODEPAGE", "950");
    StartLibrary();
  }
  EXPECT_EQ(MV_SysCodePage, 950);
  EXPECT_EQ(MV_UsrCodePage, 950);
  strChineseTable = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ(),-./=";
}

TEST(LibraryTest, FpuWordIsPutBackOnlyOnOldSystemsWhenItChanged) {
  EXPECT_EQ(AdoFpuWordToLoad(5u, 0x27F, 0x37F), std::nullopt);
  EXPECT_EQ(AdoFpuWordToLoad(4u, 0x27F, 0x37F), 0x37F);
  EXPECT_EQ(AdoFpuWordToLoad(std::nullopt, 0x27F, 0x37F), 0x37F);
  EXPECT_EQ(AdoFpuWordToLoad(4u, 0x37F, 0x37F), std::nullopt);
  const uint16_t before = sys::GetFpuControlWord();
  ReSolveAdoFPU();
  EXPECT_EQ(sys::GetFpuControlWord(), before);
}

}  // namespace
}  // namespace mv
