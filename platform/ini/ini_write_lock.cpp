#include "platform/ini/ini_write_lock_p.h"

#include "platform/files/lock_file.h"
#include "platform/ini/ini_file.h"

namespace mv::ini::detail {
namespace {

std::string LockFailure(const std::string& fileName, const std::string& lockFile,
                        files::TLockError error) {
  switch (error) {
    case files::TLockError::kHeld:
      return "Unable to write to " + fileName + ": another writer kept its lock file " + lockFile +
             " for more than " + std::to_string(kWriteLockTimeout.count()) + " seconds";
    case files::TLockError::kPermission:
      return "Unable to write to " + fileName + ": no permission to make its lock file " + lockFile;
    default:
      return "Unable to write to " + fileName + ": its lock file " + lockFile + " cannot be made";
  }
}

}  // namespace

TIniWriteLock::TIniWriteLock(const std::string& fileName) {
  const std::string lockFile = fileName + ".lck";
  files::TLockError error = files::TLockError::kNone;
  handle_ = files::LockFileWaiting(lockFile, kWriteLockTimeout, error);
  if (handle_ == files::kNoLock) throw EIniFileException(LockFailure(fileName, lockFile, error));
}

TIniWriteLock::~TIniWriteLock() {
  files::UnlockFile(handle_);
}

}  // namespace mv::ini::detail
