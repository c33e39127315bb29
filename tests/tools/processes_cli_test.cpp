// "mvcommon tempname" and "mvcommon lock", run as separate processes.
#include <gtest/gtest.h>

#include <filesystem>

#include "common/frame/shared_state.h"
#include "common/processes/concurrent_right.h"
#include "platform/files/lock_file.h"
#include "platform/files/paths.h"
#include "tests/common/processes/helper_process.h"
#include "tests/support/installation.h"
#include "tests/support/run_program.h"

namespace mv::test {
namespace {

TEST(TempnameCommand, PrintsTheResultAndTheFileMade) {
  TempDir dir;
  const RunResult made = RunProgram(MVCOMMON_PROGRAM, {"tempname", dir.path(), ".tmp"});
  EXPECT_EQ(made.exitCode, 0);
  ASSERT_EQ(made.out.size(), 2 + dir.path().size() + 1 + 8 + 4 + 1) << made.out;
  EXPECT_TRUE(files::FileExists(made.out.substr(2, made.out.size() - 3)));
  const RunResult failed = RunProgram(MVCOMMON_PROGRAM, {"tempname", dir.File("none"), ".tmp"});
  EXPECT_EQ(failed.exitCode, 3);
  EXPECT_EQ(failed.out.substr(0, 3), "-1\n");
}

TEST(LockCommand, HeldBusyAndGivenUpWhenInterrupted) {
  TestInstallation installation;
  BasePath = installation.BaseFolder() + "/";
  EXPECT_EQ(RunProgram(MVCOMMON_PROGRAM, {"lock", "Stock", "0"}).out, "held\n");  // installation
  int32_t handle = -1;
  ASSERT_TRUE(SetConcurrentRight("Stock", handle));
  const RunResult busy =
      RunProgram(MVCOMMON_PROGRAM, {"lock", "--base-path", installation.BaseFolder(), "Stock"});
  EXPECT_EQ(busy.out, "busy\n");
  EXPECT_EQ(busy.exitCode, 3);
  ResetConcurrentRight(handle);
  HelperProcess holder(MVCOMMON_PROGRAM " lock --base-path " + installation.BaseFolder() +
                       " Stock");
  ASSERT_EQ(holder.ReadLine(), "held");
  EXPECT_EQ(files::LockFileExclusive(LockFileName("Stock")), files::kNoLock);
  holder.Signal(SIGTERM);
  EXPECT_EQ(holder.Wait(), 0);  // given up in order, not ended by the signal
  EXPECT_EQ(RunProgram(MVCOMMON_PROGRAM, {"lock", "Stock", "soon"}).exitCode, 2);
  const RunResult noFolder = RunProgram(
      MVCOMMON_PROGRAM, {"lock", "--base-path", installation.BaseFolder() + "/none", "Stock"});
  EXPECT_EQ(noFolder.exitCode, 1);  // at once, not "busy" after fifteen attempts
  EXPECT_EQ(noFolder.out, "");
  ResetSharedState();
}

// Only a holder makes a resource busy; a lock file that cannot be made is an error, told at once.
TEST(LockCommand, LockFileThatCannotBeMadeIsAnErrorNotBusy) {
  TestInstallation installation;
  const std::string base = installation.BaseFolder();
  const auto lock = [&](const std::string& resource) {
    return RunProgram(MVCOMMON_PROGRAM, {"lock", "--base-path", base, resource, "0"});
  };
  const RunResult slash = lock("a/b");
  EXPECT_EQ(slash.exitCode, 1);
  EXPECT_EQ(slash.out, "");
  EXPECT_NE(slash.err.find("the lock file " + base + "/Temp/a/b.lck cannot be made"),
            std::string::npos)
      << slash.err;
  std::filesystem::remove_all(base + "/Temp");
  installation.Dir().Write("client/Temp", "");  // a plain file where the folder should be
  EXPECT_EQ(lock("Stock").exitCode, 1);
  // A folder where not even root may make files.
  if (!files::DirectoryExists("/sys/kernel")) GTEST_SKIP() << "no /sys/kernel";
  std::filesystem::remove(base + "/Temp");
  std::filesystem::create_directory_symlink("/sys/kernel", base + "/Temp");
  const RunResult denied = lock("Stock");
  EXPECT_EQ(denied.exitCode, 1);
  EXPECT_EQ(denied.out, "");
  EXPECT_NE(denied.err.find("no permission"), std::string::npos) << denied.err;
}

}  // namespace
}  // namespace mv::test
