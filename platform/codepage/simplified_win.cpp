// Windows: Traditional -> Simplified Chinese through LCMapStringEx.
#include <windows.h>

#include "platform/codepage/codepage.h"
#include "platform/codepage/simplified.h"

namespace mv::codepage {

std::u16string ToSimplified(std::u16string_view text) {
  if (text.empty()) return {};
  // The mapping is character for character, so the result keeps the text's length.
  std::u16string out(text.size(), u'\0');
  const int n =
      ::LCMapStringEx(L"zh-CN", LCMAP_SIMPLIFIED_CHINESE, reinterpret_cast<LPCWSTR>(text.data()),
                      static_cast<int>(text.size()), reinterpret_cast<LPWSTR>(out.data()),
                      static_cast<int>(out.size()), nullptr, nullptr, 0);
  if (n <= 0) throw ECodePageError("no Traditional -> Simplified mapping on this system");
  out.resize(static_cast<size_t>(n));
  return out;
}

}  // namespace mv::codepage
