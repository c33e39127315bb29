#include "modules/mv_text_units.h"

#include <algorithm>

#include "platform/codepage/codepage.h"

namespace mv::modules::detail {
namespace {

bool IsHighSurrogate(char16_t c) {
  return c >= 0xD800 && c <= 0xDBFF;
}
bool IsLowSurrogate(char16_t c) {
  return c >= 0xDC00 && c <= 0xDFFF;
}

}  // namespace

// The string primitives report no errors: a wrong MV_CODEPAGE must not make them throw.
int ReadingCodePage() {
  int codePage = codepage::UserCodePage();
  return !codepage::IsKnownCodePage(codePage) ? codepage::kWestern : codePage;
}

std::u16string Widen(std::string_view s) {
  return codepage::ToWide(s, ReadingCodePage());
}

std::string Narrow(std::u16string_view s) {
  return codepage::FromWide(s, ReadingCodePage());
}

codepage::TMappedWide MapToWide(std::string_view s) {
  return codepage::ToWideMapped(s, ReadingCodePage());
}

bool TCharIndex::IsBoundary(size_t at) const {
  return at == size || std::binary_search(starts.begin(), starts.end(), at);
}

TCharIndex IndexOf(std::string_view s) {
  return {codepage::CharStarts(s, ReadingCodePage()), s.size()};
}

TCharIndex IndexOf(std::u16string_view s) {
  TCharIndex index{{}, s.size()};
  index.starts.reserve(s.size());
  ForEachChar(s, [&](size_t at, size_t) {
    index.starts.push_back(at);
    return true;
  });
  return index;
}

char32_t CodePointAt(std::u16string_view s, size_t i) {
  char16_t c = s[i];
  if (IsHighSurrogate(c) && i + 1 < s.size() && IsLowSurrogate(s[i + 1])) {
    return 0x10000 + ((static_cast<char32_t>(c) - 0xD800) << 10) + (s[i + 1] - 0xDC00);
  }
  return c;
}

size_t CharNumber(const TCharIndex& index, size_t at) {
  return static_cast<size_t>(std::lower_bound(index.starts.begin(), index.starts.end(), at) -
                             index.starts.begin());
}

}  // namespace mv::modules::detail
