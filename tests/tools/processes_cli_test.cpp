// "mvcommon tempname" and "mvcommon lock", run as separate processes.
#include <string>

#include <gtest/gtest.h>

#include "common/frame/shared_state.h"
#include "common/processes/concurrent_right.h"
#include "platform/files/lock_file.h"
#include "platform/files/paths.h"
#include "tests/common/processes/helper_process.h"
#include "tests/support/installation.h"
#include "tests/support/run_program.h"
#include "tests/support/temp_dir.h"

namespace mv::test {
namespace {

TEST(TempnameCommand, PrintsTheResultAndTheFileMade) {
  TempDir dir;
  const RunResult made = RunProgram(MVCOMMON_PROGRAM, {"tempname", dir.path(), ".tmp"});
  EXPECT_EQ(made.exitCode, 0);
  ASSERT_EQ(made.out.size(), 2 + dir.path().size() + 1 + 8 + 4 + 1) << made.out;
  EXPECT_EQ(made.out.substr(0, 2 + dir.path().size() + 1), "0\n" + dir.path() + "/");
  EXPECT_TRUE(files::FileExists(made.out.substr(2, made.out.size() - 3)));
  const RunResult failed = RunProgram(MVCOMMON_PROGRAM, {"tempname", dir.File("none"), ".tmp"});
  EXPECT_EQ(failed.exitCode, 3);
  EXPECT_EQ(failed.out.substr(0, 3), "-1\n");
  EXPECT_EQ(RunProgram(MVCOMMON_PROGRAM, {"tempname", dir.path()}).exitCode, 2);
}

TEST(LockCommand, HeldBusyAndGivenUpWhenInterrupted) {
  TempDir dir;
  BasePath = dir.path() + "/";
  const std::vector<std::string> lock{"lock", "--base-path", dir.path(), "Stock"};
  const RunResult free = RunProgram(MVCOMMON_PROGRAM, {lock[0], lock[1], lock[2], lock[3], "0"});
  EXPECT_EQ(free.out, "held\n");
  EXPECT_EQ(free.exitCode, 0);
  int32_t handle = -1;
  ASSERT_TRUE(SetConcurrentRight("Stock", handle));
  const RunResult busy = RunProgram(MVCOMMON_PROGRAM, lock);
  EXPECT_EQ(busy.out, "busy\n");
  EXPECT_EQ(busy.exitCode, 3);
  ResetConcurrentRight(handle);
  HelperProcess holder(std::string(MVCOMMON_PROGRAM) + " lock --base-path " + dir.path() +
                       " Stock");
  ASSERT_EQ(holder.ReadLine(), "held");
  EXPECT_EQ(files::LockFileExclusive(BasePath + "Temp/Stock.lck"), files::kNoLock);
  holder.Signal(SIGTERM);
  EXPECT_EQ(holder.Wait(), 0);
  EXPECT_TRUE(SetConcurrentRight("Stock", handle));
  ResetConcurrentRight(handle);
  ResetSharedState();
}

TEST(LockCommand, WithoutBasePathUsesTheInstallationAndRefusesBadSeconds) {
  TestInstallation installation;
  EXPECT_EQ(RunProgram(MVCOMMON_PROGRAM, {"lock", "Stock", "0"}).out, "held\n");
  EXPECT_TRUE(files::FileExists(installation.BaseFolder() + "/Temp/Stock.lck"));
  const RunResult bad = RunProgram(MVCOMMON_PROGRAM, {"lock", "Stock", "soon"});
  EXPECT_EQ(bad.exitCode, 2);
  EXPECT_NE(bad.err.find("Usage: mvcommon lock"), std::string::npos);
}

}  // namespace
}  // namespace mv::test
