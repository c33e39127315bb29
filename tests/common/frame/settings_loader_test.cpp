// The system settings loader on real configuration files.
#include "common/frame/settings_loader.h"

#include <gtest/gtest.h>

#include "common/frame/shared_state.h"
#include "common/frame/startup.h"
#include "common/text/lang_changer.h"
#include "platform/dialogs/dialogs.h"
#include "tests/support/installation.h"

namespace mv {
namespace {

class SettingsLoaderTest : public ::testing::Test {
 protected:
  void Load(const std::string& ini, bool quenta = false) {
    install.WriteSystemIni(ini);
    ServerPath = install.ServerFolder() + "/";
    BasePath = install.BaseFolder() + "/";
    Global_Merovan_Ini = "SEDIFSYS.INI";
    quenta ? InitRecord_Quenta() : InitRecord();
  }
  std::string Base() const { return install.BaseFolder() + "/"; }

  test::TestInstallation install;
  dialogs::RecordingDialogProvider boxes;
  dialogs::ScopedProvider scoped{boxes};
};

TEST(GetCountTest, StepsSevenCharactersAfterTheLeadingOne) {
  EXPECT_EQ(GetCount('|', "|HKTDLD|HKCTRA|"), 2);
  EXPECT_EQ(GetCount('|', "|HKTDLD|"), 1);
  EXPECT_EQ(GetCount('|', ""), 0);
  EXPECT_EQ(GetCount('|', "|"), 0);
  EXPECT_EQ(GetCount('|', "HKTDLD"), 0);
  // Short codes: four delimiters, but the fixed stepping sees only two.
  EXPECT_EQ(GetCount('|', "|A|B|C|D|"), 2);
  // A long code: one delimiter in each of the first two steps.
  EXPECT_EQ(GetCount('|', "|ABCDEFGHIJ|K|"), 2);
}

TEST(RefreshTest, IntervalsInSeconds) {
  EXPECT_EQ(InboxRefreshSeconds(1000), 0);
  EXPECT_EQ(InboxRefreshSeconds(1001), 60);
  EXPECT_EQ(InboxRefreshSeconds(1010), 600);
  EXPECT_EQ(InboxRefreshSeconds(-3), 0);
  EXPECT_EQ(SentboxRefreshSeconds(1001.30), 90);
  EXPECT_EQ(SentboxRefreshSeconds(1000.0), 0);
  EXPECT_EQ(SentboxRefreshSeconds(1000.02), 2);
  EXPECT_EQ(SentboxRefreshSeconds(1002.59), 179);
  EXPECT_EQ(SentboxRefreshSeconds(999.5), 0);
}

TEST_F(SettingsLoaderTest, MissingFileGivesEveryDefault) {
  Load("");
  EXPECT_EQ(Version, "4.0");
  EXPECT_EQ(Advance.EDIInPath, Base() + "INBOX/");
  EXPECT_EQ(Advance.EDIOutPath, Base() + "OUTBOX/");
  EXPECT_EQ(Advance.UpgradePath, Base() + "UPGRADE/");
  EXPECT_EQ(Advance.SecurePath, Base() + "SEC");
  EXPECT_TRUE(Advance.WarnTDEC);
  EXPECT_FALSE(Advance.SupportTypeB);
  EXPECT_EQ(iInboxRefresh, 600);
  EXPECT_EQ(iSentboxRefresh, 2);
  EXPECT_EQ(ColorRecord.Others, 0);
  EXPECT_TRUE(Service->empty());
  EXPECT_TRUE(BoxRec[bxInbox].empty());
  EXPECT_EQ(CheckDupTDECSub.DocType, "");  // Orvex keeps the zero start value
}

TEST_F(SettingsLoaderTest, RecordsAndPathsAreShapedAsTheClientExpects) {
  Load(
      "[System]\nVersion=4.5.6789012345678901234\n"
      "[Property]\nDateTime=$FF\nInteger=12\nString=0x10\nOthers=x\n"
      "[Receipient]\nGovernment=  abcdefghijklmnopqrstuvwxyz0123456789abcd  \nECIC=ecic01\n"
      "[Advance]\nEDIInPath=/edi/in\nEDIOutPath=/edi/out/\nUpgradePath=\nSecurePath=/sec\n"
      "WarnTDEC=0\nSupportTypeB=1\n"
      "[AUTO_REFRESH]\nINBOX=1001\nSENTBOX=1001.30\n");
  EXPECT_EQ(Version, "4.5.6789012345678901");
  EXPECT_EQ(ColorRecord.DateTime, 255);
  EXPECT_EQ(ColorRecord.Integer, 12);
  EXPECT_EQ(ColorRecord.String, 16);
  EXPECT_EQ(ColorRecord.Others, 0);
  EXPECT_EQ(Advance.Government, "ABCDEFGHIJKLMNOPQRSTUVWXYZ012345678");
  EXPECT_EQ(Advance.ECIC, "ECIC01");
  EXPECT_EQ(Advance.Merovan, "");
  EXPECT_EQ(Advance.EDIInPath, "/edi/in/");
  EXPECT_EQ(Advance.EDIOutPath, "/edi/out/");
  EXPECT_EQ(Advance.UpgradePath, "");
  EXPECT_EQ(Advance.SecurePath, "/sec");
  EXPECT_FALSE(Advance.WarnTDEC);
  EXPECT_TRUE(Advance.SupportTypeB);
  EXPECT_EQ(iInboxRefresh, 60);
  EXPECT_EQ(iSentboxRefresh, 90);
}

TEST_F(SettingsLoaderTest, HalvoEditionAlwaysSupportsTypeB) {
  Load("[System]\nEdition=halvo\n[Advance]\nSupportTypeB=0\n");
  EXPECT_TRUE(Advance.SupportTypeB);
}

TEST_F(SettingsLoaderTest, ListsKeepTuplesOrValuesAsEachNeeds) {
  Load(
      "[Addon]\nCalc=calc.exe\n[Addon_Toolbar]\nT1=tool.exe,1\n"
      "[SERVICES]\nb=BSERV,x,0\nA=ASERV,y\nc=CSERV\n"
      "[InboxSrvType]\nS=1\n[InboxAction]\nDecl=|V|P|\nOther=|X|\n");
  EXPECT_EQ(*Addon, TStringList{"Calc=calc.exe"});
  EXPECT_EQ(*AddonToolBar, TStringList{"tool.exe,1"});
  // Sorted by key without regard to case, then reduced to values.
  EXPECT_EQ(*Service, (TStringList{"ASERV,y", "BSERV,x,0", "CSERV"}));
  ASSERT_EQ(AryPkgInfo.size(), 3u);
  EXPECT_EQ(AryPkgInfo[0].ServiceName, "ASERV");
  EXPECT_EQ(AryPkgInfo[1].ServiceExtra, "x");
  EXPECT_EQ(*InboxSrvType, TStringList{"S=1"});
  EXPECT_EQ(*InboxAction, (TStringList{"|V|P|", "|X|"}));
  EXPECT_EQ(*InboxActList, (TStringList{"Decl", "Other"}));
}

TEST_F(SettingsLoaderTest, BoxTablesFollowTheFixedStepping) {
  Load(
      "[InboxMsgType]\nDeclaration=|HKTDLD|HKCTRA|\nShort=|A|B|C|D|\n"
      "[InboxAction]\nDecl=|VIEWAC|PRINTA|\nS=|1|2|3|4|\n"
      "[OutboxMsgType]\nOut=|OUT001|\n[SentboxMsgType]\n");
  EXPECT_EQ(*BoxMsgType[bxInbox], (TStringList{"|HKTDLD|HKCTRA|", "|A|B|C|D|"}));
  const auto& inbox = BoxRec[bxInbox];
  ASSERT_EQ(inbox.size(), 4u);
  EXPECT_EQ(inbox[0].MsgType, "Declaration");
  EXPECT_EQ(inbox[0].MsgCode, "HKTDLD");
  EXPECT_EQ(inbox[0].Action, "VIEWAC");
  EXPECT_EQ(inbox[1].MsgCode, "HKCTRA");
  EXPECT_EQ(inbox[1].Action, "PRINTA");
  EXPECT_EQ(inbox[3].MsgType, "Short");
  EXPECT_EQ(inbox[3].MsgCode, "B");
  EXPECT_EQ(inbox[3].Action, "2");
  ASSERT_EQ(BoxRec[bxOutbox].size(), 1u);
  EXPECT_EQ(BoxRec[bxOutbox][0].MsgType, "Out");
  EXPECT_EQ(BoxRec[bxOutbox][0].Action, "");
  EXPECT_TRUE(BoxRec[bxSentbox].empty());
}

TEST_F(SettingsLoaderTest, InboxLineWithoutItsActionStopsTheStart) {
  EXPECT_THROW(Load("[InboxMsgType]\nA=|AAAAAA|\nB=|BBBBBB|\n[InboxAction]\nA=|V|\n"), EListError);
}

TEST_F(SettingsLoaderTest, QuentaReadsLanguageChineseListsAndDuplicateCheck) {
  Load(
      "[C_InboxMsgType]\nX=|CCCCCC|\n[C_SentboxMsgType]\nY=1\n[C_InboxSrvType]\nZ=2\n"
      "[Language]\nInterface=0\nAnsiGUI=1\n",
      true);
  EXPECT_EQ(*C_InboxMsgType, TStringList{"X=|CCCCCC|"});
  EXPECT_EQ(*C_SentBoxMsgType, TStringList{"Y=1"});
  EXPECT_EQ(*C_InboxSrvType, TStringList{"Z=2"});
  EXPECT_TRUE(C_OutboxMsgType->empty());
  EXPECT_TRUE(BoxRec[bxInbox].empty());  // the tables use only the sections without prefix
  EXPECT_EQ(LanguageMode, 0);
  EXPECT_EQ(SysLanguageMode, 0);
  EXPECT_EQ(LangChanger().Language(), 0);
  EXPECT_TRUE(LangChanger().AnsiInterface());
  EXPECT_FALSE(CheckDupTDECSub.Auto);
  EXPECT_EQ(CheckDupTDECSub.DocType, "F2|F2A");
  EXPECT_FALSE(CheckDupTDECSub.MBLAWB);
  EXPECT_TRUE(CheckDupTDECSub.HBLAWB);
  EXPECT_EQ(CheckDupTDECSub.Transport, "1|4|8");
  EXPECT_EQ(CheckDupTDECSub.Days, 60);
}

TEST_F(SettingsLoaderTest, QuentaInterfaceOutsideZeroOrOneSwitchesNothing) {
  LangChanger().SetLanguage(1);
  Load("[Language]\nInterface=2\n", true);
  EXPECT_EQ(LanguageMode, 2);
  EXPECT_EQ(SysLanguageMode, 2);
  EXPECT_EQ(LangChanger().Language(), 1);
  EXPECT_FALSE(LangChanger().AnsiInterface());
  Load("", true);
  EXPECT_EQ(LanguageMode, 1);
  EXPECT_EQ(LangChanger().Language(), 1);
}

}  // namespace
}  // namespace mv
