// Windows: a file made only when it is new (CREATE_NEW), and names looked up in a folder.
#include <windows.h>

#include "platform/files/new_file.h"
#include "platform/files/wide_names_p.h"

namespace mv::files {
namespace {

// True when `entry` is `base` or `base` + "." + anything, without regard to case.
bool IsBaseOf(std::wstring_view entry, std::wstring_view base) {
  if (entry.size() < base.size()) return false;
  if (::CompareStringOrdinal(entry.data(), static_cast<int>(base.size()), base.data(),
                             static_cast<int>(base.size()), TRUE) != CSTR_EQUAL) {
    return false;
  }
  return entry.size() == base.size() || entry[base.size()] == L'.';
}

}  // namespace

bool CreateNewFile(const std::string& path) {
  const std::optional<std::wstring> name = WideFileName(path);
  if (!name || path.empty()) return false;
  const HANDLE file = ::CreateFileW(name->c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return false;
  ::CloseHandle(file);
  return true;
}

bool BaseNameTaken(const std::string& folder, const std::string& baseName) {
  const std::optional<std::wstring> wideFolder = WideFileName(folder);
  const std::optional<std::wstring> base = WideFileName(baseName);
  if (!wideFolder || !base) return false;
  const std::wstring pattern = (folder.empty() ? std::wstring(L".\\") : *wideFolder) + L"*";
  WIN32_FIND_DATAW entry{};
  const HANDLE find = ::FindFirstFileW(pattern.c_str(), &entry);
  if (find == INVALID_HANDLE_VALUE) return false;
  bool taken = false;
  do {
    taken = IsBaseOf(entry.cFileName, *base);
  } while (!taken && ::FindNextFileW(find, &entry));
  ::FindClose(find);
  return taken;
}

}  // namespace mv::files
