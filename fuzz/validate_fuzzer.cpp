// libFuzzer target of the input checks that read outside text: IsTabDelimited over an imported
// line, and ChkFormat (wide and narrow) and ChkFloatFmt_NDotDotXCommaY over a value and a mask.
// The input's first byte holds the "O" set's member and the numbers of the decimal check; the
// rest, as UTF-16 units (two bytes each) and as bytes, is split in two halves: value and mask.
// Besides running clean under the sanitizers, the answers must agree with what the rules imply.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "common/validate/syntax_checks.h"

namespace {

void Expect(bool condition) {
  if (!condition) std::abort();
}

bool Blank(std::u16string_view s) {
  return s.find_first_not_of(u' ') == std::u16string_view::npos;
}

void CheckTabs(std::u16string_view line) {
  const bool answer = mv::IsTabDelimited(line);
  const bool hasTab = line.find(u'\t') != std::u16string_view::npos;
  if (!hasTab) Expect(!answer);
  if (line.find(u'"') == std::u16string_view::npos) Expect(answer == hasTab);
}

void CheckFormats(std::u16string_view units, std::string_view bytes, uint8_t control) {
  const mv::TCharSet others = mv::MakeCharSet(std::string(1, static_cast<char>(control)));
  const std::u16string_view value = units.substr(0, units.size() / 2);
  const std::u16string_view mask = units.substr(units.size() / 2);
  const bool fits = mv::ChkFormat(value, mask, others);
  if (fits) Expect(value.size() == mask.size() && !Blank(value));
  // A mask of "*" only takes every value that is not blank.
  Expect(mv::ChkFormat(value, std::u16string(value.size(), u'*'), others) == !Blank(value));
  mv::ChkFormat(bytes.substr(0, bytes.size() / 2), bytes.substr(bytes.size() / 2), others);

  const int n = control & 0x0F;
  const int x = control >> 4;
  if (mv::ChkFloatFmt_NDotDotXCommaY(value, n, x)) {
    Expect(x <= n && value.size() <= static_cast<size_t>(n) + 1);
    Expect(value.find_first_not_of(u"0123456789.") == std::u16string_view::npos);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size == 0) return 0;
  const uint8_t control = data[0];
  const std::string_view bytes(reinterpret_cast<const char*>(data + 1), size - 1);
  std::u16string units(bytes.size() / 2, u'\0');
  for (size_t i = 0; i < units.size(); ++i)
    units[i] = static_cast<char16_t>(static_cast<uint8_t>(bytes[2 * i]) |
                                     static_cast<uint8_t>(bytes[2 * i + 1]) << 8);
  CheckTabs(units);
  CheckFormats(units, bytes, control);
  return 0;
}
