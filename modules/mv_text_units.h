// Helpers of the string primitives (not exported as routines): the characters of narrow and
// wide text, and conversion between narrow text in the user's code page and wide text.
//
// A character is one single- or double-byte character of narrow text, as the user's code page
// reads it (a lone lead byte is a character of its own), or one code point of wide text (a
// surrogate pair is one character; an unpaired surrogate is one character).
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace mv::modules::detail {

// Wide text of narrow text in the user's code page.
std::u16string Widen(std::string_view s);
// Narrow text in the user's code page of wide text ("?" for what the code page cannot hold).
std::string Narrow(std::u16string_view s);

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

// The code point starting at unit `i` of `s` (an unpaired surrogate stands for itself).
char32_t CodePointAt(std::u16string_view s, size_t i);

}  // namespace mv::modules::detail
