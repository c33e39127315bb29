// Windows: files through the wide (UTF-16) calls; narrow paths are converted at the call.
#include <windows.h>

#include <string>

#include "platform/files/paths.h"
#include "platform/files/wide_names_p.h"

namespace mv::files {
namespace {

// The attributes of the narrow path `path`; INVALID_FILE_ATTRIBUTES when it names nothing.
DWORD Attributes(const std::string& path) {
  const std::optional<std::wstring> name = WideFileName(path);
  if (path.empty() || !name) return INVALID_FILE_ATTRIBUTES;
  return ::GetFileAttributesW(name->c_str());
}

std::string ErrorText(const std::string& what, const std::string& path, DWORD error) {
  return what + " " + path + ": " + SystemErrorText(error);
}

// Writes all of `bytes` to `file`, going on after short writes.
bool WriteAll(HANDLE file, std::string_view bytes) {
  while (!bytes.empty()) {
    const DWORD chunk = bytes.size() > (1u << 30) ? (1u << 30) : static_cast<DWORD>(bytes.size());
    DWORD written = 0;
    if (!::WriteFile(file, bytes.data(), chunk, &written, nullptr) || written == 0) return false;
    bytes.remove_prefix(written);
  }
  return true;
}

// A new file beside `name` for the atomic replacement, opened for writing; its name in `temp`.
HANDLE CreateBeside(const std::wstring& name, std::wstring& temp) {
  for (unsigned attempt = 0; attempt < 100; ++attempt) {
    temp = name + L"." + std::to_wstring(::GetCurrentProcessId()) + L"." +
           std::to_wstring(::GetTickCount64() + attempt) + L".tmp";
    const HANDLE file = ::CreateFileW(temp.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file != INVALID_HANDLE_VALUE || ::GetLastError() != ERROR_FILE_EXISTS) return file;
  }
  return INVALID_HANDLE_VALUE;
}

}  // namespace

bool DirectoryExists(const std::string& path) {
  const DWORD attributes = Attributes(path);
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

bool FileExists(const std::string& path) {
  const DWORD attributes = Attributes(path);
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

bool MakeDirectory(const std::string& path) {
  const std::optional<std::wstring> name = WideFileName(path);
  return name && !path.empty() && ::CreateDirectoryW(name->c_str(), nullptr) != FALSE;
}

bool RemoveFile(const std::string& path) {
  const std::optional<std::wstring> name = WideFileName(path);
  return name && !path.empty() && ::DeleteFileW(name->c_str()) != FALSE;
}

bool RenameFile(const std::string& from, const std::string& to) {
  const std::optional<std::wstring> source = WideFileName(from);
  const std::optional<std::wstring> target = WideFileName(to);
  return source && target && !from.empty() && !to.empty() &&
         ::MoveFileExW(source->c_str(), target->c_str(),
                       MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != FALSE;
}

std::string ResolveFileName(const std::string& path) {
  return path;
}

std::optional<std::string> ReadWholeFile(const std::string& path) {
  const std::optional<std::wstring> name = WideFileName(path);
  if (!name || path.empty()) return std::nullopt;
  const HANDLE file = ::CreateFileW(name->c_str(), GENERIC_READ,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return std::nullopt;
  std::string bytes;
  char buffer[65536];
  DWORD got = 0;
  bool ok = true;
  while ((ok = ::ReadFile(file, buffer, sizeof buffer, &got, nullptr) != FALSE) && got > 0) {
    bytes.append(buffer, got);
  }
  ::CloseHandle(file);
  if (!ok) return std::nullopt;
  return bytes;
}

void ReplaceFileAtomically(const std::string& path, std::string_view bytes) {
  const std::optional<std::wstring> name = WideFileName(path);
  if (!name) throw EFileError("Unable to write to " + path + ": the name holds a zero byte");
  std::wstring temp;
  const HANDLE file = CreateBeside(*name, temp);
  if (file == INVALID_HANDLE_VALUE) {
    throw EFileError(ErrorText("Unable to write to", path, ::GetLastError()));
  }
  bool ok = WriteAll(file, bytes) && ::FlushFileBuffers(file);
  DWORD error = ok ? 0 : ::GetLastError();
  ::CloseHandle(file);
  if (ok && !::MoveFileExW(temp.c_str(), name->c_str(),
                           MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH)) {
    ok = false;
    error = ::GetLastError();
  }
  if (!ok) {
    ::DeleteFileW(temp.c_str());
    throw EFileError(ErrorText("Unable to write to", path, error));
  }
}

}  // namespace mv::files
