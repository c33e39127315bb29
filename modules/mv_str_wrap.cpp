#include "modules/mv_str_wrap.h"

#include <vector>

#include "modules/mv_text_units.h"

namespace mv::modules {
namespace {

// The storage offsets at which the break text goes.
template <class Char>
std::vector<size_t> BreakPoints(std::basic_string_view<Char> s,
                                std::basic_string_view<Char> breakChars, size_t maxCol) {
  detail::TChars<Char> chars{s};
  auto isBreak = [&](size_t i) {
    return chars.index.Length(i) == 1 &&
           breakChars.find(s[chars.index.Offset(i)]) != breakChars.npos;
  };
  std::vector<size_t> points;
  size_t column = 0;
  constexpr size_t kNone = static_cast<size_t>(-1);
  size_t lastBreak = kNone;  // the last break character of the line so far
  for (size_t i = 0; i < chars.Count(); ++i) {
    if (chars.Is(i, Char('\r')) || chars.Is(i, Char('\n'))) {
      column = 0;
      lastBreak = kNone;
      continue;
    }
    if (++column > maxCol && lastBreak != kNone) {
      points.push_back(chars.index.Offset(lastBreak + 1));
      column = i - lastBreak;
      lastBreak = kNone;
    }
    if (isBreak(i)) lastBreak = i;
  }
  return points;
}

template <class Char>
std::basic_string<Char> Wrap(std::basic_string_view<Char> s, std::basic_string_view<Char> breakText,
                             std::basic_string_view<Char> breakChars, int maxCol) {
  if (maxCol < 1) return std::basic_string<Char>(s);
  std::basic_string<Char> out;
  size_t done = 0;
  for (size_t at : BreakPoints(s, breakChars, static_cast<size_t>(maxCol))) {
    out.append(s.substr(done, at - done));
    out.append(breakText);
    done = at;
  }
  out.append(s.substr(done));
  return out;
}

}  // namespace

std::string MV_WideWrapText(std::string_view s, std::string_view breakText,
                            std::string_view breakChars, int maxCol) {
  return Wrap(s, breakText, breakChars, maxCol);
}

std::u16string MV_WideWrapText(std::u16string_view s, std::u16string_view breakText,
                               std::u16string_view breakChars, int maxCol) {
  return Wrap(s, breakText, breakChars, maxCol);
}

std::string MV_WideWrapText(std::string_view s, int maxCol) {
  return Wrap<char>(s, "\r\n", " -\t", maxCol);
}

std::u16string MV_WideWrapText(std::u16string_view s, int maxCol) {
  return Wrap<char16_t>(s, u"\r\n", u" -\t", maxCol);
}

}  // namespace mv::modules
