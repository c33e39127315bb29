// The one conversion between the library's narrow paths and the names the system's file calls
// take and give. The library keeps narrow paths in the system code page (Big5 under 950, GBK
// under 936, Western under 1252 and the C locale); file names on POSIX are UTF-8 bytes whatever
// the locale, so every system call of platform/ goes through EncodeFileName, and every name the
// system hands back (directory entries, the program's path, arguments and environment values that
// name files) through DecodeFileName. On Windows the file calls take UTF-16 (converted inside
// platform/ at the call); these two serve what takes UTF-8 names there too (SQLite files).
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace mv::files {

// The bytes the system's file calls take for `path`, a narrow path in the system code page: the
// path in UTF-8. Bytes that the code page does not map become U+FFFD, so they name no file the
// user meant. Under code page 65001, and for a code page no converter serves, the bytes pass
// unchanged. Nothing when `path` holds a zero byte, which would cut the name short at the call.
[[nodiscard]] std::optional<std::string> EncodeFileName(std::string_view path);

// A name the system gave, in UTF-8 bytes, as a narrow path in the system code page. A character
// the code page cannot hold becomes its best fit or "?", as the narrow file calls of Windows give
// it, so such a name cannot be opened again through the narrow routines (an installation folder
// must have a name the user's code page can write); ill-formed UTF-8 becomes "?". Under code page
// 65001, and for a code page no converter serves, the bytes pass unchanged.
[[nodiscard]] std::string DecodeFileName(std::string_view name);

}  // namespace mv::files
