#include <algorithm>
#include <vector>

#include "platform/shell/program_group.h"

namespace mv::shell {
namespace {

struct TLine {
  std::string_view text;  // without its line end
  std::string_view end;   // "\n", "\r\n" or "" for a last line without one
};

std::vector<TLine> SplitLines(std::string_view entry) {
  std::vector<TLine> lines;
  while (!entry.empty()) {
    size_t eol = entry.find('\n');
    std::string_view whole = entry.substr(0, eol == std::string_view::npos ? eol : eol + 1);
    size_t endLength = whole.ends_with("\r\n") ? 2 : whole.ends_with('\n') ? 1 : 0;
    lines.push_back(
        {whole.substr(0, whole.size() - endLength), whole.substr(whole.size() - endLength)});
    entry.remove_prefix(whole.size());
  }
  return lines;
}

// The value of `line` when it is the key `key` ("Name" or "Name[en]"; blanks around "=" allowed).
bool ValueOf(std::string_view line, std::string_view key, std::string_view& value) {
  if (!line.starts_with(key)) return false;
  std::string_view rest = line.substr(key.size());
  rest.remove_prefix(std::min(rest.size(), rest.find_first_not_of(' ')));
  if (!rest.starts_with('=')) return false;
  rest.remove_prefix(1);
  rest.remove_prefix(std::min(rest.size(), rest.find_first_not_of(' ')));
  value = rest;
  return true;
}

bool IsDesktopEntryGroup(std::string_view line) {
  return line == "[Desktop Entry]";
}

}  // namespace

std::string DesktopEntryInLanguage(std::string_view entry, TShortcutLanguage language) {
  const std::string_view localizedKey =
      language == TShortcutLanguage::English ? "Name[en]" : "Name[zh_TW]";
  std::vector<TLine> lines = SplitLines(entry);
  bool inGroup = false;
  size_t nameLine = lines.size();
  std::string_view name;
  bool found = false;
  for (size_t i = 0; i < lines.size(); ++i) {
    std::string_view text = lines[i].text;
    if (text.starts_with('[')) inGroup = IsDesktopEntryGroup(text);
    std::string_view value;
    if (!inGroup) continue;
    if (nameLine == lines.size() && ValueOf(text, "Name", value)) nameLine = i;
    if (!found && ValueOf(text, localizedKey, value)) {
      name = value;
      found = true;
    }
  }
  if (!found || nameLine == lines.size()) return std::string(entry);
  std::string out;
  out.reserve(entry.size() + name.size());
  for (size_t i = 0; i < lines.size(); ++i) {
    if (i == nameLine) {
      out.append("Name=").append(name);
    } else {
      out.append(lines[i].text);
    }
    out.append(lines[i].end);
  }
  return out;
}

}  // namespace mv::shell
