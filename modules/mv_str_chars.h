// Questions about the characters of narrow text (bytes in the user's code page) and wide text
// (UTF-16).
#pragma once

#include <cstdint>
#include <string_view>

namespace mv::modules {

// True when the text holds a Chinese character: a character of the CJK blocks (ideographs with
// their extensions and compatibility forms, radicals and strokes, CJK symbols and punctuation,
// Bopomofo, enclosed and compatibility characters, full-width forms). Narrow text is read in the
// user's code page (code page 1252 when no converter serves it); text of bytes below 0x80 is
// never Chinese.
bool MV_HasChinese(std::string_view s);
bool MV_HasChinese(std::u16string_view s);

// The value of the text read as a base-36 number, digits "0"-"9" then "A"-"Z" ("a"-"z" count as
// "A"-"Z"): "Z" gives 35, "10" gives 36. An empty text, any other character (blanks included) or
// a value above the largest 64-bit integer gives -1.
int64_t MV_Get36(std::string_view s);
int64_t MV_Get36(std::u16string_view s);

}  // namespace mv::modules
