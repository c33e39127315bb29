// Starting programs and add-ons. Without a window system interface no add-on window is ever
// found: programs start, but RunApp answers false and CallHookFunc reports no response.
#include <sys/stat.h>

#include <chrono>
#include <stdexcept>
#include <string>
#include <thread>

#include <gtest/gtest.h>

#include "common/frame/shared_state.h"
#include "common/processes/addon_programs.h"
#include "common/text/lang_changer.h"
#include "platform/codepage/codepage.h"
#include "platform/files/paths.h"
#include "tests/support/installation.h"
#include "tests/support/temp_dir.h"

namespace mv::test {
namespace {

class AddonProgramsTest : public ::testing::Test {
 protected:
  ~AddonProgramsTest() override { ResetSharedState(); }

  // The file `name` once a started program has written it (the program writes it beside and
  // renames it, so it is whole when it appears); empty if it never comes.
  std::string WaitForFile(const std::string& name) const {
    for (int i = 0; i < 3000 && !files::FileExists(dir_.File(name)); ++i) {
      std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return dir_.Read(name);
  }
  // A command line whose program writes `text`'s output into the file `name`.
  std::string Writes(const std::string& text, const std::string& name) const {
    const std::string file = dir_.File(name);
    return "sh -c '" + text + " > " + file + ".part && mv " + file + ".part " + file + "'";
  }

  TempDir dir_;
};

TEST_F(AddonProgramsTest, RunDosStartsTheProgramWithoutATerminal) {
  EXPECT_GE(RunDOS(Writes("readlink /proc/self/fd/0 /proc/self/fd/1", "out")), 32);
  EXPECT_EQ(WaitForFile("out"), "/dev/null\n" + dir_.File("out.part") + "\n");
}

TEST_F(AddonProgramsTest, RunDosTellsWhyAProgramDidNotStart) {
  const std::string plain = dir_.Write("plain", "not a program");
  EXPECT_EQ(RunDOS(""), 0);
  EXPECT_EQ(RunDOS("   "), 0);
  EXPECT_EQ(RunDOS("true | false"), 0);  // no pipes
  EXPECT_EQ(RunDOS("'unclosed"), 0);
  EXPECT_EQ(RunDOS("no-such-program-here"), 2);
  EXPECT_EQ(RunDOS(dir_.File("no/such/program")), 2);
  EXPECT_EQ(RunDOS(plain + " arg"), 5);
  ::chmod(plain.c_str(), 0755);
  EXPECT_LT(RunDOS(plain), 32);  // executable, but not a program the system can run
  EXPECT_GE(RunDOS("true"), 32);
}

TEST_F(AddonProgramsTest, RunAppStartsTheProgramButFindsNoWindow) {
  const std::string command = Writes("echo started", "app");
  EXPECT_FALSE(RunApp(command.c_str(), "Stock Manager"));
  EXPECT_EQ(WaitForFile("app"), "started\n");
}

TEST_F(AddonProgramsTest, CallHookReportsAProgramThatCannotStartInTheUsersLanguage) {
  ServerPath = dir_.path() + "/";
  ScopedEnv codePage("MV_CODEPAGE", "950");
  LangChanger().SetLanguage(1);
  try {
    CallHookFunc("Stock Manager", "stockmgr", 1, 2);
    FAIL() << "no error";
  } catch (const std::runtime_error& e) {
    EXPECT_STREQ(e.what(), "Cannot run program: stockmgr");
  }
  LangChanger().SetLanguage(0);
  try {
    CallHook("Stock Manager", "stockmgr", 1, 2);
    FAIL() << "no error";
  } catch (const std::runtime_error& e) {
    EXPECT_EQ(codepage::Utf8FromWide(codepage::ToWide(e.what(), 950)), "無法執行: stockmgr");
  }
}

TEST_F(AddonProgramsTest, CallHookStartsTheAddonForTheUserAndReportsNoResponse) {
  ServerPath = dir_.path() + "/";
  UserRecord.UserID = "ALICE";
  const std::string addon =
      dir_.Write("stockmgr", "#!/bin/sh\necho \"$@\" > " + dir_.File("args.part") + " && mv " +
                                 dir_.File("args.part") + " " + dir_.File("args") + "\n");
  ::chmod(addon.c_str(), 0755);
  LangChanger().SetLanguage(1);
  AddonDone = true;
  try {
    CallHookFunc("Stock Manager", "stockmgr", 1, 2);
    FAIL() << "no error";
  } catch (const std::runtime_error& e) {
    EXPECT_STREQ(e.what(), "No response from program: Stock Manager");
  }
  EXPECT_EQ(WaitForFile("args"), "ALICE\n");
  EXPECT_TRUE(AddonDone);  // nothing was posted, so the handshake never began
}

}  // namespace
}  // namespace mv::test
