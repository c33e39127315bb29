#include "common/services/msg_fields.h"

namespace mv {
namespace {

template <typename Char>
std::basic_string_view<Char> Segment(Char sep, std::basic_string_view<Char> s, int n) {
  for (;; --n) {
    if (n < 1) return {};
    const size_t at = s.find(sep);
    if (n == 1) return at == s.npos ? s : s.substr(0, at);
    if (at == s.npos) return {};
    s = s.substr(at + 1, kSegxWindow);
  }
}

bool IsBlankOrControl(char c) {
  return static_cast<unsigned char>(c) <= ' ';
}

}  // namespace

void SEGX(char sep, std::string_view s, int n, std::string& result) {
  result = Segment(sep, s, n);
}

void SEGX(char sep, std::u16string_view s, int n, std::u16string& result) {
  result = Segment(static_cast<char16_t>(static_cast<unsigned char>(sep)), s, n);
}

std::string_view TrimControls(std::string_view s) {
  while (!s.empty() && IsBlankOrControl(s.front())) s.remove_prefix(1);
  while (!s.empty() && IsBlankOrControl(s.back())) s.remove_suffix(1);
  return s;
}

TStringList SplitLines(std::string_view text) {
  TStringList lines;
  while (!text.empty()) {
    const size_t end = text.find_first_of("\r\n");
    lines.emplace_back(text.substr(0, end));
    if (end == text.npos) break;
    const bool crlf = text[end] == '\r' && end + 1 < text.size() && text[end + 1] == '\n';
    text.remove_prefix(end + (crlf ? 2 : 1));
  }
  return lines;
}

}  // namespace mv
