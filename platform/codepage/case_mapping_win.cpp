// Windows: case mapping through LCMapStringEx with the invariant locale, which maps each UTF-16
// unit to one unit, so the result never depends on the machine's locale.
#include <windows.h>

#include "platform/codepage/case_mapping.h"

namespace mv::codepage {
namespace {

std::u16string Mapped(std::u16string_view text, DWORD flags) {
  std::u16string out(text);
  if (text.empty()) return out;
  // Upper- and lower-casing keep the length, so the output fits in a buffer of the input's size.
  ::LCMapStringEx(LOCALE_NAME_INVARIANT, flags, reinterpret_cast<LPCWSTR>(text.data()),
                  static_cast<int>(text.size()), reinterpret_cast<LPWSTR>(out.data()),
                  static_cast<int>(out.size()), nullptr, nullptr, 0);
  return out;
}

}  // namespace

std::u16string UpperCase(std::u16string_view text) {
  return Mapped(text, LCMAP_UPPERCASE);
}

std::u16string LowerCase(std::u16string_view text) {
  return Mapped(text, LCMAP_LOWERCASE);
}

char32_t FoldCase(char32_t c) {
  if (c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF)) return c;
  std::u16string unit;
  if (c < 0x10000) {
    unit = std::u16string(1, static_cast<char16_t>(c));
  } else {
    const char32_t v = c - 0x10000;
    unit = {static_cast<char16_t>(0xD800 + (v >> 10)), static_cast<char16_t>(0xDC00 + (v & 0x3FF))};
  }
  const std::u16string lower = Mapped(unit, LCMAP_LOWERCASE);
  if (lower.size() == 2) {
    return 0x10000 + ((static_cast<char32_t>(lower[0]) - 0xD800) << 10) +
           (static_cast<char32_t>(lower[1]) - 0xDC00);
  }
  // The final sigma folds as the ordinary sigma.
  return lower[0] == u'\u03C2' ? U'\u03C3' : static_cast<char32_t>(lower[0]);
}

}  // namespace mv::codepage
