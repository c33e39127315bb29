// Code-page primitives: the machine's code pages and languages, and conversions between wide text
// (UTF-16) and narrow text (bytes in a Windows code page).
//
// Mind the sense of the Boolean arguments: MV_GetCodepage takes `system` (true = the system's),
// MV_GetLanguageID and MV_GetLanguageName take `user` (true = the user's).
//
// None of these routines throws: a code page number that no converter serves gives an empty text
// (and "not mappable"), as a conversion refused by the system would.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace mv::modules {

// The machine's ANSI code page as decimal text: the system's when `system` is true, else the
// user's ("950", "1252" ...). On POSIX both come from the locale's character set, or from
// MV_CODEPAGE when it is set.
std::string MV_GetCodepage(bool system);

// The Windows language identifier of the user (`user` true) or of the system (false): 0x0404 for
// Chinese (Taiwan), 0x0409 for English (United States). On POSIX the user's comes from LC_ALL,
// LC_MESSAGES or LANG, the system's from LC_ALL, LC_CTYPE or LANG; an unset, "C" or unknown
// locale gives 0x0409.
uint16_t MV_GetLanguageID(bool user);

// The English name of the same language ("Chinese (Traditional, Taiwan)", "English (United
// States)") as narrow text in the user's code page.
std::string MV_GetLanguageName(bool user);

// Narrow text in `codePage` of wide text; characters the code page cannot hold become "?".
std::string MV_WideStringToCodePage(std::u16string_view w, uint16_t codePage);

// Wide text of narrow text in `codePage`; byte sequences the code page does not map become U+FFFD.
std::u16string MV_CodePageToWideString(std::string_view s, uint16_t codePage);

// MV_WideStringToCodePage and MV_CodePageToWideString with the user's code page.
std::string MV_WideStringToAnsi(std::u16string_view w);
std::u16string MV_AnsiToWideString(std::string_view s);

// True when every character of the wide text converts to the user's code page exactly, so that
// MV_WideStringToAnsi substitutes nothing (an emoji under Big5 is not mappable; empty text is).
bool MV_IsWideStringMappableToAnsi(std::u16string_view w);

}  // namespace mv::modules
