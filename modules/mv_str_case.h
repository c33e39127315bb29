// Case of narrow text (bytes in the user's code page) and wide text (UTF-16).
//
// _MV_ChangeCase and _MV_ECharUpperCase change the English letters a-z / A-Z only; every other
// character, Chinese, accented or full-width, stays as it is, and in narrow text the bytes of a
// Big5 double-byte character are never touched (its second byte may look like a letter). Narrow
// text is read through the user's code page, or code page 1252 when no converter serves it.
#pragma once

#include <string>
#include <string_view>

namespace mv::modules {

// The text in title case: the first English letter of every word upper case, every other English
// letter lower case. A word is a run of English letters, digits and apostrophes ("o'neil 2nd"
// gives "O'neil 2nd"); any other character ends it.
std::string _MV_ChangeCase(std::string_view s);
std::u16string _MV_ChangeCase(std::u16string_view s);

// The text with the English letters a-z in upper case and every other character untouched.
std::string _MV_ECharUpperCase(std::string_view s);
std::u16string _MV_ECharUpperCase(std::u16string_view s);

// The text in lower / upper case by the Unicode rules (language-independent), as wide text;
// narrow text is first read in the user's code page. Each UTF-16 unit maps to one unit by the
// simple case mapping, as the platform's wide case mapping does: the result has the length of the
// wide text, "ß" and "ﬁ" stay as they are, surrogates too.
[[nodiscard]] std::u16string MV_WideLowerCase(std::string_view s);
[[nodiscard]] std::u16string MV_WideLowerCase(std::u16string_view s);
[[nodiscard]] std::u16string MV_WideUpperCase(std::string_view s);
[[nodiscard]] std::u16string MV_WideUpperCase(std::u16string_view s);

}  // namespace mv::modules
