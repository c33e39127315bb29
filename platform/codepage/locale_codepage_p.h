// The platform's answer to "which ANSI code page does this machine use".
#pragma once

#include <string_view>

namespace mv::codepage {

// The code page that MV_CODEPAGE names when it holds a number from 1 to 65535, else 0.
int CodePageOverride();

// MV_CODEPAGE when it holds a positive number, else the code page of the locale's character set
// (POSIX) or the system's ANSI code page (Windows).
int CodePageOfEnvironment();

// The Windows code page of a character-set name as the C library reports it ("BIG5-HKSCS" -> 950).
// POSIX only.
int CodePageOfCharset(std::string_view charset);

}  // namespace mv::codepage
