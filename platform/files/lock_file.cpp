#include <algorithm>
#include <thread>

#include "platform/files/lock_file.h"

namespace mv::files {

int32_t LockFileExclusive(const std::string& path) {
  TLockError ignored;
  return LockFileExclusive(path, ignored);
}

int32_t LockFileWaiting(const std::string& path, std::chrono::milliseconds timeout,
                        TLockError& error) {
  using Clock = std::chrono::steady_clock;
  constexpr std::chrono::milliseconds kLongestPause{32};
  const Clock::time_point deadline = Clock::now() + timeout;
  std::chrono::milliseconds pause{1};
  for (;;) {
    const int32_t handle = LockFileExclusive(path, error);
    if (error != TLockError::kHeld) return handle;
    const Clock::time_point now = Clock::now();
    if (now >= deadline) return kNoLock;
    std::this_thread::sleep_for(std::min<Clock::duration>(pause, deadline - now));
    pause = std::min(pause * 2, kLongestPause);
  }
}

}  // namespace mv::files
