// Padding of narrow text (bytes in the user's code page) and wide text (UTF-16) to a width, for
// fixed-width fields and columns.
//
// One rule for every routine here: the width counts the text's storage units, bytes of narrow
// text and UTF-16 units of wide text, so that a padded field has exactly the length a record
// layout gives it (a Big5 character fills two bytes, as it fills two columns of a fixed-pitch
// field). Padding never cuts: a text already as long as the width or longer comes back unchanged,
// and a width below 1 changes nothing.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace mv::modules {

// The text with blanks added on the right / on the left up to `width`.
std::string _MV_PadR(std::string_view s, int width);
std::u16string _MV_PadR(std::u16string_view s, int width);
std::string _MV_PadL(std::string_view s, int width);
std::u16string _MV_PadL(std::u16string_view s, int width);

// The text centred in `width` with blanks on both sides; an odd blank goes to the right.
std::string _MV_PadC(std::string_view s, int width);
std::u16string _MV_PadC(std::u16string_view s, int width);

// The text with the character `c` added on the right / on the left up to `width`.
std::string _MV_PadRChar(std::string_view s, char c, int width);
std::u16string _MV_PadRChar(std::u16string_view s, char16_t c, int width);
std::string _MV_PadLChar(std::string_view s, char c, int width);
std::u16string _MV_PadLChar(std::u16string_view s, char16_t c, int width);

// Pads in place the zero-terminated text held in `buffer` with `c` on the right up to `width`,
// and terminates it again. The text grows no further than the buffer allows (buffer.size() - 1
// units before the terminator). Returns the length of the text afterwards, without the
// terminator; a buffer that holds no terminator is left as it is and gives buffer.size().
size_t _MV_StrRPadChar(std::span<char> buffer, char c, int width);
size_t _MV_StrRPadChar(std::span<char16_t> buffer, char16_t c, int width);

}  // namespace mv::modules
