// Windows: a lock file is held by opening it with no sharing at all, so every other open of it, in
// this process or another, fails with a sharing violation until the handle is closed; the system
// closes the handles of a process that ends, so a holder that dies releases its lock.
#include <windows.h>

#include "platform/files/lock_file.h"
#include "platform/files/wide_names_p.h"

namespace mv::files {
namespace {

int32_t AsLockHandle(HANDLE file) {
  // Kernel handles are 32-bit values (the system keeps them so for 32-bit processes), multiples
  // of 4, never 0 for an open file.
  return static_cast<int32_t>(reinterpret_cast<intptr_t>(file));
}

HANDLE AsFileHandle(int32_t handle) {
  return reinterpret_cast<HANDLE>(static_cast<intptr_t>(handle));
}

TLockError OpenError(DWORD error, const std::wstring& name) {
  switch (error) {
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
      return TLockError::kHeld;
    case ERROR_ACCESS_DENIED:
    case ERROR_WRITE_PROTECT: {
      // A folder of that name answers "access denied" too; that is no question of permission.
      const DWORD attributes = ::GetFileAttributesW(name.c_str());
      const bool folder =
          attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
      return folder ? TLockError::kOther : TLockError::kPermission;
    }
    default:
      return TLockError::kOther;
  }
}

}  // namespace

int32_t LockFileExclusive(const std::string& path, TLockError& error) {
  const std::optional<std::wstring> name = WideFileName(path);
  if (!name || path.empty()) {
    error = TLockError::kOther;  // a zero byte in the name: no such file can exist
    return kNoLock;
  }
  // No sharing: the open itself is the lock. The handle is not inherited by started programs.
  const HANDLE file = ::CreateFileW(name->c_str(), GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) {
    error = OpenError(::GetLastError(), *name);
    return kNoLock;
  }
  error = TLockError::kNone;
  return AsLockHandle(file);
}

void UnlockFile(int32_t handle) {
  if (handle > 0) ::CloseHandle(AsFileHandle(handle));
}

bool RemoveLockFile(const std::string& lockPath) {
  const std::optional<std::wstring> name = WideFileName(lockPath);
  if (!name || lockPath.empty()) return false;
  // Opened without sharing and removed when closed: a held file cannot be opened so, and stays.
  const HANDLE file = ::CreateFileW(name->c_str(), DELETE, 0, nullptr, OPEN_EXISTING,
                                    FILE_FLAG_DELETE_ON_CLOSE, nullptr);
  if (file == INVALID_HANDLE_VALUE) {
    const DWORD error = ::GetLastError();
    return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
  }
  ::CloseHandle(file);
  return ::GetFileAttributesW(name->c_str()) == INVALID_FILE_ATTRIBUTES;
}

}  // namespace mv::files
