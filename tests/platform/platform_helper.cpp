// The other process of the platform layer's cross-process tests; its exit code tells what
// happened.
//   try LOCKFILE          takes the lock file and gives it up: exit 0, or 3 when another holds
//                         it, 1 when it cannot be made
//   hold LOCKFILE MARKER  takes the lock file, makes MARKER, waits until MARKER is removed and
//                         then ends at once without giving the lock up, as a holder that dies
//   exit CODE TEXT        prints TEXT without a line end and ends at once with exit code CODE
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <thread>

#include "platform/files/lock_file.h"
#include "platform/files/paths.h"
#include "platform/system/machine.h"

namespace {

int TryLock(const std::string& path) {
  mv::files::TLockError error = mv::files::TLockError::kNone;
  const int32_t handle = mv::files::LockFileExclusive(path, error);
  mv::files::UnlockFile(handle);
  return error == mv::files::TLockError::kNone ? 0 : error == mv::files::TLockError::kHeld ? 3 : 1;
}

int HoldAndDie(const std::string& path, const std::string& marker) {
  if (mv::files::LockFileExclusive(path) == mv::files::kNoLock) return 3;
  mv::files::ReplaceFileAtomically(marker, "held");
  while (mv::files::FileExists(marker)) std::this_thread::sleep_for(std::chrono::milliseconds(5));
  mv::sys::TerminateProcess(0);
}

}  // namespace

int main(int argc, char** argv) {
  const std::string command = argc > 1 ? argv[1] : "";
  if (command == "try" && argc == 3) return TryLock(argv[2]);
  if (command == "hold" && argc == 4) return HoldAndDie(argv[2], argv[3]);
  if (command == "exit" && argc == 4) {
    std::printf("%s", argv[3]);
    mv::sys::TerminateProcess(std::atoi(argv[2]));
  }
  return 2;
}
