// Start-up of both product lines on real installations in a temporary folder.
#include "common/frame/startup.h"

#include <gtest/gtest.h>

#include "common/frame/library.h"
#include "common/frame/shared_state.h"
#include "common/text/lang_changer.h"
#include "platform/dialogs/dialogs.h"
#include "platform/system/machine.h"
#include "tests/support/installation.h"

namespace mv {
namespace {

class StartupTest : public ::testing::Test {
 protected:
  test::TestInstallation install;
  dialogs::RecordingDialogProvider boxes;
  dialogs::ScopedProvider scoped{boxes};
};

TEST_F(StartupTest, ServerAndBasePathsGetOneFinalSeparator) {
  for (std::string value : {install.ServerFolder(), install.ServerFolder() + "/"}) {
    install.WriteRegistry(value);
    Init();
    EXPECT_EQ(ServerPath, install.ServerFolder() + "/");
    EXPECT_EQ(BasePath, install.BaseFolder() + "/");
    EXPECT_EQ(Global_Merovan_Ini, "SEDIFSYS.INI");
    EXPECT_EQ(LOCAL_Merovan_Ini, "WIN.INI");
    FreeStrList();
  }
  EXPECT_TRUE(boxes.Requests().empty());
}

TEST_F(StartupTest, QuentaReadsItsOwnKeyAndClampsMaxRecords) {
  const std::pair<const char*, int> cases[] = {{"", 1000},
                                               {"MaxRecords=999", 1000},
                                               {"MaxRecords=1000", 1000},
                                               {"MaxRecords=50000", 50000},
                                               {"MaxRecords=50001", 50000},
                                               {"MaxRecords=-5", 1000},
                                               {"MaxRecords=abc", 1000}};
  for (const auto& [line, expected] : cases) {
    install.WriteSystemIni(std::string("[Halvo]\n") + line + "\n");
    Init_Quenta();
    EXPECT_EQ(giMaxRecords, expected) << line;
    FreeStrList_Quenta();
  }
}

TEST_F(StartupTest, OrvexLeavesMaxRecordsAndLanguagesAlone) {
  install.WriteSystemIni("[Halvo]\nMaxRecords=20000\n[Language]\nInterface=1\n");
  Init();
  EXPECT_EQ(giMaxRecords, 0);
  EXPECT_EQ(LanguageMode, 0);
  EXPECT_EQ(SysLanguageMode, 0);
  FreeStrList();
}

TEST_F(StartupTest, PrintPreviewRegistrationRunsOncePerStart) {
  int calls = 0;
  SetPrintPreviewRegistration([&calls] { ++calls; });
  Init();
  FreeStrList();
  Init_Quenta();
  FreeStrList_Quenta();
  SetPrintPreviewRegistration(nullptr);
  EXPECT_EQ(calls, 2);
}

TEST_F(StartupTest, FreeStrListFreesItsListsAndKeepsTheOthers) {
  Init();
  ASSERT_TRUE(AryPkgInfo.empty());
  FreeStrList();
  for (auto* list : {&Addon, &AddonToolBar, &Service, &AddonMenu, &InboxMsgType, &OutboxMsgType,
                     &SentBoxMsgType, &InboxSrvType}) {
    EXPECT_EQ(*list, nullptr);
  }
  EXPECT_NE(InboxAction, nullptr);
  EXPECT_NE(InboxActList, nullptr);
  EXPECT_NE(BoxMsgType[bxSentbox], nullptr);
}

TEST_F(StartupTest, FreeStrListQuentaAlsoFreesTheChineseBoxListsAndDetRecord) {
  Init_Quenta();
  ASSERT_NE(C_InboxSrvType, nullptr);
  ASSERT_NE(DetRecord.ChiCaption, nullptr);
  FreeStrList_Quenta();
  for (auto* list :
       {&C_InboxMsgType, &C_OutboxMsgType, &C_SentBoxMsgType, &C_InboxSrvType, &DetRecord.FieldName,
        &DetRecord.EngCaption, &DetRecord.ChiCaption, &Service}) {
    EXPECT_EQ(*list, nullptr);
  }
  EXPECT_NE(InboxAction, nullptr);
}

TEST_F(StartupTest, ServerPathOverrideReplacesTheRegistry) {
  install.WriteRegistry("");
  SetServerPathOverride(install.ServerFolder());
  Init();
  EXPECT_EQ(ServerPath, install.ServerFolder() + "/");
  FreeStrList();
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

TEST(LibraryTest, OnlyTheLastStopReleasesTheState) {
  ASSERT_EQ(LibraryStartCount(), 1);  // started when the library was loaded
  const uint32_t message = wm_eAdvertise;
  EXPECT_GE(message, 0xC000u);
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
  EXPECT_EQ(MV_OSVersionInfo.dwOSVersionInfoSize, 148u);
  EXPECT_EQ(CurrentService, -1);
  EXPECT_EQ(iReadTimeOut, -1);
  strChineseTable = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ(),-./=";
}

TEST(LibraryTest, FpuWordIsPutBackOnlyOnOldSystemsWhenItChanged) {
  EXPECT_EQ(AdoFpuWordToLoad(10u, 0x27F, 0x37F), std::nullopt);
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
