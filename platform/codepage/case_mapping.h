// Case mapping of wide text by language-independent rules (POSIX: ICU's root rules; Windows:
// LCMapStringEx with the invariant locale), so that the result never depends on the machine's
// locale.
#pragma once

#include <string>
#include <string_view>

namespace mv::codepage {

// The wide text in upper case, UTF-16 unit by unit with the simple case mapping (u_toupper), as
// the platform's wide upper-casing maps it: the text keeps its length, "ß" and "ﬁ" (whose upper
// case is more than one character) stay as they are, and so do surrogates.
[[nodiscard]] std::u16string UpperCase(std::u16string_view text);

// The wide text in lower case, unit by unit with the simple case mapping (u_tolower); the text
// keeps its length and surrogates stay as they are.
[[nodiscard]] std::u16string LowerCase(std::u16string_view text);

// The simple case folding of one code point ('A' and 'a' both give 'a'); a value that is no code
// point comes back unchanged.
[[nodiscard]] char32_t FoldCase(char32_t c);

}  // namespace mv::codepage
