#include "modules/mv_str_chars.h"

#include <limits>
#include <string>

#include "modules/mv_text_units.h"

namespace mv::modules {
namespace {

bool IsChinese(char32_t c) {
  static constexpr struct {
    char32_t first, last;
  } kBlocks[] = {
      {0x2E80, 0x2FDF},    // radicals
      {0x3000, 0x303F},    // symbols and punctuation
      {0x3100, 0x312F},    // Bopomofo
      {0x31A0, 0x31EF},    // Bopomofo extended, strokes
      {0x3200, 0x4DBF},    // enclosed, compatibility, extension A
      {0x4E00, 0x9FFF},    // unified ideographs
      {0xF900, 0xFAFF},    // compatibility ideographs
      {0xFE30, 0xFE4F},    // compatibility forms
      {0xFF00, 0xFFEF},    // half-width and full-width forms
      {0x20000, 0x3FFFF},  // supplementary ideographic planes
  };
  for (const auto& block : kBlocks) {
    if (c >= block.first && c <= block.last) return true;
  }
  return false;
}

int Digit36(char32_t c) {
  if (c >= '0' && c <= '9') return static_cast<int>(c - '0');
  if (c >= 'A' && c <= 'Z') return static_cast<int>(c - 'A') + 10;
  if (c >= 'a' && c <= 'z') return static_cast<int>(c - 'a') + 10;
  return -1;
}

template <class Char>
int64_t Base36(std::basic_string_view<Char> s) {
  if (s.empty()) return -1;
  int64_t value = 0;
  for (Char c : s) {
    int digit = Digit36(static_cast<std::make_unsigned_t<Char>>(c));
    if (digit < 0 || value > (std::numeric_limits<int64_t>::max() - digit) / 36) return -1;
    value = value * 36 + digit;
  }
  return value;
}

}  // namespace

bool MV_HasChinese(std::string_view s) {
  return !detail::IsAscii(s) && MV_HasChinese(detail::Widen(s));
}

bool MV_HasChinese(std::u16string_view s) {
  bool found = false;
  detail::ForEachChar(s, [&](size_t at, size_t) {
    found = IsChinese(detail::CodePointAt(s, at));
    return !found;
  });
  return found;
}

int64_t MV_Get36(std::string_view s) {
  return Base36(s);
}
int64_t MV_Get36(std::u16string_view s) {
  return Base36(s);
}

}  // namespace mv::modules
