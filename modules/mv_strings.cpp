#include "modules/mv_strings.h"

#include <algorithm>

namespace mv::modules {

std::string _MV_RTrim(std::string_view s) {
  size_t end = s.find_last_not_of(' ');
  return end == std::string_view::npos ? std::string() : std::string(s.substr(0, end + 1));
}

std::string _MV_LTrim(std::string_view s) {
  size_t begin = s.find_first_not_of(' ');
  return begin == std::string_view::npos ? std::string() : std::string(s.substr(begin));
}

std::string _MV_AllTrim(std::string_view s) {
  return _MV_LTrim(_MV_RTrim(s));
}

std::string _MV_PadL(std::string_view s, int width) {
  std::string out(s);
  if (width > 0 && out.size() < static_cast<size_t>(width)) {
    out.insert(0, static_cast<size_t>(width) - out.size(), ' ');
  }
  return out;
}

std::string _MV_FillStr(std::string_view s, char from, char to) {
  std::string out(s);
  std::replace(out.begin(), out.end(), from, to);
  return out;
}

int MV_CompareText(std::string_view a, std::string_view b) {
  auto upper = [](unsigned char c) { return c >= 'a' && c <= 'z' ? c - 'a' + 'A' : c; };
  size_t n = std::min(a.size(), b.size());
  for (size_t i = 0; i < n; ++i) {
    int x = upper(static_cast<unsigned char>(a[i]));
    int y = upper(static_cast<unsigned char>(b[i]));
    if (x != y) return x < y ? -1 : 1;
  }
  return a.size() == b.size() ? 0 : (a.size() < b.size() ? -1 : 1);
}

bool MV_SameText(std::string_view a, std::string_view b) {
  return a.size() == b.size() && MV_CompareText(a, b) == 0;
}

std::string MV_UserTitle(std::string_view text, char delimiter, int n) {
  if (n < 1) return {};
  size_t begin = 0;
  for (int field = 1; field < n; ++field) {
    size_t pos = text.find(delimiter, begin);
    if (pos == std::string_view::npos) return {};
    begin = pos + 1;
  }
  size_t end = text.find(delimiter, begin);
  return std::string(text.substr(begin, end == std::string_view::npos ? end : end - begin));
}

}  // namespace mv::modules
