// The write lock of a configuration file, shared by every process that writes it: the lock file
// beside it (its name + ".lck"). The lock cannot sit on the configuration file itself, as every
// write replaces that file by another.
#pragma once

#include <cstdint>
#include <string>

namespace mv::ini::detail {

// Holds the write lock of the configuration file `fileName` (a path in the file system's form)
// for the lifetime of the object, waiting up to kWriteLockTimeout for another holder. Throws
// EIniFileException, naming the file, when the time is over or the lock file cannot be made.
// Two objects of one process exclude each other as two processes do.
class TIniWriteLock {
 public:
  explicit TIniWriteLock(const std::string& fileName);
  ~TIniWriteLock();
  TIniWriteLock(const TIniWriteLock&) = delete;
  TIniWriteLock& operator=(const TIniWriteLock&) = delete;

 private:
  int32_t handle_;
};

}  // namespace mv::ini::detail
