// Service packages: real shared libraries loaded, called and told to stop.
#include "common/services/packages.h"

#include <gtest/gtest.h>

#include "common/frame/errors.h"
#include "common/frame/shared_state.h"
#include "common/frame/startup.h"
#include "common/text/lang_changer.h"
#include "platform/codepage/codepage.h"
#include "platform/dialogs/dialogs.h"
#include "tests/support/installation.h"

// The host's call-backs; "RefreshFolder" is deliberately missing.
extern "C" {
__attribute__((visibility("default"))) void SetMenu(const mv_arg*, int32_t) {}
__attribute__((visibility("default"))) void SetAddonToolBar(const mv_arg*, int32_t) {}
__attribute__((visibility("default"))) void ChangeFolder(const mv_arg*, int32_t) {}
}

namespace mv {
namespace {

const std::string kPackages = SAMPLE_PACKAGE_DIR;

class PackagesTest : public ::testing::Test {
 protected:
  // Starts the Orvex line on an installation with these [SERVICES] lines and extra sections.
  void Start(const std::string& services, const std::string& more = "") {
    install.WriteSystemIni("[SERVICES]\n" + services + "[Plugin]\nALPHA=" + kPackages +
                           "/ALPHA.so\nBETA=" + kPackages + "/BETA.so\nNOENTRY=" + kPackages +
                           "/NOENTRY.so\nGONE=" + kPackages + "/GONE.so\n" + more);
    Init();
  }
  std::string Log() const { return install.Dir().Read("packages.log"); }
  std::string BoxText(size_t i) const {
    return codepage::Utf8FromWide(boxes.Requests().at(i).text);
  }

  test::TestInstallation install;
  test::ScopedEnv log{"MV_PACKAGE_LOG", install.Dir().File("packages.log")};
  dialogs::RecordingDialogProvider boxes;
  dialogs::ScopedProvider scoped{boxes};
};

TEST_F(PackagesTest, StartLoadsMarkedPackagesInKeyOrderAndSendsStartAndStop) {
  Start("2=BETA,b,2\n1=ALPHA,a,1\n3=NOENTRY,n\n",
        "[BETA_MENU]\nB1=Beta menu\n[ALPHA_MENU]\nA1=Alpha one\nA2=Alpha two\n"
        "[NOENTRY_MENU]\nN1=n\n");
  ASSERT_EQ(AryPkgInfo.size(), 3u);
  EXPECT_EQ(AryPkgInfo[0].ServiceName + AryPkgInfo[0].ServiceExtra, "ALPHAa");
  EXPECT_NE(AryPkgInfo[1].Handle, 0u);
  EXPECT_EQ(AryPkgInfo[2].Handle, 0u);  // a line without a load mode is deferred
  EXPECT_EQ(*AddonMenu, (TStringList{"Alpha one", "Alpha two", "Beta menu", "n"}));
  EXPECT_TRUE(HasFindService("ALPHA"));
  EXPECT_FALSE(HasFindService("alpha"));
  FreeStrList();
  EXPECT_EQ(Log(), "ALPHA loaded\nBETA loaded\nALPHA 500\nBETA 500\nALPHA 505\nBETA 505\n");
  EXPECT_TRUE(boxes.Requests().empty());
}

TEST_F(PackagesTest, PackageThatCannotLoadIsReportedAndStaysUnloaded) {
  LangChanger().SetLanguage(1);
  Start("1=GONE,g,1\n2=ALPHA,a,1\n", "[GONE_MENU]\nG=never\n[ALPHA_MENU]\nA=alpha\n");
  ASSERT_EQ(boxes.Requests().size(), 1u);
  EXPECT_EQ(BoxText(0), "Can't load Plugin Package: " + kPackages + "/GONE.so");
  ASSERT_EQ(AryPkgInfo.size(), 2u);
  EXPECT_EQ(AryPkgInfo[0].Handle, 0u);
  EXPECT_EQ(*AddonMenu, TStringList{"alpha"});
  // A later call tries to load it again and fails to the caller.
  EXPECT_THROW(CallService("GONE", "InitService", 1), EOSError);
}

// A deferred package is loaded and started on its first call; the entry point is looked up
// again only when the service changes.
TEST_F(PackagesTest, DeferredPackageStartsOnFirstCallAndEntryPointFollowsTheService) {
  Start("1=ALPHA,a,1\n2=BETA,b\n3=ALPHA,again,1\n");
  CallService("ALPHA", "InitService", 1);
  CallService("ALPHA", "NoSuchEntry", 2);  // the entry found before, whatever the name
  const mv_arg args[] = {{MV_ARG_INT32, {.i32 = 7}}, {MV_ARG_TEXT, {.text = "doc"}}};
  CallService("BETA", "InitService", 42, args);
  CallService("BETA", "InitService", 43);
  EXPECT_NE(AryPkgInfo[1].Handle, 0u);
  EXPECT_THROW(CallService("ALPHA", "NoSuchEntry", 4), EOSError);
  EXPECT_EQ(CurrentService, 0);  // the first of two equal names
  EXPECT_EQ(Log(),
            "ALPHA loaded\nALPHA 500\nALPHA 500\nALPHA 1\nALPHA 2\nBETA loaded\nBETA 500\n"
            "BETA 42 i7 s:doc\nBETA 43\n");
}

TEST_F(PackagesTest, MissingExportRaisesTheSystemError) {
  // Loaded at start: its start notice fails, and so does the start.
  EXPECT_THROW(Start("1=NOENTRY,n,1\n"), EOSError);
  // Deferred: the first call loads it and fails before anything is called.
  test::ResetSharedState();
  Start("1=NOENTRY,n\n");
  EXPECT_THROW(CallService("NOENTRY", "InitService", 1), EOSError);
  EXPECT_EQ(Log(), "NOENTRY loaded\n");
}

TEST_F(PackagesTest, UnknownServiceShowsTheBilingualBoxAndCallsNothing) {
  Start("");
  CallService("TDEC", "InitService", 1);
  LangChanger().SetLanguage(1);
  CallService("TDEC", "InitService", 1);
  ASSERT_EQ(boxes.Requests().size(), 2u);
  EXPECT_EQ(BoxText(0), "尋找不到服務元件TDEC，如果你想知道\r\n更多有關資料，請與Merovan聯絡。");
  EXPECT_EQ(BoxText(1),
            "Service module TDEC is not found. If you want to know \r\nmore information, please "
            "contact Merovan!");
  EXPECT_EQ(CurrentService, -1);
  EXPECT_EQ(Log(), "");
}

TEST_F(PackagesTest, InstallationQuestions) {
  Start("1=ALPHA,a\n2=VarneDoc,v\n", "[Syntax Level]\nSQAID=Merovan Orvex 4\n");
  EXPECT_TRUE(IsOrvex());
  EXPECT_TRUE(IsVarne());
  EXPECT_FALSE(IsHalvo());
  install.WriteSystemIni(
      "[SERVICES]\n1=varne\n[Syntax Level]\nSQAID=orvex\n[System]\nEdition= Halvo\n");
  EXPECT_FALSE(IsOrvex());
  EXPECT_FALSE(IsVarne());
  EXPECT_TRUE(IsHalvo());
}

TEST(HostEntryPointsTest, BoundOnceFromTheProgram) {
  LoadExtFunc();
  EXPECT_TRUE(InitStatus);
  EXPECT_EQ(SetMenuStatus, &SetMenu);
  EXPECT_EQ(ChangeFolder, &::ChangeFolder);
  EXPECT_EQ(RefreshFolder, nullptr);
  SetMenuStatus = nullptr;
  LoadExtFunc();
  EXPECT_EQ(SetMenuStatus, nullptr);
}

}  // namespace
}  // namespace mv
