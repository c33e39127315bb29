#include "modules/mv_strings.h"

#include <algorithm>
#include <vector>

#include "modules/mv_str_case.h"
#include "modules/mv_text_units.h"

namespace mv::modules {
namespace {

template <class Char>
std::basic_string<Char> RTrim(std::basic_string_view<Char> s) {
  size_t end = s.find_last_not_of(Char(' '));
  return end == s.npos ? std::basic_string<Char>() : std::basic_string<Char>(s.substr(0, end + 1));
}

template <class Char>
std::basic_string<Char> LTrim(std::basic_string_view<Char> s) {
  size_t begin = s.find_first_not_of(Char(' '));
  return begin == s.npos ? std::basic_string<Char>() : std::basic_string<Char>(s.substr(begin));
}

// The offsets of the characters of `s` that are the single unit `c`.
template <class Char>
std::vector<size_t> UnitPositions(std::basic_string_view<Char> s, Char c) {
  std::vector<size_t> found;
  detail::ForEachChar(s, [&](size_t at, size_t length) {
    if (length == 1 && s[at] == c) found.push_back(at);
    return true;
  });
  return found;
}

template <class Char>
std::basic_string<Char> LTrimChar(std::basic_string_view<Char> s, Char c) {
  size_t begin = s.size();
  detail::ForEachChar(s, [&](size_t at, size_t length) {
    if (length == 1 && s[at] == c) return true;
    begin = at;
    return false;
  });
  return std::basic_string<Char>(s.substr(begin));
}

template <class Char>
std::basic_string<Char> FillStr(std::basic_string_view<Char> s, Char from, Char to) {
  std::basic_string<Char> out(s);
  for (size_t at : UnitPositions(s, from)) out[at] = to;
  return out;
}

template <class Char>
std::basic_string<Char> UserTitle(std::basic_string_view<Char> text, Char delimiter, int n) {
  if (n < 1) return {};
  std::vector<size_t> cuts = UnitPositions(text, delimiter);
  size_t field = static_cast<size_t>(n) - 1;
  if (field > cuts.size()) return {};
  size_t begin = field == 0 ? 0 : cuts[field - 1] + 1;
  size_t end = field < cuts.size() ? cuts[field] : text.size();
  return std::basic_string<Char>(text.substr(begin, end - begin));
}

template <class Char>
int CompareAsciiText(std::basic_string_view<Char> a, std::basic_string_view<Char> b) {
  using Unit = std::make_unsigned_t<Char>;
  auto upper = [](Char c) {
    auto u = static_cast<Unit>(c);
    return u >= 'a' && u <= 'z' ? static_cast<Unit>(u - 'a' + 'A') : u;
  };
  size_t n = std::min(a.size(), b.size());
  for (size_t i = 0; i < n; ++i) {
    Unit x = upper(a[i]);
    Unit y = upper(b[i]);
    if (x != y) return x < y ? -1 : 1;
  }
  return a.size() == b.size() ? 0 : (a.size() < b.size() ? -1 : 1);
}

}  // namespace

std::string _MV_RTrim(std::string_view s) {
  return RTrim(s);
}
std::u16string _MV_RTrim(std::u16string_view s) {
  return RTrim(s);
}
std::string _MV_LTrim(std::string_view s) {
  return LTrim(s);
}
std::u16string _MV_LTrim(std::u16string_view s) {
  return LTrim(s);
}
std::string _MV_AllTrim(std::string_view s) {
  return LTrim<char>(RTrim(s));
}
std::u16string _MV_AllTrim(std::u16string_view s) {
  return LTrim<char16_t>(RTrim(s));
}

std::string _MV_LTrimChar(std::string_view s, char c) {
  return LTrimChar(s, c);
}
std::u16string _MV_LTrimChar(std::u16string_view s, char16_t c) {
  return LTrimChar(s, c);
}

// A blank is never the second byte of a double-byte character, so bytes can be looked at alone.
bool _MV_NotEmpty(std::string_view s) {
  return s.find_first_not_of(' ') != s.npos;
}
bool _MV_NotEmpty(std::u16string_view s) {
  return s.find_first_not_of(u' ') != s.npos;
}

std::string _MV_FillStr(std::string_view s, char from, char to) {
  return FillStr(s, from, to);
}
std::u16string _MV_FillStr(std::u16string_view s, char16_t from, char16_t to) {
  return FillStr(s, from, to);
}

int MV_CompareText(std::string_view a, std::string_view b) {
  if (detail::IsAscii(a) && detail::IsAscii(b)) return CompareAsciiText(a, b);
  // Only single-byte letters fold: the second byte of a Big5 character is no letter. Strings
  // compare their bytes as unsigned values.
  int order = _MV_ECharUpperCase(a).compare(_MV_ECharUpperCase(b));
  return order == 0 ? 0 : (order < 0 ? -1 : 1);
}

int MV_CompareText(std::u16string_view a, std::u16string_view b) {
  return CompareAsciiText(a, b);
}

bool MV_SameText(std::string_view a, std::string_view b) {
  return a.size() == b.size() && MV_CompareText(a, b) == 0;
}

bool MV_SameText(std::u16string_view a, std::u16string_view b) {
  return a.size() == b.size() && MV_CompareText(a, b) == 0;
}

std::string MV_UserTitle(std::string_view text, char delimiter, int n) {
  return UserTitle(text, delimiter, n);
}

std::u16string MV_UserTitle(std::u16string_view text, char16_t delimiter, int n) {
  return UserTitle(text, delimiter, n);
}

}  // namespace mv::modules
