// Fields of the library's delimited keys (message keys, type-list entries) and the trimming of
// the lines of message files.
#pragma once

#include <string>
#include <string_view>

#include "common/frame/string_list.h"

namespace mv {

// Longest stretch SEGX keeps behind a separator before it looks for the next field.
inline constexpr size_t kSegxWindow = 255;

// Field `n` (counted from 1) of `s` split at `sep`: for n < 1 the empty text; for n = 1 the text
// before the first `sep`, or all of `s` when `sep` does not occur; for n > 1 field n - 1 of at
// most 255 characters behind the first `sep` (bytes of narrow text, UTF-16 units of wide text),
// or the empty text when `sep` does not occur. As every step cuts what the step before kept,
// nothing further than 255 characters behind the first separator is reached: such fields come
// out empty or cut. `sep` is a single-byte character; in wide text it matches the UTF-16 unit of
// the same code (use an ASCII separator).
void SEGX(char sep, std::string_view s, int n, std::string& result);
void SEGX(char sep, std::u16string_view s, int n, std::u16string& result);

// The text without blanks and control characters (bytes 0 to 32) at both ends. Never touches a
// byte of a Big5 or GBK double-byte character, whose bytes are all above 32.
std::string_view TrimControls(std::string_view s);

// The lines of `text`, each ending at CR LF, LF or CR (a line end at the very end opens no
// further line), without their line ends.
TStringList SplitLines(std::string_view text);

}  // namespace mv
