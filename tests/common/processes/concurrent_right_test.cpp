// Exclusive rights through lock files, within one process and against a real second process.
#include <string>

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
  std::string HoldCommand() const {
    return std::string(PROCESS_HELPER) + " hold " + dir_.path() + " Stock";
  }

  TempDir dir_;
  dialogs::RecordingDialogProvider dialogs_;
  dialogs::ScopedProvider provider_{dialogs_};
};

TEST_F(ConcurrentRightTest, TakenOnceByItsHolderAndGivenUp) {
  dir_.Write("Temp/Stock.lck", "left behind by a copy that ended");
  int32_t handle = -1;
  ASSERT_TRUE(SetConcurrentRight("Stock", handle));
  EXPECT_EQ(LockFileName("Stock"), LockFile());
  EXPECT_EQ(dialogs_.CursorsSet(),
            (std::vector<dialogs::TCursor>{dialogs::crHourGlass, dialogs::crDefault}));
  const int32_t first = handle;
  ASSERT_TRUE(SetConcurrentRight("Stock", handle));  // the holder again: nothing opened
  EXPECT_EQ(handle, first);
  ResetConcurrentRight(handle);
  EXPECT_EQ(handle, -1);
  EXPECT_TRUE(files::FileExists(LockFile()));
  for (int32_t none : {-1, 0}) {
    ResetConcurrentRight(handle = none);
    EXPECT_EQ(handle, none);
  }
}

TEST_F(ConcurrentRightTest, ASecondHandleOfThisProcessIsRefused) {
  int32_t mine = -1, other = -1;
  ASSERT_TRUE(SetConcurrentRight("Stock", mine));
  dialogs_.SetScreenCursor(dialogs::crArrow);
  EXPECT_FALSE(SetConcurrentRight("Stock", other));
  EXPECT_EQ(other, -1);
  EXPECT_EQ(FRetryAccess, 0);
  EXPECT_EQ(dialogs_.ScreenCursor(), dialogs::crArrow);
  ResetConcurrentRight(mine);
  EXPECT_TRUE(SetConcurrentRight("Stock", other));
  ResetConcurrentRight(other);
}

TEST_F(ConcurrentRightTest, AnotherProcessHoldsUntilItIsKilled) {
  HelperProcess holder(HoldCommand());
  ASSERT_EQ(holder.ReadLine(), "held");
  int32_t handle = -1;
  EXPECT_FALSE(SetConcurrentRight("Stock", handle));
  EXPECT_EQ(handle, -1);
  EXPECT_EQ(FRetryAccess, 0);
  EXPECT_EQ(dialogs_.ScreenCursor(), dialogs::crDefault);
  holder.Signal(SIGKILL);
  holder.Wait();
  handle = files::LockFileExclusive(LockFile());  // the very first attempt succeeds
  EXPECT_GT(handle, 0);
  ResetConcurrentRight(handle);
}

TEST_F(ConcurrentRightTest, DeleteLockFileLeavesAHeldFile) {
  DeleteLockFile("Stock");  // no file: nothing happens
  {
    HelperProcess holder(HoldCommand());
    ASSERT_EQ(holder.ReadLine(), "held");
    DeleteLockFile("Stock");
    EXPECT_TRUE(files::FileExists(LockFile()));
  }
  int32_t handle = -1;
  ASSERT_TRUE(SetConcurrentRight("Stock", handle));
  DeleteLockFile("Stock");
  EXPECT_TRUE(files::FileExists(LockFile()));
  ResetConcurrentRight(handle);
  DeleteLockFile("Stock");
  EXPECT_FALSE(files::FileExists(LockFile()));
}

}  // namespace
}  // namespace mv::test
