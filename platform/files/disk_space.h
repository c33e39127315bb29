// How much room a folder's file system has left, for writers that check before they write.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace mv::files {

// The bytes an ordinary user may still write on the file system of the folder `folder` (a
// narrow path in the system code page); nothing when the folder does not exist or the system
// cannot tell.
[[nodiscard]] std::optional<uint64_t> FreeDiskSpace(const std::string& folder);

}  // namespace mv::files
