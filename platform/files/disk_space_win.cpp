#include <windows.h>

#include "platform/files/disk_space.h"
#include "platform/files/wide_names_p.h"

namespace mv::files {

std::optional<uint64_t> FreeDiskSpace(const std::string& folder) {
  const std::optional<std::wstring> name = WideFileName(folder.empty() ? "." : folder);
  ULARGE_INTEGER available{};
  if (!name || !::GetDiskFreeSpaceExW(name->c_str(), &available, nullptr, nullptr)) {
    return std::nullopt;
  }
  return static_cast<uint64_t>(available.QuadPart);
}

}  // namespace mv::files
