// String primitives over narrow text (bytes in the user's code page) and wide text (UTF-16):
// blanks, single characters and delimited fields.
//
// A "blank" is the space character (U+0020); other control characters are not blanks. A
// character argument of a narrow routine matches single-byte characters only, never a byte of a
// Big5 double-byte character (whose second byte may well be "|" or "\"). Narrow text is read
// through the user's code page (code page 1252 when no converter serves it).
#pragma once

#include <string>
#include <string_view>

namespace mv::modules {

// The text without trailing / leading / leading and trailing blanks.
std::string _MV_RTrim(std::string_view s);
std::u16string _MV_RTrim(std::u16string_view s);
std::string _MV_LTrim(std::string_view s);
std::u16string _MV_LTrim(std::u16string_view s);
std::string _MV_AllTrim(std::string_view s);
std::u16string _MV_AllTrim(std::u16string_view s);

// The text without the characters `c` at its start.
std::string _MV_LTrimChar(std::string_view s, char c);
std::u16string _MV_LTrimChar(std::u16string_view s, char16_t c);

// True when the text holds anything but blanks (an empty text is empty).
bool _MV_NotEmpty(std::string_view s);
bool _MV_NotEmpty(std::u16string_view s);

// The text with every character `from` replaced by `to`.
std::string _MV_FillStr(std::string_view s, char from, char to);
std::u16string _MV_FillStr(std::u16string_view s, char16_t from, char16_t to);

// Compares two texts without regard to the case of the English letters a-z, character by
// character in byte / UTF-16 unit order: below 0, 0 or above 0. Other letters keep their case.
int MV_CompareText(std::string_view a, std::string_view b);
int MV_CompareText(std::u16string_view a, std::u16string_view b);

// True when both texts are equal without regard to the case of the English letters a-z.
bool MV_SameText(std::string_view a, std::string_view b);
bool MV_SameText(std::u16string_view a, std::u16string_view b);

// Field `n` (counted from 1) of `text` split at `delimiter`, as it stands (not trimmed). A field
// number below 1 or past the last field gives an empty text. "a,,b" has the fields "a", "" and
// "b"; a text ending in the delimiter has an empty last field.
std::string MV_UserTitle(std::string_view text, char delimiter, int n);
std::u16string MV_UserTitle(std::u16string_view text, char16_t delimiter, int n);

}  // namespace mv::modules
