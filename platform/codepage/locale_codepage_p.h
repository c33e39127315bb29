// The platform's answer to "which ANSI code page does this machine use".
#pragma once

#include <string_view>

namespace mv::codepage {

// MV_CODEPAGE when it holds a positive number, else the code page of the locale's character set.
int CodePageOfEnvironment();

// The Windows code page of a character-set name as the C library reports it ("BIG5-HKSCS" -> 950).
int CodePageOfCharset(std::string_view charset);

}  // namespace mv::codepage
