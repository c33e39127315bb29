#include "platform/ini/ini_numbers_p.h"

#include <charconv>
#include <system_error>

namespace mv::ini::detail {
namespace {

int DigitValue(char c, int base) {
  int d = -1;
  if (c >= '0' && c <= '9') {
    d = c - '0';
  } else if (c >= 'a' && c <= 'f') {
    d = c - 'a' + 10;
  } else if (c >= 'A' && c <= 'F') {
    d = c - 'A' + 10;
  }
  return d < base ? d : -1;
}

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

// Skips a run of decimal digits from `i`; returns how many there were.
size_t SkipDigits(std::string_view s, size_t& i) {
  size_t start = i;
  while (i < s.size() && IsDigit(s[i])) ++i;
  return i - start;
}

}  // namespace

std::optional<int32_t> ParseInteger(std::string_view text) {
  size_t i = 0;
  bool negative = false;
  if (i < text.size() && (text[i] == '+' || text[i] == '-')) {
    negative = text[i] == '-';
    ++i;
  }
  int base = 10;
  if (i < text.size() && text[i] == '$') {
    base = 16;
    i += 1;
  } else if (i + 1 < text.size() && text[i] == '0' && (text[i + 1] == 'x' || text[i + 1] == 'X')) {
    base = 16;
    i += 2;
  }
  if (i == text.size()) return std::nullopt;
  // Hexadecimal is a 32-bit pattern; decimal is a value of a signed 32-bit integer.
  const uint64_t limit = base == 16 ? 0xFFFFFFFFu : (negative ? 0x80000000u : 0x7FFFFFFFu);
  uint64_t value = 0;
  for (; i < text.size(); ++i) {
    int digit = DigitValue(text[i], base);
    if (digit < 0) return std::nullopt;
    value = value * static_cast<uint64_t>(base) + static_cast<uint64_t>(digit);
    if (value > limit) return std::nullopt;
  }
  uint32_t bits = static_cast<uint32_t>(value);
  if (negative) bits = 0u - bits;
  return static_cast<int32_t>(bits);
}

std::optional<double> ParseFloat(std::string_view text) {
  // Check the form first: from_chars alone would take "inf", "nan" and stop at the first odd
  // character; and it does not take a leading "+".
  size_t i = 0;
  if (i < text.size() && (text[i] == '+' || text[i] == '-')) ++i;
  size_t digits = SkipDigits(text, i);
  if (i < text.size() && text[i] == '.') {
    ++i;
    digits += SkipDigits(text, i);
  }
  if (digits == 0) return std::nullopt;
  if (i < text.size() && (text[i] == 'e' || text[i] == 'E')) {
    ++i;
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) ++i;
    if (SkipDigits(text, i) == 0) return std::nullopt;
  }
  if (i != text.size()) return std::nullopt;

  if (text.front() == '+') text.remove_prefix(1);
  double value = 0;
  auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (ec != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return value;
}

}  // namespace mv::ini::detail
