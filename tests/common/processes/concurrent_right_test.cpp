// Exclusive rights through lock files, within one process and against a real second process.
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
  std::string HoldCommand() const { return PROCESS_HELPER " hold " + dir_.path() + " Stock"; }

  TempDir dir_;
  dialogs::RecordingDialogProvider dialogs_;
  dialogs::ScopedProvider provider_{dialogs_};
  int32_t handle_ = -1;
};

TEST_F(ConcurrentRightTest, TakenOnceByItsHolderAndGivenUp) {
  ASSERT_TRUE(SetConcurrentRight("Stock", handle_));  // makes the folder and the file
  EXPECT_EQ(LockFileName("Stock"), LockFile());
  EXPECT_EQ(dialogs_.CursorsSet(),
            (std::vector<dialogs::TCursor>{dialogs::crHourGlass, dialogs::crDefault}));
  const int32_t first = handle_;
  ASSERT_TRUE(SetConcurrentRight("Stock", handle_));  // the holder again: nothing opened
  EXPECT_EQ(handle_, first);
  int32_t other = -1;
  dialogs_.SetScreenCursor(dialogs::crArrow);
  EXPECT_FALSE(SetConcurrentRight("Stock", other));  // another handle of this process
  EXPECT_EQ(other, -1);
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
  HelperProcess holder(HoldCommand());
  ASSERT_EQ(holder.ReadLine(), "held");
  EXPECT_FALSE(SetConcurrentRight("Stock", handle_));
  EXPECT_EQ(handle_, -1);
  EXPECT_EQ(FRetryAccess, 0);
  EXPECT_EQ(dialogs_.ScreenCursor(), dialogs::crDefault);
  DeleteLockFile("Stock");
  EXPECT_TRUE(files::FileExists(LockFile()));  // held: not removed
  holder.Signal(SIGKILL);
  holder.Wait();
  handle_ = files::LockFileExclusive(LockFile());  // the very first attempt succeeds
  EXPECT_GT(handle_, 0);
  DeleteLockFile("Stock");
  EXPECT_TRUE(files::FileExists(LockFile()));  // held by this process: not removed
  ResetConcurrentRight(handle_);
  DeleteLockFile("Stock");
  EXPECT_FALSE(files::FileExists(LockFile()));
  DeleteLockFile("Stock");  // no file: nothing happens
}

}  // namespace
}  // namespace mv::test
