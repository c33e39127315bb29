#include "platform/codepage/case_mapping.h"

#include <unicode/uchar.h>

#include <algorithm>

namespace mv::codepage {
namespace {

// `text` with every unit replaced by map(unit). A surrogate unit is no code point of its own;
// ICU's simple mappings give it back unchanged, as the platform does.
template <class Map>
std::u16string MapUnits(std::u16string_view text, Map map) {
  std::u16string out(text.size(), u'\0');
  std::transform(text.begin(), text.end(), out.begin(),
                 [&](char16_t c) { return static_cast<char16_t>(map(static_cast<UChar32>(c))); });
  return out;
}

}  // namespace

std::u16string UpperCase(std::u16string_view text) {
  return MapUnits(text, u_toupper);
}

std::u16string LowerCase(std::u16string_view text) {
  return MapUnits(text, u_tolower);
}

char32_t FoldCase(char32_t c) {
  if (c > 0x10FFFF) return c;
  return static_cast<char32_t>(u_foldCase(static_cast<UChar32>(c), U_FOLD_CASE_DEFAULT));
}

}  // namespace mv::codepage
