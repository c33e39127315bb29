// "mvcommon tempname" and "mvcommon lock", run as separate processes.
#include <signal.h>

#include <string>
#include <vector>

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

class LockCommandTest : public ::testing::Test {
 protected:
  LockCommandTest() { BasePath = dir_.path() + "/"; }
  ~LockCommandTest() override { ResetSharedState(); }
  RunResult Lock(std::vector<std::string> args) const {
    args.insert(args.begin(), {"lock", "--base-path", dir_.path()});
    return RunProgram(MVCOMMON_PROGRAM, args);
  }
  TempDir dir_;
};

TEST_F(LockCommandTest, HeldWhenFreeBusyWhileThisProcessHoldsIt) {
  const RunResult free = Lock({"Stock", "0"});
  EXPECT_EQ(free.exitCode, 0);
  EXPECT_EQ(free.out, "held\n");
  int32_t handle = -1;
  ASSERT_TRUE(SetConcurrentRight("Stock", handle));
  const RunResult busy = Lock({"Stock", "0"});
  EXPECT_EQ(busy.exitCode, 3);
  EXPECT_EQ(busy.out, "busy\n");
  ResetConcurrentRight(handle);
}

TEST_F(LockCommandTest, HoldsUntilInterruptedThenGivesItUp) {
  HelperProcess holder(MVCOMMON_PROGRAM, {"lock", "--base-path", dir_.path(), "Stock"});
  ASSERT_EQ(holder.ReadLine(), "held");
  EXPECT_EQ(files::LockFileExclusive(dir_.File("Temp/Stock.lck")), files::kNoLock);
  holder.Signal(SIGTERM);
  EXPECT_EQ(holder.Wait(), 0);
  int32_t handle = files::LockFileExclusive(dir_.File("Temp/Stock.lck"));
  EXPECT_GT(handle, 0);
  ResetConcurrentRight(handle);
}

TEST_F(LockCommandTest, WithoutBasePathUsesTheInstallation) {
  TestInstallation installation;
  const RunResult held = RunProgram(MVCOMMON_PROGRAM, {"lock", "Stock", "0"});
  EXPECT_EQ(held.out, "held\n") << held.err;
  EXPECT_TRUE(files::FileExists(installation.BaseFolder() + "/Temp/Stock.lck"));
}

TEST_F(LockCommandTest, CommandLinesItCannotFollow) {
  for (const std::vector<std::string>& args :
       {std::vector<std::string>{}, {"Stock", "soon"}, {"Stock", "-1"}, {"Stock", "1", "2"}}) {
    const RunResult result = Lock(args);
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_NE(result.err.find("Usage: mvcommon lock"), std::string::npos);
  }
}

}  // namespace
}  // namespace mv::test
