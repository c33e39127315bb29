#include "common/settings/preference_text.h"

#include <algorithm>
#include <stdexcept>

#include "platform/codepage/case_mapping.h"

namespace mv {
namespace {

constexpr char16_t kCr = u'\r';
constexpr char16_t kLf = u'\n';

bool IsHighSurrogate(char16_t c) {
  return c >= 0xD800 && c <= 0xDBFF;
}
bool IsLowSurrogate(char16_t c) {
  return c >= 0xDC00 && c <= 0xDFFF;
}

// The code point at `at` (an unpaired surrogate as itself); moves `at` past it.
char32_t NextCodePoint(std::u16string_view text, size_t& at) {
  const char16_t first = text[at++];
  if (IsHighSurrogate(first) && at < text.size() && IsLowSurrogate(text[at])) {
    const char16_t second = text[at++];
    return 0x10000 + ((char32_t(first) - 0xD800) << 10) + (char32_t(second) - 0xDC00);
  }
  return first;
}

char32_t Folded(char32_t c) {
  if (c < 0x80) return (c >= 'A' && c <= 'Z') ? c + ('a' - 'A') : c;
  return codepage::FoldCase(c);
}

bool SameKey(std::u16string_view a, std::u16string_view b) {
  size_t i = 0, j = 0;
  while (i < a.size() && j < b.size()) {
    if (Folded(NextCodePoint(a, i)) != Folded(NextCodePoint(b, j))) return false;
  }
  return i == a.size() && j == b.size();
}

bool HasLineBreak(std::u16string_view text) {
  return text.find_first_of(u"\r\n") != std::u16string_view::npos;
}

}  // namespace

bool PreferenceLineHasKey(std::u16string_view line, std::u16string_view key) {
  const size_t equals = line.find(u'=');
  return equals != std::u16string_view::npos && SameKey(line.substr(0, equals), key);
}

void TPreferenceText::SetText(std::u16string_view text) {
  lines_.clear();
  size_t start = 0;
  while (start < text.size()) {
    const size_t end = std::min(text.find_first_of(u"\r\n", start), text.size());
    lines_.emplace_back(text.substr(start, end - start));
    start = end + 1;  // past the CR or LF that ended the line
    if (end < text.size() && text[end] == kCr && start < text.size() && text[start] == kLf) ++start;
  }
}

std::u16string TPreferenceText::Text() const {
  size_t size = 0;
  for (const std::u16string& line : lines_) size += line.size() + 2;
  std::u16string text;
  text.reserve(size);
  for (const std::u16string& line : lines_) {
    text += line;
    text += kCr;
    text += kLf;
  }
  return text;
}

std::u16string TPreferenceText::Value(std::u16string_view key) const {
  for (const std::u16string& line : lines_) {
    if (PreferenceLineHasKey(line, key)) return line.substr(line.find(u'=') + 1);
  }
  return {};
}

void TPreferenceText::SetValue(std::u16string_view key, std::u16string_view value) {
  if (key.find(u'=') != std::u16string_view::npos || HasLineBreak(key))
    throw std::invalid_argument("A preference key may not hold \"=\" or a line break");
  if (HasLineBreak(value))
    throw std::invalid_argument("A preference value may not hold a line break");
  const auto hasKey = [key](const std::u16string& line) { return PreferenceLineHasKey(line, key); };
  if (value.empty()) {
    std::erase_if(lines_, hasKey);
    return;
  }
  std::u16string line(key);
  line += u'=';
  line += value;
  const auto found = std::find_if(lines_.begin(), lines_.end(), hasKey);
  if (found == lines_.end()) {
    lines_.push_back(std::move(line));
  } else {
    *found = std::move(line);
  }
}

}  // namespace mv
