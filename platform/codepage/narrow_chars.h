// Where the characters of narrow text lie: which bytes of a Big5 (or other multi-byte code page)
// text belong together. The code page's ICU converter decides; there are no tables of our own.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace mv::codepage {

// Wide text read from narrow text, with the narrow character each UTF-16 unit comes from.
struct TMappedWide {
  std::u16string wide;
  // For every unit of `wide`, the byte offset in the narrow text of the character it comes from
  // (both units of a surrogate pair carry the same offset).
  std::vector<int32_t> offsets;
};

// The wide text of narrow `text` in `codePage`, mapped unit by unit to the narrow characters.
// Bytes that start no valid character become U+FFFD, one per byte that ICU rejects.
// Throws ECodePageError for an unknown code page.
TMappedWide ToWideMapped(std::string_view text, int codePage);

// The byte offsets, ascending and starting with 0, at which the characters of narrow `text` in
// `codePage` start; empty for an empty text. A byte that starts no valid character (a lone lead
// byte) is a character of its own. Text of bytes below 0x80 only is answered without ICU.
// Throws ECodePageError for an unknown code page.
std::vector<size_t> CharStarts(std::string_view text, int codePage);

}  // namespace mv::codepage
