// Comparison of texts in either form: narrow text (bytes in the user's code page, or code page
// 1252 when no converter serves it) is first read as wide text, so a Big5 text and its UTF-16 twin
// compare equal. Texts compare code point by code point in Unicode order; "Text" routines first
// fold each code point's case by the Unicode simple case folding ("A" and "a", "Σ" and "σ",
// full-width "Ａ" and "ａ" are the same).
#pragma once

#include <string_view>

namespace mv::modules {

// Case-sensitive order of two texts: -1, 0 or 1.
int MV_WideCompareStr(std::string_view a, std::string_view b);
int MV_WideCompareStr(std::string_view a, std::u16string_view b);
int MV_WideCompareStr(std::u16string_view a, std::string_view b);
int MV_WideCompareStr(std::u16string_view a, std::u16string_view b);

// Order of two texts without regard to case: -1, 0 or 1.
int MV_WideCompareText(std::string_view a, std::string_view b);
int MV_WideCompareText(std::string_view a, std::u16string_view b);
int MV_WideCompareText(std::u16string_view a, std::string_view b);
int MV_WideCompareText(std::u16string_view a, std::u16string_view b);

// Order of two texts as the user's language sorts them, without regard to case
// (codepage::CompareTextByLocale): -1, 0 or 1. Punctuation and symbols come before digits and
// digits before letters, so the lines "1=a", "10=b", "2=c" are in order. The order of every sorted
// string list.
[[nodiscard]] int MV_AnsiCompareText(std::string_view a, std::string_view b);
[[nodiscard]] int MV_AnsiCompareText(std::u16string_view a, std::u16string_view b);

// True when the two texts are equal, case counting.
bool MV_WideSameStr(std::string_view a, std::string_view b);
bool MV_WideSameStr(std::string_view a, std::u16string_view b);
bool MV_WideSameStr(std::u16string_view a, std::string_view b);
bool MV_WideSameStr(std::u16string_view a, std::u16string_view b);

// True when the two texts are equal without regard to case.
bool MV_WideSameText(std::string_view a, std::string_view b);
bool MV_WideSameText(std::string_view a, std::u16string_view b);
bool MV_WideSameText(std::u16string_view a, std::string_view b);
bool MV_WideSameText(std::u16string_view a, std::u16string_view b);

// The number of characters at the start of `a` and `b` that are the same, case counting, both
// texts in the same form: "abcd" and "abxy" give 2, texts without a common start 0. A Big5
// character of narrow text is one character and matches only as a whole.
int _MV_Match(std::string_view a, std::string_view b);
int _MV_Match(std::u16string_view a, std::u16string_view b);

}  // namespace mv::modules
