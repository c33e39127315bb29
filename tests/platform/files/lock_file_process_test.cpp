// Lock files between processes: a lock held by another process is seen as held, survives an
// attempt to remove it, and is free again once its holder has died without giving it up.
#include <gtest/gtest.h>

#include <chrono>
#include <future>
#include <thread>

#include "platform/files/lock_file.h"
#include "platform/files/paths.h"
#include "tests/support/helper_program.h"
#include "tests/support/run_program.h"
#include "tests/support/temp_dir.h"

namespace mv::files {
namespace {

using namespace std::chrono_literals;

const std::string& Helper() {
  static const std::string helper = test::HelperProgram(PLATFORM_HELPER);
  return helper;
}

TEST(LockFileProcess, AnotherProcessSeesTheLockUntilItIsGivenUp) {
  test::TempDir dir;
  const std::string path = dir.File("Temp/Stock.lck");
  dir.MakeDir("Temp");
  const int32_t held = LockFileExclusive(path);
  ASSERT_GT(held, 0);
  EXPECT_EQ(test::RunProgram(Helper(), {"try", path}).exitCode, 3);
  UnlockFile(held);
  EXPECT_EQ(test::RunProgram(Helper(), {"try", path}).exitCode, 0);
  EXPECT_EQ(test::RunProgram(Helper(), {"try", dir.File("none/Stock.lck")}).exitCode, 1);
}

TEST(LockFileProcess, AHolderThatDiesReleasesTheLock) {
  test::TempDir dir;
  const std::string path = dir.File("Stock.lck");
  const std::string marker = dir.File("held");
  auto holder = std::async(std::launch::async, [&] {
    return test::RunProgram(Helper(), {"hold", path, marker});
  });
  const auto deadline = std::chrono::steady_clock::now() + 60s;
  while (!FileExists(marker) && std::chrono::steady_clock::now() < deadline) {
    std::this_thread::sleep_for(5ms);
  }
  ASSERT_TRUE(FileExists(marker)) << "the helper never took the lock";
  TLockError error = TLockError::kNone;
  EXPECT_EQ(LockFileExclusive(path, error), kNoLock);
  EXPECT_EQ(error, TLockError::kHeld);
  EXPECT_FALSE(RemoveLockFile(path));  // a held file stays
  EXPECT_TRUE(FileExists(path));
  ASSERT_TRUE(RemoveFile(marker));  // the holder ends without giving the lock up
  EXPECT_EQ(holder.get().exitCode, 0);
  const int32_t taken = LockFileExclusive(path, error);
  EXPECT_GT(taken, 0);
  EXPECT_EQ(error, TLockError::kNone);
  UnlockFile(taken);
  EXPECT_TRUE(RemoveLockFile(path));
  EXPECT_FALSE(FileExists(path));
}

}  // namespace
}  // namespace mv::files
