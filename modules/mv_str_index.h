// Positions, pieces and joins of narrow text (bytes in the user's code page) and wide text
// (UTF-16), counted in characters rather than bytes or units: a Big5 double-byte character of
// narrow text is one character, and so is a surrogate pair of wide text. Positions count from 1.
// Narrow text is read through the user's code page (code page 1252 when no converter serves
// it); where the arguments mix the forms, characters are counted on the wide reading.
#pragma once

#include <string>
#include <string_view>

#include "modules/mv_format.h"

namespace mv::modules {

// The position of the first occurrence of `sub` in `s` as whole characters (a Big5 character's
// second byte is never found on its own); 0 when there is none or `sub` is empty.
int MV_Pos(std::string_view sub, std::string_view s);
int MV_Pos(std::string_view sub, std::u16string_view s);
int MV_Pos(std::u16string_view sub, std::string_view s);
int MV_Pos(std::u16string_view sub, std::u16string_view s);

// Up to `count` characters of `s` from position `index`. An index below 1 counts as 1 with
// `count` unchanged; an index past the end or a count below 1 gives an empty text.
std::string MV_Copy(std::string_view s, int index, int count);
std::u16string MV_Copy(std::u16string_view s, int index, int count);

// `dest` with `source` inserted before its character `index`, in the form of `dest` (a wide
// source put into narrow text gets "?" for what the code page cannot hold). An index below 1
// inserts at the start, one past the end or more appends.
std::string MV_Insert(std::string_view source, std::string_view dest, int index);
std::string MV_Insert(std::u16string_view source, std::string_view dest, int index);
std::u16string MV_Insert(std::string_view source, std::u16string_view dest, int index);
std::u16string MV_Insert(std::u16string_view source, std::u16string_view dest, int index);

// `s` without `count` characters from position `index` (fewer when the text ends before). An
// index below 1 or past the end, or a count below 1, leaves the text unchanged.
std::string MV_Delete(std::string_view s, int index, int count);
std::u16string MV_Delete(std::u16string_view s, int index, int count);

// The values one after the other as wide text: narrow texts read in the user's code page,
// integers in decimal, floating-point numbers as _MV_FToStr writes them in ffGeneral with 15
// digits.
std::u16string MV_Concat(TFormatArgs values);

// The position of the last character of `s` that is one of the characters of `delimiters`; 0
// when there is none.
int MV_WideLastDelimiter(std::string_view delimiters, std::string_view s);
int MV_WideLastDelimiter(std::u16string_view delimiters, std::u16string_view s);

}  // namespace mv::modules
