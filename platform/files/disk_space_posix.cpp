#include <sys/statvfs.h>

#include "platform/files/disk_space.h"
#include "platform/files/file_names.h"

namespace mv::files {

std::optional<uint64_t> FreeDiskSpace(const std::string& folder) {
  const std::optional<std::string> encoded = EncodeFileName(folder.empty() ? "." : folder);
  struct statvfs info {};
  if (!encoded || statvfs(encoded->c_str(), &info) != 0) return std::nullopt;
  return static_cast<uint64_t>(info.f_bavail) * info.f_frsize;
}

}  // namespace mv::files
