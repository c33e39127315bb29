#include "modules/mv_text_catalogue.h"

#include <algorithm>
#include <charconv>

#include "platform/codepage/codepage.h"

namespace mv::modules {
namespace {

std::string_view TrimBlanks(std::string_view s) {
  size_t begin = s.find_first_not_of(" \t");
  if (begin == std::string_view::npos) return {};
  size_t end = s.find_last_not_of(" \t");
  return s.substr(begin, end - begin + 1);
}

// The text of an entry with its escapes replaced.
std::string Unescape(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  for (size_t i = 0; i < text.size(); ++i) {
    char c = text[i];
    if (c == '\\' && i + 1 < text.size()) {
      switch (text[i + 1]) {
        case 'n':
          out += '\n';
          ++i;
          continue;
        case 'r':
          out += '\r';
          ++i;
          continue;
        case 't':
          out += '\t';
          ++i;
          continue;
        case '\\':
          out += '\\';
          ++i;
          continue;
        case ' ':
          out += ' ';
          ++i;
          continue;
        default:
          break;
      }
    }
    out += c;
  }
  return out;
}

// The number before the "=" of an entry; -1 when it is not a whole number of 0 or more.
int EntryNumber(std::string_view key) {
  key = TrimBlanks(key);
  int number = -1;
  auto [ptr, ec] = std::from_chars(key.data(), key.data() + key.size(), number);
  if (key.empty() || ec != std::errc() || ptr != key.data() + key.size() || number < 0) return -1;
  return number;
}

}  // namespace

TTextCatalogue TTextCatalogue::Parse(std::string_view bytes) {
  TTextCatalogue catalogue;
  if (bytes.starts_with("\xEF\xBB\xBF")) bytes.remove_prefix(3);
  int lineNo = 0;
  while (!bytes.empty()) {
    size_t eol = bytes.find('\n');
    std::string_view line = bytes.substr(0, eol);
    bytes.remove_prefix(eol == std::string_view::npos ? bytes.size() : eol + 1);
    ++lineNo;
    if (line.ends_with('\r')) line.remove_suffix(1);
    std::string_view trimmed = TrimBlanks(line);
    if (trimmed.empty() || trimmed.front() == ';' || trimmed.front() == '#') continue;
    size_t eq = line.find('=');
    int number = eq == std::string_view::npos ? -1 : EntryNumber(line.substr(0, eq));
    if (number < 0) {
      catalogue.warnings_.push_back({lineNo, "not a number=text line"});
      continue;
    }
    std::string_view text = line.substr(eq + 1);
    text.remove_prefix(std::min(text.size(), text.find_first_not_of(" \t")));
    auto [it, added] = catalogue.texts_.emplace(number, codepage::WideFromUtf8(Unescape(text)));
    if (!added) {
      catalogue.warnings_.push_back({lineNo, "number " + std::to_string(number) + " repeated"});
    }
  }
  return catalogue;
}

std::u16string TTextCatalogue::Find(int number) const {
  auto it = texts_.find(number);
  return it == texts_.end() ? std::u16string() : it->second;
}

}  // namespace mv::modules
