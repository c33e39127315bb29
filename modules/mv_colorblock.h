// Colour marks in texts. A text may colour a stretch of itself for display:
//   "Status: <color=red>Error</color> (see log)"
// An opening mark is "<color=" + a value + ">", the value being one or more ASCII letters, digits,
// "#" or "$" (a colour name, "#RRGGBB", "$BBGGRR" or a number); a closing mark is "</color>".
// "color" is matched without regard to ASCII case. Marks need not pair up or nest properly;
// anything else, a lone "<" among them, is ordinary text.
#pragma once

#include <string>
#include <string_view>

namespace mv::modules {

// The narrow text (bytes in the user's code page) without its colour marks, the marked stretches
// kept. Safe for double-byte code pages such as Big5 and GBK and for UTF-8: "<" never occurs
// inside a multi-byte character of them, so a mark is only found where one really begins.
std::string MV_RemoveColorBlock(std::string_view text);

// The same for wide (UTF-16) text.
std::u16string MV_RemoveColorBlock(std::u16string_view text);

}  // namespace mv::modules
