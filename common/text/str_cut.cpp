#include "common/text/str_cut.h"

#include "common/text/conversions.h"

namespace mv {
namespace {

// The part of `s` that a copy from position `start` (counted from 1) of `count` characters
// yields: a start before 1 becomes 1, the count ends at the text's end, and a start past the end
// or a count of 0 or less gives nothing.
template <typename View>
View Copy(View s, long long start, long long count) {
  if (start < 1) start = 1;
  const auto length = static_cast<long long>(s.size());
  if (count <= 0 || start > length) return View();
  return s.substr(static_cast<size_t>(start - 1), static_cast<size_t>(count));
}

}  // namespace

TCharSet MakeCharSet(std::string_view members) {
  TCharSet set;
  for (char c : members) set.set(static_cast<unsigned char>(c));
  return set;
}

std::string Left(std::string_view s, int n) {
  return std::string(Copy(s, 1, n));
}

std::u16string StrLeft(std::u16string_view s, int n) {
  const std::u16string text = MV_WideVcToWideString(s);
  return MV_SetWideVc(Copy(std::u16string_view(text), 1, n));
}

std::string Right(std::string_view s, int n) {
  const auto length = static_cast<long long>(s.size());
  return std::string(Copy(s, length - n + 1, n));
}

std::u16string StrRight(std::u16string_view s, int n) {
  const std::u16string text = MV_WideVcToWideString(s);
  const auto length = static_cast<long long>(text.size());
  return MV_SetWideVc(Copy(std::u16string_view(text), length - n + 1, n));
}

std::string Strip(std::string_view s, const TCharSet& set) {
  std::string out;
  out.reserve(s.size());
  for (char c : s) {
    if (!set.test(static_cast<unsigned char>(c))) out += c;
  }
  return out;
}

void MovePChar(int n, const char*& p, std::string& out) {
  if (n <= 0) {
    out.clear();
    return;
  }
  out.assign(p, static_cast<size_t>(n));
  p += n;
}

}  // namespace mv
