// Exclusive rights through lock files: within one process and against a real second process.
#include <signal.h>

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
  // A second process holding the right to "Stock"; "held" once it has it.
  std::unique_ptr<HelperProcess> StartHolder() {
    auto holder = std::make_unique<HelperProcess>(
        PROCESS_HELPER, std::vector<std::string>{"hold", dir_.path(), "Stock"});
    EXPECT_EQ(holder->ReadLine(), "held");
    return holder;
  }

  TempDir dir_;
  dialogs::RecordingDialogProvider dialogs_;
  dialogs::ScopedProvider provider_{dialogs_};
};

TEST_F(ConcurrentRightTest, TakesTheRightMakingFolderAndFileWithTheHourglassShown) {
  EXPECT_EQ(LockFileName("Stock"), LockFile());
  int32_t handle = -1;
  ASSERT_TRUE(SetConcurrentRight("Stock", handle));
  EXPECT_GT(handle, 0);
  EXPECT_TRUE(files::FileExists(LockFile()));
  EXPECT_EQ(FRetryAccess, 0);
  EXPECT_EQ(dialogs_.CursorsSet(),
            (std::vector<dialogs::TCursor>{dialogs::crHourGlass, dialogs::crDefault}));
  // The holder asking again keeps its handle; nothing else is opened.
  const int32_t first = handle;
  ASSERT_TRUE(SetConcurrentRight("Stock", handle));
  EXPECT_EQ(handle, first);
  ResetConcurrentRight(handle);
  EXPECT_EQ(handle, -1);
  EXPECT_TRUE(files::FileExists(LockFile()));
}

TEST_F(ConcurrentRightTest, ResetWithoutAHeldHandleDoesNothing) {
  for (int32_t handle : {-1, 0}) {
    const int32_t before = handle;
    ResetConcurrentRight(handle);
    EXPECT_EQ(handle, before);
  }
}

TEST_F(ConcurrentRightTest, AFileLeftBehindDoesNotBlock) {
  dir_.Write("Temp/Stock.lck", "left by a copy that ended");
  int32_t handle = -1;
  EXPECT_TRUE(SetConcurrentRight("Stock", handle));
  ResetConcurrentRight(handle);
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
  std::unique_ptr<HelperProcess> holder = StartHolder();
  int32_t handle = -1;
  dialogs_.Clear();
  EXPECT_FALSE(SetConcurrentRight("Stock", handle));
  EXPECT_EQ(handle, -1);
  EXPECT_EQ(FRetryAccess, 0);
  EXPECT_EQ(dialogs_.ScreenCursor(), dialogs::crDefault);
  holder->Signal(SIGKILL);
  holder->Wait();
  // The system dropped the dead holder's lock: the very first attempt succeeds.
  const int32_t taken = files::LockFileExclusive(LockFile());
  EXPECT_GT(taken, 0);
  ResetConcurrentRight(handle = taken);
}

TEST_F(ConcurrentRightTest, DeleteLockFileLeavesAHeldFile) {
  DeleteLockFile("Stock");  // no file: nothing happens
  std::unique_ptr<HelperProcess> holder = StartHolder();
  DeleteLockFile("Stock");
  EXPECT_TRUE(files::FileExists(LockFile()));
  holder.reset();
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
