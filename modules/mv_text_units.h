// Helpers of the string primitives (not exported as routines): the characters of narrow and
// wide text, and conversion between narrow text in the user's code page and wide text. Narrow
// text is read in code page 1252 when no converter serves the user's code page.
//
// A character is one single- or double-byte character of narrow text, as the user's code page
// reads it (a lone lead byte is a character of its own), or one code point of wide text (a
// surrogate pair is one character; an unpaired surrogate is one character).
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "platform/codepage/narrow_chars.h"

namespace mv::modules::detail {

// The code page narrow text is read in: the user's, or 1252 when no converter serves it.
int ReadingCodePage();

// Wide text of narrow text in the user's code page.
std::u16string Widen(std::string_view s);
// Narrow text in the user's code page of wide text ("?" for what the code page cannot hold).
std::string Narrow(std::u16string_view s);
// Wide text of narrow text in the user's code page, each unit with the byte offset it comes from.
codepage::TMappedWide MapToWide(std::string_view s);

// The characters of a text: where each starts, in storage units (bytes / UTF-16 units).
struct TCharIndex {
  std::vector<size_t> starts;
  size_t size = 0;  // the text's length in storage units

  size_t Count() const { return starts.size(); }
  // The storage offset of character `i` (0-based); the text's end for i >= Count().
  size_t Offset(size_t i) const { return i < starts.size() ? starts[i] : size; }
  size_t Length(size_t i) const { return Offset(i + 1) - Offset(i); }
  // True when a character starts at storage offset `at` or `at` is the end of the text.
  bool IsBoundary(size_t at) const;
};

TCharIndex IndexOf(std::string_view s);
TCharIndex IndexOf(std::u16string_view s);

// A text with its characters.
template <class Char>
struct TChars {
  std::basic_string_view<Char> s;
  TCharIndex index = IndexOf(s);

  size_t Count() const { return index.Count(); }
  // True when character `i` is the single unit `c` (never a byte of a double-byte character).
  bool Is(size_t i, Char c) const { return index.Length(i) == 1 && s[index.Offset(i)] == c; }
  std::basic_string_view<Char> At(size_t i) const {
    return s.substr(index.Offset(i), index.Length(i));
  }
};

// The code point starting at unit `i` of `s` (an unpaired surrogate stands for itself).
char32_t CodePointAt(std::u16string_view s, size_t i);

// The number (from 0) of the character that starts at storage offset `at` (or the count of
// characters before it, when `at` is inside one).
size_t CharNumber(const TCharIndex& index, size_t at);

inline bool IsAscii(std::string_view s) {
  return std::all_of(s.begin(), s.end(),
                     [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

// Calls f(offset, length) for every character of narrow `s` in order, while f returns true.
// Text of bytes below 0x80 needs no look at the code page.
template <class F>
void ForEachChar(std::string_view s, F f) {
  if (IsAscii(s)) {
    for (size_t i = 0; i < s.size(); ++i)
      if (!f(i, size_t{1})) return;
    return;
  }
  // Each character is handed on once the start of the next one is known.
  codepage::TNarrowReader reader(s, ReadingCodePage());
  bool started = false;
  size_t start = 0;
  while (reader.Next()) {
    for (size_t at : reader.Offsets()) {
      if (started && at <= start) continue;
      if (started && !f(start, at - start)) return;
      start = at;
      started = true;
    }
  }
  if (started) f(start, s.size() - start);
}

// Calls f(offset, length) for every code point of wide `s` in order, while f returns true.
template <class F>
void ForEachChar(std::u16string_view s, F f) {
  for (size_t i = 0; i < s.size();) {
    size_t length = CodePointAt(s, i) > 0xFFFF ? 2 : 1;
    if (!f(i, length)) return;
    i += length;
  }
}

// The first occurrence of `sub` in `s` at or after storage offset `from` that begins and ends on
// character boundaries of `index` (so that it never matches the trail byte of a Big5 character or
// half of a surrogate pair); npos when there is none or `sub` is empty.
template <class Char>
size_t FindWhole(std::basic_string_view<Char> s, std::basic_string_view<Char> sub, size_t from,
                 const TCharIndex& index) {
  if (sub.empty()) return std::basic_string_view<Char>::npos;
  for (size_t at = s.find(sub, from); at != s.npos; at = s.find(sub, at + 1)) {
    if (index.IsBoundary(at) && index.IsBoundary(at + sub.size())) return at;
  }
  return s.npos;
}

}  // namespace mv::modules::detail
