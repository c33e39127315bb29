// libFuzzer target of the input checks that read outside text: IsTabDelimited over an imported
// line, ChkFormat (wide and narrow) over a value and a mask, and the decimal format check. The
// first byte holds the "O" set's member and the decimal check's digits; the rest, read as UTF-16
// units (two bytes each) and as bytes, is split into value and mask halves. Besides running clean
// under the sanitizers, the answers must agree with what the rules imply; a decimal value of
// digits and points must get the answer of the rule's own steps: pad it with nines, then try
// every mask with ChkFormat.
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>

#include "common/validate/syntax_checks.h"

namespace {

void Expect(bool condition) {
  if (!condition) std::abort();
}

bool FloatByMasks(std::u16string s, int n, int x) {
  const size_t width = static_cast<size_t>(s.find(u'.') != std::u16string::npos ? n + 1 : n);
  if (s.size() < width) s.insert(0, width - s.size(), u'9');
  for (int d = 0; d <= x; ++d) {
    std::u16string mask(static_cast<size_t>(n - d), u'9');
    if (d > 0) mask += u"." + std::u16string(static_cast<size_t>(d), u'9');
    if (mv::ChkFormat(s, mask, mv::TCharSet())) return true;
  }
  return false;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size == 0) return 0;
  const std::string bytes(reinterpret_cast<const char*>(data + 1), size - 1);
  std::u16string units(bytes.size() / 2, u'\0');
  std::memcpy(units.data(), bytes.data(), units.size() * 2);
  const bool hasTab = units.find(u'\t') != std::u16string::npos;
  const bool tabbed = mv::IsTabDelimited(units);
  Expect(hasTab || !tabbed);
  Expect(units.find(u'"') != std::u16string::npos || tabbed == hasTab);

  const mv::TCharSet others = mv::MakeCharSet(std::string(1, static_cast<char>(data[0])));
  const std::u16string value = units.substr(0, units.size() / 2);
  const bool blank = value.find_first_not_of(u' ') == std::u16string::npos;
  Expect(!mv::ChkFormat(value, units.substr(value.size()), others) ||
         (value.size() * 2 == units.size() && !blank));
  Expect(mv::ChkFormat(value, std::u16string(value.size(), u'*'), others) == !blank);
  mv::ChkFormat(bytes.substr(0, bytes.size() / 2), bytes.substr(bytes.size() / 2), others);

  const int n = data[0] & 0x0F, x = data[0] >> 4;
  const bool number = mv::ChkFloatFmt_NDotDotXCommaY(value, n, x);
  if (value.find_first_not_of(u"0123456789.") == std::u16string::npos && x <= n)
    Expect(number == (value.find_first_of(u"0123456789") != std::u16string::npos &&
                      FloatByMasks(value, n, x)));
  Expect(!number || value.find_first_not_of(u"0123456789.") == std::u16string::npos);
  return 0;
}
