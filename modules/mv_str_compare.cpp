#include "modules/mv_str_compare.h"

#include <string>

#include "modules/mv_text_units.h"
#include "platform/codepage/case_mapping.h"
#include "platform/codepage/collation.h"

namespace mv::modules {
namespace {

int Compare(std::u16string_view a, std::u16string_view b, bool ignoreCase) {
  size_t i = 0;
  size_t j = 0;
  while (i < a.size() && j < b.size()) {
    char32_t x = detail::CodePointAt(a, i);
    char32_t y = detail::CodePointAt(b, j);
    i += x > 0xFFFF ? 2 : 1;
    j += y > 0xFFFF ? 2 : 1;
    if (ignoreCase) {
      x = codepage::FoldCase(x);
      y = codepage::FoldCase(y);
    }
    if (x != y) return x < y ? -1 : 1;
  }
  if (i < a.size()) return 1;
  return j < b.size() ? -1 : 0;
}

// The texts of one pairing as wide text, without a copy when they are wide already.
std::u16string_view AsWide(std::u16string_view s, std::u16string&) {
  return s;
}
std::u16string_view AsWide(std::string_view s, std::u16string& storage) {
  storage = detail::Widen(s);
  return storage;
}

template <class A, class B>
int CompareAny(A a, B b, bool ignoreCase) {
  std::u16string wa;
  std::u16string wb;
  return Compare(AsWide(a, wa), AsWide(b, wb), ignoreCase);
}

template <class Char>
int Match(std::basic_string_view<Char> a, std::basic_string_view<Char> b) {
  detail::TCharIndex ia = detail::IndexOf(a);
  detail::TCharIndex ib = detail::IndexOf(b);
  size_t n = 0;
  while (n < ia.Count() && n < ib.Count() &&
         a.substr(ia.Offset(n), ia.Length(n)) == b.substr(ib.Offset(n), ib.Length(n))) {
    ++n;
  }
  return static_cast<int>(n);
}

}  // namespace

int MV_WideCompareStr(std::string_view a, std::string_view b) {
  return CompareAny(a, b, false);
}
int MV_WideCompareStr(std::string_view a, std::u16string_view b) {
  return CompareAny(a, b, false);
}
int MV_WideCompareStr(std::u16string_view a, std::string_view b) {
  return CompareAny(a, b, false);
}
int MV_WideCompareStr(std::u16string_view a, std::u16string_view b) {
  return CompareAny(a, b, false);
}

int MV_AnsiCompareText(std::string_view a, std::string_view b) {
  return codepage::CompareTextByLocale(detail::Widen(a), detail::Widen(b));
}
int MV_AnsiCompareText(std::u16string_view a, std::u16string_view b) {
  return codepage::CompareTextByLocale(a, b);
}

int MV_WideCompareText(std::string_view a, std::string_view b) {
  return CompareAny(a, b, true);
}
int MV_WideCompareText(std::string_view a, std::u16string_view b) {
  return CompareAny(a, b, true);
}
int MV_WideCompareText(std::u16string_view a, std::string_view b) {
  return CompareAny(a, b, true);
}
int MV_WideCompareText(std::u16string_view a, std::u16string_view b) {
  return CompareAny(a, b, true);
}

bool MV_WideSameStr(std::string_view a, std::string_view b) {
  return CompareAny(a, b, false) == 0;
}
bool MV_WideSameStr(std::string_view a, std::u16string_view b) {
  return CompareAny(a, b, false) == 0;
}
bool MV_WideSameStr(std::u16string_view a, std::string_view b) {
  return CompareAny(a, b, false) == 0;
}
bool MV_WideSameStr(std::u16string_view a, std::u16string_view b) {
  return CompareAny(a, b, false) == 0;
}

bool MV_WideSameText(std::string_view a, std::string_view b) {
  return CompareAny(a, b, true) == 0;
}
bool MV_WideSameText(std::string_view a, std::u16string_view b) {
  return CompareAny(a, b, true) == 0;
}
bool MV_WideSameText(std::u16string_view a, std::string_view b) {
  return CompareAny(a, b, true) == 0;
}
bool MV_WideSameText(std::u16string_view a, std::u16string_view b) {
  return CompareAny(a, b, true) == 0;
}

int _MV_Match(std::string_view a, std::string_view b) {
  return Match(a, b);
}
int _MV_Match(std::u16string_view a, std::u16string_view b) {
  return Match(a, b);
}

}  // namespace mv::modules
