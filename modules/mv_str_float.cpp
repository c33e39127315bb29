#include "modules/mv_str_float.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>

namespace mv::modules {
namespace {

constexpr int kMaxDigits = 18;

// |value| >= 0 in one of the standard forms with `precision` (to_chars never looks at the locale).
std::string ToChars(double value, std::chars_format form, int precision) {
  char buffer[400];
  auto result = std::to_chars(buffer, buffer + sizeof buffer, value, form, precision);
  return std::string(buffer, result.ptr);
}

// The mantissa ("1.2345") and decimal exponent of |value| rounded to `fraction` fraction digits.
struct TScientific {
  std::string mantissa;
  int exponent = 0;
};

TScientific Scientific(double value, int fraction) {
  std::string text = ToChars(value, std::chars_format::scientific, fraction);
  size_t e = text.find('e');
  return {text.substr(0, e), std::atoi(text.c_str() + e + 1)};
}

std::string DropTrailingZeros(std::string text) {
  if (text.find('.') == std::string::npos) return text;
  text.erase(text.find_last_not_of('0') + 1);
  if (text.back() == '.') text.pop_back();
  return text;
}

std::string General(double value, int digits) {
  if (value == 0) return "0";
  TScientific sci = Scientific(value, digits - 1);
  if (sci.exponent < -5 || sci.exponent >= digits) {
    return DropTrailingZeros(sci.mantissa) + "E" + std::to_string(sci.exponent);
  }
  return DropTrailingZeros(ToChars(value, std::chars_format::fixed, digits - 1 - sci.exponent));
}

std::string Exponent(double value, int digits) {
  TScientific sci = Scientific(value, digits - 1);
  std::string exponent = std::to_string(std::abs(sci.exponent));
  if (exponent.size() < 3) exponent.insert(0, 3 - exponent.size(), '0');
  return sci.mantissa + "E" + (sci.exponent < 0 ? "-" : "+") + exponent;
}

// prefix + text, written out so that GCC 12 at -O3 does not see a false overlap in
// operator+(const char*, std::string&&).
std::string Prefixed(std::string_view prefix, std::string_view text) {
  std::string out(prefix);
  out.append(text);
  return out;
}

std::string Grouped(std::string fixed) {
  size_t integerEnd = std::min(fixed.find('.'), fixed.size());
  for (size_t at = integerEnd; at > 3; at -= 3) fixed.insert(at - 3, 1, ',');
  return fixed;
}

std::string Unsigned(double value, TFloatFormat format, int digits) {
  switch (format) {
    case ffExponent:
      return Exponent(value, std::clamp(digits, 1, kMaxDigits));
    case ffFixed:
      return ToChars(value, std::chars_format::fixed, std::clamp(digits, 0, kMaxDigits));
    case ffNumber:
      return Grouped(ToChars(value, std::chars_format::fixed, std::clamp(digits, 0, kMaxDigits)));
    case ffCurrency:
      return Prefixed("$", Unsigned(value, ffNumber, digits));
    case ffGeneral:
    default:
      return General(value, std::clamp(digits, 1, kMaxDigits));
  }
}

bool ShowsOnlyZeros(const std::string& text) {
  size_t e = text.find('E');
  return std::none_of(text.begin(), e == std::string::npos ? text.end() : text.begin() + e,
                      [](char c) { return c >= '1' && c <= '9'; });
}

}  // namespace

std::string _MV_FToStr(double value, TFloatFormat format, int digits) {
  if (std::isnan(value)) return "NAN";
  if (std::isinf(value)) return value < 0 ? "-INF" : "INF";
  std::string text = Unsigned(std::fabs(value), format, digits);
  return std::signbit(value) && !ShowsOnlyZeros(text) ? Prefixed("-", text) : text;
}

}  // namespace mv::modules
