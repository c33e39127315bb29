// Starting programs and add-ons. No add-on window is ever found on POSIX: programs start, but
// RunApp answers false and CallHookFunc reports no response.
#include <sys/stat.h>

#include <chrono>
#include <stdexcept>
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
  // Shell text that writes the output of `command` to the file `name`, whole once it exists.
  std::string Writes(const std::string& command, const std::string& name) const {
    const std::string file = dir_.File(name);
    return command + " > " + file + ".part && mv " + file + ".part " + file;
  }
  // The file `name` once a started program has written it.
  std::string WaitForFile(const std::string& name) const {
    for (int i = 0; i < 3000 && !files::FileExists(dir_.File(name)); ++i) {
      std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return dir_.Read(name);
  }
  std::string CallHookError() {
    try {
      CallHook("Stock Manager", "stockmgr", 1, 2);
    } catch (const std::runtime_error& e) {
      return e.what();
    }
    return "no error";
  }
  TempDir dir_;
};

TEST_F(AddonProgramsTest, ProgramsStartHiddenOrSayWhyNotAndHaveNoWindow) {
  EXPECT_GE(RunDOS("sh -c '" + Writes("readlink /proc/self/fd/0", "out") + "'"), 32);
  EXPECT_EQ(WaitForFile("out"), "/dev/null\n");
  EXPECT_FALSE(RunApp(("sh -c '" + Writes("echo app", "app") + "'").c_str(), "Stock Manager"));
  EXPECT_EQ(WaitForFile("app"), "app\n");
  const std::string plain = dir_.Write("plain", "not a program");
  for (const std::string bad : {"", "true | false"}) EXPECT_EQ(RunDOS(bad), 0);
  EXPECT_EQ(RunDOS("no-such-program-here"), 2);
  EXPECT_EQ(RunDOS(plain + " arg"), 5);
  ::chmod(plain.c_str(), 0755);
  EXPECT_EQ(RunDOS(plain), 11);
}

// A Big5 character whose trail byte is a backslash stays whole when the command line is split.
TEST_F(AddonProgramsTest, CommandLinesInBig5KeepTheirCharactersWhole) {
  ScopedEnv codePage("MV_CODEPAGE", "950");
  ::chmod(dir_.Write("功能/run", "#!/bin/sh\n" + Writes("echo \"$1\"", "out")).c_str(), 0755);
  EXPECT_GE(RunDOS(dir_.path() + "/\xA5\x5C\xAF\xE0/run \xA5\x5C"), 32);  // 功能/run 功
  EXPECT_EQ(WaitForFile("out"), "功\n");
}

// The add-on is started with the user id as its one argument, whatever blanks and quotes the
// server folder and the user id hold.
TEST_F(AddonProgramsTest, CallHookStartsTheAddonForTheUserOrSaysWhyNotInTheUsersLanguage) {
  ServerPath = dir_.File("add ons") + "/";
  UserRecord.UserID = "AL\"I'CE $HOME";
  ScopedEnv codePage("MV_CODEPAGE", "950");
  LangChanger().SetLanguage(1);
  EXPECT_EQ(CallHookError(), "Cannot run program: stockmgr");
  LangChanger().SetLanguage(0);
  EXPECT_EQ(codepage::Utf8FromWide(codepage::ToWide(CallHookError(), 950)), "無法執行: stockmgr");
  ::chmod(dir_.Write("add ons/stockmgr", "#!/bin/sh\n" + Writes("printf '%s|' $# \"$@\"", "args"))
              .c_str(),
          0755);
  AddonDone = true;
  LangChanger().SetLanguage(1);
  EXPECT_EQ(CallHookError(), "No response from program: Stock Manager");
  EXPECT_EQ(WaitForFile("args"), "1|AL\"I'CE $HOME|");
  EXPECT_TRUE(AddonDone);  // nothing was posted: the handshake never began
}

}  // namespace
}  // namespace mv::test
