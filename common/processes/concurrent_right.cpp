#include "common/processes/concurrent_right.h"

#include <chrono>
#include <thread>

#include "common/frame/shared_state.h"
#include "platform/dialogs/dialogs.h"
#include "platform/files/lock_file.h"
#include "platform/files/paths.h"

namespace mv {
namespace {

constexpr int kMostAttempts = 15;
constexpr std::chrono::milliseconds kRetryPause{200};

// Shows the hourglass for the lifetime of the object and then puts the cursor back as it was.
class HourGlass {
 public:
  HourGlass() : previous_(dialogs::Provider().ScreenCursor()) {
    dialogs::Provider().SetScreenCursor(dialogs::crHourGlass);
  }
  ~HourGlass() { dialogs::Provider().SetScreenCursor(previous_); }
  HourGlass(const HourGlass&) = delete;
  HourGlass& operator=(const HourGlass&) = delete;

 private:
  dialogs::TCursor previous_;
};

void MakeTempFolder() {
  const std::string folder = BasePath + "Temp";
  // A folder that cannot be made shows as a failed open below.
  if (!files::DirectoryExists(folder)) files::MakeDirectory(folder);
}

// One attempt of SetConcurrentRight: true when `handle` holds the right afterwards.
bool TryOnce(const std::string& lockFile, int32_t& handle, files::TLockError& error) {
  error = files::TLockError::kNone;
  if (!files::FileExists(lockFile) || handle < 1)
    handle = files::LockFileExclusive(lockFile, error);
  return handle > 0;
}

}  // namespace

std::string LockFileName(const std::string& resource) {
  return BasePath + "Temp" + files::kPathDelim + resource + ".lck";
}

bool SetConcurrentRight(const std::string& resource, int32_t& handle) {
  files::TLockError ignored;
  return SetConcurrentRight(resource, handle, ignored);
}

bool SetConcurrentRight(const std::string& resource, int32_t& handle, files::TLockError& error) {
  HourGlass hourGlass;
  FRetryAccess = 0;
  MakeTempFolder();
  const std::string lockFile = LockFileName(resource);
  bool held = false;
  while (FRetryAccess < kMostAttempts) {
    ++FRetryAccess;
    held = TryOnce(lockFile, handle, error);
    if (held || error != files::TLockError::kHeld) break;
    std::this_thread::sleep_for(kRetryPause);
  }
  FRetryAccess = 0;
  return held;
}

void ResetConcurrentRight(int32_t& handle) {
  if (handle <= 0) return;
  files::UnlockFile(handle);
  handle = files::kNoLock;
}

void DeleteLockFile(const std::string& resource) {
  const std::string lockFile = LockFileName(resource);
  if (files::FileExists(lockFile)) files::RemoveLockFile(lockFile);
}

}  // namespace mv
