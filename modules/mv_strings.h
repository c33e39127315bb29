// String primitives over narrow text (bytes in the user's code page). A "blank" is the space
// character; other control characters are not blanks.
#pragma once

#include <string>
#include <string_view>

namespace mv::modules {

// The text without trailing / leading / leading and trailing blanks.
std::string _MV_RTrim(std::string_view s);
std::string _MV_LTrim(std::string_view s);
std::string _MV_AllTrim(std::string_view s);

// The text padded on the left with blanks to `width` characters. A text already `width` long or
// longer comes back unchanged: padding never cuts.
std::string _MV_PadL(std::string_view s, int width);

// The text with every `from` character replaced by `to`.
std::string _MV_FillStr(std::string_view s, char from, char to);

// Compares two texts without regard to ASCII case, byte by byte: below 0, 0 or above 0.
int MV_CompareText(std::string_view a, std::string_view b);

// True when both texts are equal without regard to ASCII case.
bool MV_SameText(std::string_view a, std::string_view b);

// Field `n` (counted from 1) of `text` split at `delimiter`, as it stands (not trimmed). A field
// number below 1 or past the last field gives an empty text. "a,,b" has the fields "a", "" and
// "b"; a text ending in the delimiter has an empty last field.
std::string MV_UserTitle(std::string_view text, char delimiter, int n);

}  // namespace mv::modules
