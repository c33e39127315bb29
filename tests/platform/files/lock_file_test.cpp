// Lock files: why a lock was not taken, and waiting for its holder to give it up.
#include "platform/files/lock_file.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include "platform/files/paths.h"
#include "tests/support/temp_dir.h"

namespace mv::files {
namespace {

using namespace std::chrono_literals;
using test::TempDir;

TEST(LockFileTest, ErrorTellsAHolderFromAFileThatCannotBeMade) {
  TempDir dir;
  TLockError error = TLockError::kOther;
  const int32_t held = LockFileExclusive(dir.File("a.lck"), error);
  ASSERT_GT(held, 0);
  EXPECT_EQ(error, TLockError::kNone);
  EXPECT_EQ(LockFileExclusive(dir.File("a.lck"), error), kNoLock);
  EXPECT_EQ(error, TLockError::kHeld);
  UnlockFile(held);

  dir.Write("Temp", "");  // a plain file where a folder should be
  for (const std::string& path : {dir.File("Temp/a.lck"), dir.File("none/a.lck"), dir.path()}) {
    EXPECT_EQ(LockFileExclusive(path, error), kNoLock) << path;
    EXPECT_EQ(error, TLockError::kOther) << path;
  }
  // Not even root may make a file in the kernel's own file system.
  if (!DirectoryExists("/sys/kernel")) GTEST_SKIP() << "no /sys/kernel";
  EXPECT_EQ(LockFileExclusive("/sys/kernel/a.lck", error), kNoLock);
  EXPECT_EQ(error, TLockError::kPermission);
}

TEST(LockFileTest, WaitEndsWhenTheHolderGivesUpOrTheTimeIsOver) {
  TempDir dir;
  const std::string path = dir.File("a.lck");
  const int32_t holder = LockFileExclusive(path);
  ASSERT_GT(holder, 0);
  TLockError error = TLockError::kNone;
  EXPECT_EQ(LockFileWaiting(path, 20ms, error), kNoLock);
  EXPECT_EQ(error, TLockError::kHeld);

  std::atomic<bool> givenUp{false};
  std::thread release([&] {
    std::this_thread::sleep_for(50ms);
    givenUp = true;
    UnlockFile(holder);
  });
  const int32_t waited = LockFileWaiting(path, 60s, error);
  EXPECT_TRUE(givenUp);
  EXPECT_GT(waited, 0);
  EXPECT_EQ(error, TLockError::kNone);
  release.join();
  UnlockFile(waited);
  // A file that cannot be made is not waited for.
  EXPECT_EQ(LockFileWaiting(dir.File("none/a.lck"), 1h, error), kNoLock);
  EXPECT_EQ(error, TLockError::kOther);
}

}  // namespace
}  // namespace mv::files
