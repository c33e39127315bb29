// The Windows conversion calls behind codepage_win.cpp and narrow_chars_win.cpp. Private to
// platform/codepage.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace mv::codepage::detail {

// Throws ECodePageError unless the system has code page `codePage`.
void CheckCodePage(int codePage);

// The largest number of bytes one character of `codePage` takes (1 for single-byte code pages).
size_t MaxCharBytes(int codePage);

// One character read from the front of narrow `text` (not empty) in `codePage`: its wide units
// and how many bytes it took. Bytes that start no valid character give U+FFFD for one byte, as
// ICU's substitution does, so the bytes after it are read afresh.
struct TDecodedChar {
  std::u16string units;
  size_t bytes = 1;
};
TDecodedChar DecodeOneChar(std::string_view text, int codePage);

}  // namespace mv::codepage::detail
