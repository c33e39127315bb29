// Reading the comma-terminated item lists in which grid layouts, sort orders and grid colours
// are stored ("RefNo,1,80,QOrder,,2,").
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace mv {

// Removes the first item of `text` and returns it: the text before the first ",", which goes
// with it; the whole text, leaving `text` empty, when it holds no ",".
std::u16string TakeCommaItem(std::u16string& text);

// The whole number `item` holds (decimal, optional sign, blanks around allowed) when it fits a
// signed 32-bit integer; nothing for any other text, the empty one included.
[[nodiscard]] std::optional<int32_t> WholeNumber(std::u16string_view item);

}  // namespace mv
