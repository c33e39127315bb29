// Formatting with a typed argument list, printf-like, as the classic toolkit's Format does:
//
//   "%" [index ":"] ["-"] [width] ["." precision] conversion
//
// - conversion (either case): "s" a text, precision = the most characters taken;
//   "d" a signed, "u" an unsigned decimal integer, "x" an upper-case hexadecimal integer,
//   precision = the fewest digits (zeros in front); "u" and "x" read a negative number as its
//   64-bit two's complement;
//   "g", "e", "f", "n", "m" a floating-point number (an integer is accepted too), written as
//   _MV_FToStr writes it in ffGeneral, ffExponent, ffFixed, ffNumber, ffCurrency with the
//   precision as its digits (default 15 for "g" and "e", 2 for "f", "n" and "m");
//   "%%" gives "%".
// - width: the fewest characters of the field, blanks in front, or behind it after "-".
// - index: the conversion takes the argument with that number, counted from 0 ("%1:s" takes the
//   second); a conversion without an index takes the argument after the one taken last.
// Width and precision count characters: a Big5 double-byte character of narrow text is one.
// Narrow texts are read in the user's code page, or code page 1252 when no converter serves it.
// Arguments that no conversion takes are ignored.
#pragma once

#include <cstdint>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>

namespace mv::modules {

// One argument: an integer, a floating-point number, a narrow text or a wide text.
using TFormatArg = std::variant<int64_t, double, std::string, std::u16string>;
using TFormatArgs = std::span<const TFormatArg>;

// Raised for a format text that cannot be filled: an unknown conversion, a "%" at the end, a
// missing argument, an argument of the wrong kind (a text for a number, a floating-point number
// for "d", "u" or "x", a number for "s"), or a width, precision or index above 65535. The message
// names the position (counted from 1) of the "%" that failed.
class EFormatError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// The narrow format text filled with `args` (wide texts are converted to the user's code page).
// Throws EFormatError for a bad format text.
std::string MV_WideFmtStr(std::string_view format, TFormatArgs args);
// The wide format text filled with `args` (narrow texts are converted from the user's code page).
// Throws EFormatError for a bad format text.
std::u16string MV_WideFormat(std::u16string_view format, TFormatArgs args);

}  // namespace mv::modules
