#include "modules/mv_str_case.h"

#include "modules/mv_text_units.h"
#include "platform/codepage/case_mapping.h"

namespace mv::modules {
namespace {

bool IsLower(char32_t c) {
  return c >= 'a' && c <= 'z';
}
bool IsUpper(char32_t c) {
  return c >= 'A' && c <= 'Z';
}
bool IsDigit(char32_t c) {
  return c >= '0' && c <= '9';
}

// The title-case rule, fed one character at a time: the new value of a single-unit character.
class TTitleCaser {
 public:
  char32_t Next(char32_t c) {
    bool wordStart = !inWord_;
    inWord_ = IsLower(c) || IsUpper(c) || IsDigit(c) || c == '\'';
    if (wordStart && IsLower(c)) return c - 'a' + 'A';
    if (!wordStart && IsUpper(c)) return c - 'A' + 'a';
    return c;
  }
  // A character of more than one unit: never a letter of a word.
  void Other() { inWord_ = false; }

 private:
  bool inWord_ = false;
};

// `s` with every single-unit character `c` replaced by map(c); longer characters go to other().
template <class Char, class Map, class Other>
std::basic_string<Char> MapUnits(std::basic_string_view<Char> s, Map map, Other other) {
  std::basic_string<Char> out(s);
  detail::ForEachChar(s, [&](size_t at, size_t length) {
    if (length == 1) {
      out[at] = static_cast<Char>(map(static_cast<std::make_unsigned_t<Char>>(s[at])));
    } else {
      other();
    }
    return true;
  });
  return out;
}

template <class Char>
std::basic_string<Char> ChangeCase(std::basic_string_view<Char> s) {
  TTitleCaser caser;
  return MapUnits(
      s, [&](char32_t c) { return caser.Next(c); }, [&] { caser.Other(); });
}

template <class Char>
std::basic_string<Char> ECharUpper(std::basic_string_view<Char> s) {
  return MapUnits(
      s, [](char32_t c) { return IsLower(c) ? c - 'a' + 'A' : c; }, [] {});
}

}  // namespace

std::string _MV_ChangeCase(std::string_view s) {
  return ChangeCase(s);
}
std::u16string _MV_ChangeCase(std::u16string_view s) {
  return ChangeCase(s);
}
std::string _MV_ECharUpperCase(std::string_view s) {
  return ECharUpper(s);
}
std::u16string _MV_ECharUpperCase(std::u16string_view s) {
  return ECharUpper(s);
}

std::u16string MV_WideLowerCase(std::string_view s) {
  return codepage::LowerCase(detail::Widen(s));
}
std::u16string MV_WideLowerCase(std::u16string_view s) {
  return codepage::LowerCase(s);
}
std::u16string MV_WideUpperCase(std::string_view s) {
  return codepage::UpperCase(detail::Widen(s));
}
std::u16string MV_WideUpperCase(std::u16string_view s) {
  return codepage::UpperCase(s);
}

}  // namespace mv::modules
