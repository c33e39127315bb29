// The number forms of configuration values. Both read text that has already lost its blanks and
// quotes; anything outside the form gives nothing, and the caller falls back to its default.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace mv::ini::detail {

// An optional sign, an optional hexadecimal prefix ("0x", "0X" or "$"), then one or more digits
// of that base and nothing else. Decimal must fit a signed 32-bit integer; hexadecimal may take
// all 32 bits ("$FFFFFFFF" is -1). Blanks, other characters and overflow give nothing.
std::optional<int32_t> ParseInteger(std::string_view text);

// An optional sign, digits with "." as the decimal point (at least one digit), an optional
// exponent ("e" or "E", optional sign, digits). The C locale plays no part. Text outside that
// form, and values beyond the range of double, give nothing.
std::optional<double> ParseFloat(std::string_view text);

}  // namespace mv::ini::detail
