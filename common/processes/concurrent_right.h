// Exclusive rights to shared resources between running copies of the client (on one machine or
// on several sharing the installation folder), through lock files
// BasePath + "Temp" + separator + resource + ".lck". A right is held for as long as the holder
// keeps the file's handle; the file itself stays until DeleteLockFile.
// POSIX: the right is an open-file-description write lock on the open file (see
// platform/files/lock_file.h): other machines see it through the network file system's lock
// service, the system gives it up when its holder dies, and programs the holder starts do not
// inherit it. It binds only programs that take it the same way; it does not stop a program from
// opening the file otherwise.
#pragma once

#include <cstdint>
#include <string>

#include "platform/files/lock_file.h"

namespace mv {

// The lock file of `resource` (narrow text): BasePath + "Temp" + separator + resource + ".lck".
std::string LockFileName(const std::string& resource);

// Takes the exclusive right to `resource`. Shows the hourglass cursor (through the dialogs
// provider) and makes the folder BasePath + "Temp" when it is missing; then up to 15 attempts,
// 200 milliseconds apart, counted in FRetryAccess: an attempt opens the lock file into `handle`
// (making the file when it is missing) unless the file exists and `handle` is already 1 or more,
// in which case the caller holds the right already and nothing is opened. Stops at the first
// attempt that leaves `handle` greater than 0, or at the first that fails for another reason than
// a holder (the file cannot be made or opened: no permission, a separator in `resource`, "Temp"
// not a folder), as waiting cannot help then. Afterwards FRetryAccess is 0 again and the cursor
// is as before. Returns true when the right is held; false when the resource stayed busy, with
// `handle` the failed open's -1. Another process holding the file, or another handle of this
// process, makes the resource busy; a lock file left behind by a copy that ended does not.
bool SetConcurrentRight(const std::string& resource, int32_t& handle);
// The same, telling in `error` why the right was not taken: files::TLockError::kHeld for a busy
// resource, kPermission or kOther when the lock file could not be made or opened.
bool SetConcurrentRight(const std::string& resource, int32_t& handle, files::TLockError& error);

// Gives up a right: when `handle` is greater than 0, closes it and sets it to -1; otherwise does
// nothing. The lock file stays on disk.
void ResetConcurrentRight(int32_t& handle);

// Removes the lock file of `resource` when it exists. A file that is held at the time (by any
// process, this one included) is left in place, as the holder still needs it.
void DeleteLockFile(const std::string& resource);

}  // namespace mv
