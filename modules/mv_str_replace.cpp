#include "modules/mv_str_replace.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "modules/mv_text_units.h"
#include "platform/codepage/case_mapping.h"

namespace mv::modules {
namespace {

// Pieces of a text to replace: [begin, end) in storage units, ascending, not overlapping.
using TRanges = std::vector<std::pair<size_t, size_t>>;

// The code points of a wide text, folded when asked, with the unit each starts at.
struct TCodePoints {
  std::vector<char32_t> points;
  std::vector<size_t> starts;
  size_t size = 0;

  TCodePoints(std::u16string_view s, bool fold) : size(s.size()) {
    detail::ForEachChar(s, [&](size_t at, size_t) {
      char32_t c = detail::CodePointAt(s, at);
      points.push_back(fold ? codepage::FoldCase(c) : c);
      starts.push_back(at);
      return true;
    });
  }
  size_t Unit(size_t i) const { return i < starts.size() ? starts[i] : size; }
};

TRanges WideMatches(std::u16string_view s, std::u16string_view old, TReplaceFlags flags) {
  bool fold = (flags & rfIgnoreCase) != 0;
  TCodePoints text(s, fold);
  TCodePoints pattern(old, fold);
  TRanges found;
  if (pattern.points.empty()) return found;
  auto from = text.points.begin();
  while (true) {
    from = std::search(from, text.points.end(), pattern.points.begin(), pattern.points.end());
    if (from == text.points.end()) break;
    size_t first = static_cast<size_t>(from - text.points.begin());
    size_t end = first + pattern.points.size();
    found.emplace_back(text.Unit(first), text.Unit(end));
    if ((flags & rfReplaceAll) == 0) break;
    from = text.points.begin() + static_cast<std::ptrdiff_t>(end);
  }
  return found;
}

TRanges NarrowMatches(std::string_view s, std::string_view old, TReplaceFlags flags) {
  TRanges found;
  if ((flags & rfIgnoreCase) != 0) {
    // Matched on the wide reading, cut from the original bytes so that nothing else changes.
    codepage::TMappedWide mapped = detail::MapToWide(s);
    for (auto [begin, end] : WideMatches(mapped.wide, detail::Widen(old), flags)) {
      auto byte = [&](size_t unit) {
        return unit < mapped.offsets.size() ? mapped.offsets[unit] : s.size();
      };
      found.emplace_back(byte(begin), byte(end));
    }
    return found;
  }
  detail::TCharIndex index = detail::IndexOf(s);
  for (size_t at = detail::FindWhole(s, old, 0, index); at != s.npos;
       at = detail::FindWhole(s, old, at + old.size(), index)) {
    found.emplace_back(at, at + old.size());
    if ((flags & rfReplaceAll) == 0) break;
  }
  return found;
}

template <class Char>
std::basic_string<Char> Splice(std::basic_string_view<Char> s, const TRanges& ranges,
                               std::basic_string_view<Char> by) {
  std::basic_string<Char> out;
  size_t done = 0;
  for (auto [begin, end] : ranges) {
    out.append(s.substr(done, begin - done));
    out.append(by);
    done = end;
  }
  out.append(s.substr(done));
  return out;
}

std::u16string Wide(std::u16string_view s) {
  return std::u16string(s);
}
std::u16string Wide(std::string_view s) {
  return detail::Widen(s);
}

std::u16string ReplaceWide(std::u16string_view s, std::u16string_view old, std::u16string_view by,
                           TReplaceFlags flags) {
  return Splice(s, WideMatches(s, old, flags), by);
}

template <class S, class O, class B>
std::u16string ReplaceMixed(S s, O old, B by, TReplaceFlags flags) {
  return ReplaceWide(Wide(s), Wide(old), Wide(by), flags);
}

}  // namespace

std::string MV_WideStringReplace(std::string_view s, std::string_view old, std::string_view by,
                                 TReplaceFlags flags) {
  return Splice(s, NarrowMatches(s, old, flags), by);
}
std::u16string MV_WideStringReplace(std::string_view s, std::string_view old,
                                    std::u16string_view by, TReplaceFlags flags) {
  return ReplaceMixed(s, old, by, flags);
}
std::u16string MV_WideStringReplace(std::string_view s, std::u16string_view old,
                                    std::string_view by, TReplaceFlags flags) {
  return ReplaceMixed(s, old, by, flags);
}
std::u16string MV_WideStringReplace(std::string_view s, std::u16string_view old,
                                    std::u16string_view by, TReplaceFlags flags) {
  return ReplaceMixed(s, old, by, flags);
}
std::u16string MV_WideStringReplace(std::u16string_view s, std::string_view old,
                                    std::string_view by, TReplaceFlags flags) {
  return ReplaceMixed(s, old, by, flags);
}
std::u16string MV_WideStringReplace(std::u16string_view s, std::string_view old,
                                    std::u16string_view by, TReplaceFlags flags) {
  return ReplaceMixed(s, old, by, flags);
}
std::u16string MV_WideStringReplace(std::u16string_view s, std::u16string_view old,
                                    std::string_view by, TReplaceFlags flags) {
  return ReplaceMixed(s, old, by, flags);
}
std::u16string MV_WideStringReplace(std::u16string_view s, std::u16string_view old,
                                    std::u16string_view by, TReplaceFlags flags) {
  return ReplaceWide(s, old, by, flags);
}

}  // namespace mv::modules
