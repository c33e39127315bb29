// String utilities over narrow text (bytes in the user's code page). They forward to the
// primitives of the modules package.
#pragma once

#include <string>
#include <string_view>

namespace mv {

// The text without leading and trailing blanks (spaces).
std::string AllTrim(std::string_view s);
// The text padded on the left with blanks to `n` characters; a longer text is not cut.
std::string PadL(std::string_view s, int n);
// The text with every `from` character replaced by `to`.
std::string FillStr(std::string_view s, char from, char to);

}  // namespace mv
