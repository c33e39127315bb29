// Windows: narrow paths (system code page) as the UTF-16 names the wide file calls take, and back.
// Private to platform/.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace mv::files {

// The UTF-16 name of the narrow path `path` (system code page); nothing when it holds a zero byte.
[[nodiscard]] std::optional<std::wstring> WideFileName(std::string_view path);

// A UTF-16 name the system gave, as a narrow path in the system code page (best fit or "?" for
// what the code page cannot hold).
[[nodiscard]] std::string NarrowFileName(std::wstring_view name);

// The system's text of the error number `error` (GetLastError), in the system code page.
[[nodiscard]] std::string SystemErrorText(unsigned long error);

}  // namespace mv::files
