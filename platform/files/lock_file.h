// Exclusive lock files: several running copies of the client, on one machine or on several that
// share the installation folder, take turns at a shared resource by holding its lock file open.
#pragma once

#include <chrono>
#include <cstdint>
#include <string>

namespace mv::files {

// A held lock file: greater than 0 while held. kNoLock is what a failed attempt gives and what a
// released handle is set to.
inline constexpr int32_t kNoLock = -1;

// Why a lock file was not taken.
enum class TLockError {
  kNone,        // the lock is held
  kHeld,        // another handle holds it (in this process or another); trying again may succeed
  kPermission,  // the file may not be made or opened: permission, a read-only file system
  kOther,       // anything else: a missing folder, a folder where the file should be, a name
                // with a separator in the wrong place, no locks on this file system
};

// Opens the lock file `path` for writing (making it when it is missing) and takes its exclusive
// lock without waiting. Returns the handle (greater than 0) when the lock is now held by this
// handle; kNoLock when another handle holds it (in this process or another) or the file cannot be
// opened or made (missing folder, no permission).
// POSIX: an open-file-description write lock (F_OFD_SETLK) on the whole file. Every process that
// locks the file sees it, also through a network file system's lock service; two handles of one
// process exclude each other; the system drops the lock when the handle is closed or its holder
// dies, so a file left behind never blocks the next taker. The handle is not passed on to
// programs the process starts. When the file is removed or replaced while the lock is being taken,
// the attempt fails, so that two takers never hold two different files of one name.
// Windows: the file opened with no sharing at all (the client's exclusive open); every other open
// fails until the handle is closed, and the system closes the handles of a process that ends.
int32_t LockFileExclusive(const std::string& path);
// The same, telling in `error` why the lock was not taken (kNone when it was).
int32_t LockFileExclusive(const std::string& path, TLockError& error);

// LockFileExclusive, tried again while another handle holds the lock, until `timeout` has passed
// (the pauses between attempts grow from one millisecond to a few tens). Other errors end the
// wait at once. Gives the handle, or kNoLock with the last attempt's error.
int32_t LockFileWaiting(const std::string& path, std::chrono::milliseconds timeout,
                        TLockError& error);

// Gives up the lock of `handle` (a handle of LockFileExclusive) by closing it. The file stays.
void UnlockFile(int32_t handle);

// Removes the lock file `path` unless it is held: the lock is taken for the removal, so a file
// that someone holds stays on disk (as a file held open stays on a system that refuses to remove
// it). True when the file is gone afterwards. Windows: opened without sharing and removed on
// closing.
bool RemoveLockFile(const std::string& path);

}  // namespace mv::files
