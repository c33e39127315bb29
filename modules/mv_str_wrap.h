// Wrapping of narrow text (bytes in the user's code page) and wide text (UTF-16) into lines of
// at most a given number of characters.
#pragma once

#include <string>
#include <string_view>

namespace mv::modules {

// The text with `breakText` inserted where a line would grow past `maxCol` characters: after the
// last break character (one of `breakChars`) that keeps the line within `maxCol`; when the line
// has none there, after the first break character that follows (a word longer than a line stays
// whole), and a line without any stays as it is. CR and LF end a line and start the count again.
// Wrapping only inserts: no character is dropped, a break character ends its line. Columns count
// characters (a Big5 character is one); a break character of narrow text matches single-byte
// characters only. A `maxCol` below 1 changes nothing. Narrow text is read through the user's
// code page (code page 1252 when no converter serves it).
std::string MV_WideWrapText(std::string_view s, std::string_view breakText,
                            std::string_view breakChars, int maxCol);
std::u16string MV_WideWrapText(std::u16string_view s, std::u16string_view breakText,
                               std::u16string_view breakChars, int maxCol);

// As above with the break text CR LF and the break characters blank, "-" and tab.
std::string MV_WideWrapText(std::string_view s, int maxCol);
std::u16string MV_WideWrapText(std::u16string_view s, int maxCol);

}  // namespace mv::modules
