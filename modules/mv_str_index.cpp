#include "modules/mv_str_index.h"

#include <algorithm>

#include "modules/mv_str_float.h"
#include "modules/mv_text_units.h"

namespace mv::modules {
namespace {

template <class Char>
using TText = std::basic_string<Char>;
template <class Char>
using TView = std::basic_string_view<Char>;

// Character `i` (from 0) of a text with `count` characters, held to 0..count.
size_t Clamp(int i, size_t count) {
  return static_cast<size_t>(std::clamp<int64_t>(i, 0, static_cast<int64_t>(count)));
}

template <class Char>
int Pos(TView<Char> sub, TView<Char> s) {
  detail::TCharIndex index = detail::IndexOf(s);
  size_t at = detail::FindWhole(s, sub, 0, index);
  return at == s.npos ? 0 : static_cast<int>(detail::CharNumber(index, at)) + 1;
}

template <class Char>
TText<Char> Copy(TView<Char> s, int index, int count) {
  detail::TCharIndex chars = detail::IndexOf(s);
  if (count < 1 || index > static_cast<int64_t>(chars.Count())) return {};
  size_t first = Clamp(index - 1, chars.Count());
  size_t end = first + std::min<size_t>(static_cast<size_t>(count), chars.Count() - first);
  return TText<Char>(s.substr(chars.Offset(first), chars.Offset(end) - chars.Offset(first)));
}

template <class Char>
TText<Char> Insert(TView<Char> source, TView<Char> dest, int index) {
  detail::TCharIndex chars = detail::IndexOf(dest);
  size_t at = chars.Offset(Clamp(index - 1, chars.Count()));
  TText<Char> out(dest.substr(0, at));
  out.append(source);
  out.append(dest.substr(at));
  return out;
}

template <class Char>
TText<Char> Delete(TView<Char> s, int index, int count) {
  detail::TCharIndex chars = detail::IndexOf(s);
  if (index < 1 || index > static_cast<int64_t>(chars.Count()) || count < 1) return TText<Char>(s);
  size_t first = static_cast<size_t>(index - 1);
  size_t end = std::min<size_t>(first + static_cast<size_t>(count), chars.Count());
  TText<Char> out(s);
  out.erase(chars.Offset(first), chars.Offset(end) - chars.Offset(first));
  return out;
}

template <class Char>
int LastDelimiter(TView<Char> delimiters, TView<Char> s) {
  detail::TChars<Char> chars{s};
  detail::TChars<Char> set{delimiters};
  for (size_t i = chars.Count(); i > 0; --i) {
    for (size_t d = 0; d < set.Count(); ++d) {
      if (chars.At(i - 1) == set.At(d)) return static_cast<int>(i);
    }
  }
  return 0;
}

std::u16string Ascii(const std::string& text) {
  return std::u16string(text.begin(), text.end());
}

std::u16string ValueText(const TFormatArg& value) {
  if (auto* i = std::get_if<int64_t>(&value)) return Ascii(std::to_string(*i));
  if (auto* d = std::get_if<double>(&value)) return Ascii(_MV_FToStr(*d, ffGeneral, 15));
  if (auto* s = std::get_if<std::string>(&value)) return detail::Widen(*s);
  return std::get<std::u16string>(value);
}

}  // namespace

int MV_Pos(std::string_view sub, std::string_view s) {
  return Pos(sub, s);
}
int MV_Pos(std::string_view sub, std::u16string_view s) {
  return Pos<char16_t>(detail::Widen(sub), s);
}
int MV_Pos(std::u16string_view sub, std::string_view s) {
  return Pos<char16_t>(sub, detail::Widen(s));
}
int MV_Pos(std::u16string_view sub, std::u16string_view s) {
  return Pos(sub, s);
}

std::string MV_Copy(std::string_view s, int index, int count) {
  return Copy(s, index, count);
}
std::u16string MV_Copy(std::u16string_view s, int index, int count) {
  return Copy(s, index, count);
}

std::string MV_Insert(std::string_view source, std::string_view dest, int index) {
  return Insert(source, dest, index);
}
std::string MV_Insert(std::u16string_view source, std::string_view dest, int index) {
  return Insert<char>(detail::Narrow(source), dest, index);
}
std::u16string MV_Insert(std::string_view source, std::u16string_view dest, int index) {
  return Insert<char16_t>(detail::Widen(source), dest, index);
}
std::u16string MV_Insert(std::u16string_view source, std::u16string_view dest, int index) {
  return Insert(source, dest, index);
}

std::string MV_Delete(std::string_view s, int index, int count) {
  return Delete(s, index, count);
}
std::u16string MV_Delete(std::u16string_view s, int index, int count) {
  return Delete(s, index, count);
}

std::u16string MV_Concat(TFormatArgs values) {
  std::u16string out;
  for (const TFormatArg& value : values) out += ValueText(value);
  return out;
}

int MV_WideLastDelimiter(std::string_view delimiters, std::string_view s) {
  return LastDelimiter(delimiters, s);
}
int MV_WideLastDelimiter(std::u16string_view delimiters, std::u16string_view s) {
  return LastDelimiter(delimiters, s);
}

}  // namespace mv::modules
