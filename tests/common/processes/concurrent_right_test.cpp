// Exclusive rights through lock files, within one process and against real other processes.
#include <sstream>

#include <gtest/gtest.h>

#include "common/frame/shared_state.h"
#include "common/processes/concurrent_right.h"
#include "platform/dialogs/dialogs.h"
#include "platform/files/lock_file.h"
#include "platform/files/paths.h"
#include "tests/common/processes/helper_process.h"
#include "tests/support/installation.h"
#include "tests/support/temp_dir.h"

namespace mv::test {
namespace {

class ConcurrentRightTest : public ::testing::Test {
 protected:
  ConcurrentRightTest() { BasePath = dir_.path() + "/"; }
  ~ConcurrentRightTest() override { ResetSharedState(); }
  std::string LockFile() const { return dir_.File("Temp/Stock.lck"); }

  TempDir dir_;
  dialogs::RecordingDialogProvider dialogs_;
  dialogs::ScopedProvider provider_{dialogs_};
  int32_t handle_ = -1;
};

TEST_F(ConcurrentRightTest, TakenOnceByItsHolderAndGivenUp) {
  ASSERT_TRUE(SetConcurrentRight("Stock", handle_));  // makes the folder and the file
  EXPECT_EQ(dialogs_.CursorsSet(),
            (std::vector<dialogs::TCursor>{dialogs::crHourGlass, dialogs::crDefault}));
  const int32_t first = handle_;
  ASSERT_TRUE(SetConcurrentRight("Stock", handle_));  // the holder again: nothing opened
  EXPECT_EQ(handle_, first);
  int32_t other = -1;
  dialogs_.SetScreenCursor(dialogs::crArrow);
  EXPECT_FALSE(SetConcurrentRight("Stock", other));  // another handle of this process
  EXPECT_EQ(other, -1);
  EXPECT_EQ(FRetryAccess, 0);
  EXPECT_EQ(dialogs_.ScreenCursor(), dialogs::crArrow);
  ResetConcurrentRight(handle_);
  EXPECT_EQ(handle_, -1);
  EXPECT_TRUE(files::FileExists(LockFile()));  // left behind, and blocking no one
  EXPECT_TRUE(SetConcurrentRight("Stock", other));
  ResetConcurrentRight(other);
  for (int32_t none : {-1, 0}) {
    ResetConcurrentRight(handle_ = none);
    EXPECT_EQ(handle_, none);
  }
}

TEST_F(ConcurrentRightTest, AnotherProcessHoldsUntilItIsKilled) {
  HelperProcess holder(PROCESS_HELPER " hold " + dir_.path() + " Stock");
  ASSERT_EQ(holder.ReadLine(), "held");
  EXPECT_FALSE(SetConcurrentRight("Stock", handle_));
  DeleteLockFile("Stock");
  EXPECT_TRUE(files::FileExists(LockFile()));  // held: not removed
  holder.Signal(SIGKILL);
  holder.Wait();
  handle_ = files::LockFileExclusive(LockFile());  // the very first attempt succeeds
  EXPECT_GT(handle_, 0);
  ResetConcurrentRight(handle_);
  DeleteLockFile("Stock");
  EXPECT_FALSE(files::FileExists(LockFile()));
  DeleteLockFile("Stock");  // no file: nothing happens
}

// Four processes take and give up the lock 200 times each, logging "+pid" after taking it and
// "-pid" before giving it up: in the log every hold must be given up before the next is taken.
TEST(Reliability, LockHoldsOfFourProcessesNeverOverlap) {
  TempDir dir;
  RunFourTogether(dir, PROCESS_HELPER " cycle " + dir.path() + " Stock " + dir.File("holds.log"));
  std::istringstream log(dir.Read("holds.log"));
  int holds = 0;
  for (std::string taken, givenUp; std::getline(log, taken) && std::getline(log, givenUp);) {
    ASSERT_EQ(taken[0], '+') << holds;
    ASSERT_EQ(givenUp, "-" + taken.substr(1)) << holds;
    ++holds;
  }
  EXPECT_EQ(holds, 4 * 200);  // none lost, as none may hold more than 200 times
}

}  // namespace
}  // namespace mv::test
