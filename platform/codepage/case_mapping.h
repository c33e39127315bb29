// Case mapping of wide text by ICU's language-independent (root) rules, so that the result never
// depends on the machine's locale.
#pragma once

#include <string>
#include <string_view>

namespace mv::codepage {

// The wide text in upper case (full mapping: "ß" becomes "SS"); unpaired surrogates stay as they
// are.
std::u16string UpperCase(std::u16string_view text);

// The wide text in lower case (full mapping); unpaired surrogates stay as they are.
std::u16string LowerCase(std::u16string_view text);

// The simple case folding of one code point ('A' and 'a' both give 'a'); a value that is no code
// point comes back unchanged.
char32_t FoldCase(char32_t c);

}  // namespace mv::codepage
