#include "common/validate/chinese_code_list.h"

#include <optional>

#include "common/frame/shared_state.h"
#include "platform/files/paths.h"

namespace mv {
namespace {

int HexDigit(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  return -1;
}

// The code of a line "XXXX=value", or nothing.
std::optional<char16_t> CodeOf(std::string_view line) {
  if (line.size() < 5 || line[4] != '=') return std::nullopt;
  unsigned code = 0;
  for (char c : line.substr(0, 4)) {
    const int digit = HexDigit(c);
    if (digit < 0) return std::nullopt;
    code = code * 16 + static_cast<unsigned>(digit);
  }
  return static_cast<char16_t>(code);
}

}  // namespace

TChineseCodeList TChineseCodeList::Parse(std::string_view text) {
  TChineseCodeList list;
  if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);
  while (!text.empty()) {
    const size_t end = text.find('\n');
    std::string_view line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    if (line.ends_with('\r')) line.remove_suffix(1);
    const auto code = CodeOf(line);
    if (!code || (*list.classes_)[*code] != kNoEntry) continue;
    const std::string_view value = line.substr(5);
    const bool known = value == "C" || value == "T" || value == "S";
    (*list.classes_)[*code] = known ? value[0] : kOtherValue;
    ++list.entries_;
  }
  return list;
}

const TChineseCodeList& InstalledChineseCodeList() {
  static std::optional<std::string> loadedFrom;
  static TChineseCodeList list;
  if (loadedFrom != ServerPath) {
    const std::string path = files::ResolveFileName(ServerPath + std::string(kChineseCodeListName));
    list = TChineseCodeList::Parse(files::ReadWholeFile(path).value_or(std::string()));
    loadedFrom = ServerPath;
  }
  return list;
}

}  // namespace mv
