#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

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

int32_t OpenAndLock(const std::string& path, int flags) {
  const int fd = OpenAboveZero(path, flags);
  if (fd < 0) return kNoLock;
  if (TakeWriteLock(fd) && StillNamed(fd, path)) return fd;
  ::close(fd);
  return kNoLock;
}

}  // namespace

int32_t LockFileExclusive(const std::string& path) {
  return OpenAndLock(path, O_WRONLY | O_CREAT);
}

void UnlockFile(int32_t handle) {
  if (handle > 0) ::close(handle);
}

bool RemoveLockFile(const std::string& path) {
  const int32_t handle = OpenAndLock(path, O_WRONLY);
  if (handle == kNoLock) return ::access(path.c_str(), F_OK) != 0 && errno == ENOENT;
  // Removed while locked: a taker that opened it meanwhile finds the name gone and fails.
  const bool removed = ::unlink(path.c_str()) == 0;
  ::close(handle);
  return removed;
}

}  // namespace mv::files
