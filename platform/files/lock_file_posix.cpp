#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "platform/files/file_names.h"
#include "platform/files/lock_file.h"

namespace mv::files {
namespace {

// Opens `path` with `flags`; the descriptor is never 0, so that it reads as a held handle even
// when standard input was closed.
int OpenAboveZero(const std::string& path, int flags) {
  int fd;
  do {
    fd = ::open(path.c_str(), flags | O_CLOEXEC, 0666);
  } while (fd < 0 && errno == EINTR);
  if (fd != 0) return fd;
  const int moved = ::fcntl(fd, F_DUPFD_CLOEXEC, 1);
  ::close(fd);
  return moved;
}

bool TakeWriteLock(int fd) {
  struct flock lock {};
  lock.l_type = F_WRLCK;
  lock.l_whence = SEEK_SET;
  lock.l_start = 0;
  lock.l_len = 0;  // the whole file, however long it grows
  return ::fcntl(fd, F_OFD_SETLK, &lock) == 0;
}

// True when `path` still names the file open as `fd`: a taker that opened a file which was
// removed (and perhaps made again by someone else) before its lock went on holds nothing.
bool StillNamed(int fd, const std::string& path) {
  struct stat opened {
  }, named{};
  return ::fstat(fd, &opened) == 0 && ::stat(path.c_str(), &named) == 0 &&
         opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
}

// The error kind of a failed open.
TLockError OpenError(int error) {
  return error == EACCES || error == EPERM || error == EROFS ? TLockError::kPermission
                                                             : TLockError::kOther;
}

// The error kind of a failed F_OFD_SETLK: a conflicting lock, or no lock service at all.
TLockError LockError(int error) {
  return error == EAGAIN || error == EACCES ? TLockError::kHeld : TLockError::kOther;
}

int32_t OpenAndLock(const std::string& path, int flags, TLockError& error) {
  const int fd = OpenAboveZero(path, flags);
  if (fd < 0) {
    error = OpenError(errno);
    return kNoLock;
  }
  if (!TakeWriteLock(fd)) {
    error = LockError(errno);
  } else if (!StillNamed(fd, path)) {
    error = TLockError::kHeld;  // removed or replaced by its holder meanwhile: try again
  } else {
    error = TLockError::kNone;
    return fd;
  }
  ::close(fd);
  return kNoLock;
}

}  // namespace

int32_t LockFileExclusive(const std::string& path, TLockError& error) {
  const std::optional<std::string> name = EncodeFileName(path);
  if (!name) {
    error = TLockError::kOther;  // a zero byte in the name: no such file can exist
    return kNoLock;
  }
  return OpenAndLock(*name, O_WRONLY | O_CREAT, error);
}

void UnlockFile(int32_t handle) {
  if (handle > 0) ::close(handle);
}

bool RemoveLockFile(const std::string& lockPath) {
  const std::optional<std::string> name = EncodeFileName(lockPath);
  if (!name) return false;
  const std::string& path = *name;
  TLockError ignored;  // any failure leaves the file; only its absence counts
  const int32_t handle = OpenAndLock(path, O_WRONLY, ignored);
  if (handle == kNoLock) return ::access(path.c_str(), F_OK) != 0 && errno == ENOENT;
  // Removed while locked: a taker that opened it meanwhile finds the name gone and fails.
  const bool removed = ::unlink(path.c_str()) == 0;
  ::close(handle);
  return removed;
}

}  // namespace mv::files
