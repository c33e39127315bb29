// Feeds arbitrary bytes to the code-page conversions. The first byte picks the code page; the rest
// is converted as narrow text to wide and back, read as UTF-16 and converted to narrow text,
// checked for mappability (a mappable text must come back unchanged), and, under Big5, made
// Simplified and converted to GBK.
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <string>
#include <string_view>

#include "platform/codepage/codepage.h"
#include "platform/codepage/simplified.h"

namespace {

constexpr int kCodePages[] = {950,  936,  932,  949,  874,  1250,  1251,  1252,  1253,
                              1254, 1255, 1256, 1257, 1258, 20127, 28591, 54936, 65001};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size == 0) return 0;
  const int codePage = kCodePages[data[0] % std::size(kCodePages)];
  std::string_view narrow(reinterpret_cast<const char*>(data + 1), size - 1);

  std::u16string wide = mv::codepage::ToWide(narrow, codePage);
  // Best fit or not, no character takes more than four bytes of any code page.
  if (mv::codepage::FromWide(wide, codePage).size() > 4 * wide.size()) __builtin_trap();

  // The same bytes as UTF-16 (unpaired surrogates included), the odd last byte dropped.
  std::u16string units(narrow.size() / 2, u'\0');
  std::memcpy(units.data(), narrow.data(), units.size() * 2);
  std::string unitsNarrow = mv::codepage::FromWide(units, codePage);
  bool mappable = mv::codepage::IsMappable(units, codePage);
  // A mappable text converts through exact mappings only, so it comes back as itself.
  if (mappable && mv::codepage::ToWide(unitsNarrow, codePage) != units) __builtin_trap();
  if (codePage == 950) mv::codepage::Big5ToGbk(narrow);
  return 0;
}
