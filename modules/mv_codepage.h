// Code-page primitives.
#pragma once

#include <string>

namespace mv::modules {

// The machine's ANSI code page as decimal text: the system's when `system` is true, else the
// user's ("950", "1252" ...). On POSIX both come from the locale's character set, or from
// MV_CODEPAGE when it is set.
std::string MV_GetCodepage(bool system);

}  // namespace mv::modules
