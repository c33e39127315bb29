#include "platform/codepage/narrow_chars.h"

#include <algorithm>
#include <numeric>

namespace mv::codepage {
namespace {

bool IsAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(),
                     [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

}  // namespace

TMappedWide ToWideMapped(std::string_view text, int codePage) {
  TMappedWide out;
  if (text.empty()) return out;
  out.wide.reserve(text.size());
  out.offsets.reserve(text.size());
  TNarrowReader reader(text, codePage);
  while (reader.Next()) {
    out.wide.append(reader.Units().begin(), reader.Units().end());
    out.offsets.insert(out.offsets.end(), reader.Offsets().begin(), reader.Offsets().end());
  }
  return out;
}

std::vector<size_t> CharStarts(std::string_view text, int codePage) {
  std::vector<size_t> starts;
  if (IsAscii(text)) {
    starts.resize(text.size());
    std::iota(starts.begin(), starts.end(), size_t{0});
    return starts;
  }
  TNarrowReader reader(text, codePage);
  while (reader.Next()) {
    for (size_t at : reader.Offsets()) {
      if (starts.empty() || at > starts.back()) starts.push_back(at);
    }
  }
  return starts;
}

}  // namespace mv::codepage
