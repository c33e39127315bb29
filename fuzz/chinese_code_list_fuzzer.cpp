// libFuzzer target of the reader of the Chinese code list (TCCS.map, "XXXX=C|T|S" lines). Whatever
// the bytes, reading must not crash, every code must read as no entry, C, T, S or the "other
// value" mark, a code with an entry must be named at the start of a line, and the count of entries
// must be the count of codes that have one. The list written back as one upper-case line per entry
// must read as the same list, and so must the file read twice in a row (the first line of a code
// wins).
#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "common/validate/chinese_code_list.h"

namespace {

using mv::TChineseCodeList;

void Expect(bool condition) {
  if (!condition) std::abort();
}

bool SameList(const TChineseCodeList& a, const TChineseCodeList& b) {
  if (a.Entries() != b.Entries()) return false;
  for (unsigned code = 0; code <= 0xFFFF; ++code) {
    if (a.ClassOf(static_cast<char16_t>(code)) != b.ClassOf(static_cast<char16_t>(code)))
      return false;
  }
  return true;
}

// The codes the file names: four hexadecimal digits and "=" at the start of a line.
std::vector<bool> NamedCodes(std::string_view bytes) {
  std::vector<bool> named(0x10000);
  for (size_t start = 0; start < bytes.size();) {
    const std::string_view line = bytes.substr(start, bytes.find('\n', start) - start);
    unsigned code = 0;
    const auto [end, error] = std::from_chars(line.data(), line.data() + line.size(), code, 16);
    if (error == std::errc() && end == line.data() + 4 && line.size() > 4 && line[4] == '=')
      named[code] = true;
    start += line.size() + 1;
  }
  return named;
}

// The list as a file: "XXXX=C" with CR LF for each entry, "XXXX=?" for one of another value.
std::string Written(const TChineseCodeList& list) {
  std::string text;
  for (unsigned code = 0; code <= 0xFFFF; ++code) {
    const char value = list.ClassOf(static_cast<char16_t>(code));
    if (value == TChineseCodeList::kNoEntry) continue;
    char line[16];
    std::snprintf(line, sizeof line, "%04X=%c\r\n", code, value);
    text += line;
  }
  return text;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const TChineseCodeList list = TChineseCodeList::Parse(bytes);

  const std::vector<bool> named =
      NamedCodes(bytes.starts_with("\xEF\xBB\xBF") ? bytes.substr(3) : bytes);
  size_t entries = 0;
  for (unsigned code = 0; code <= 0xFFFF; ++code) {
    const char value = list.ClassOf(static_cast<char16_t>(code));
    Expect(value == TChineseCodeList::kNoEntry || named[code]);
    Expect(value == TChineseCodeList::kNoEntry || value == 'C' || value == 'T' || value == 'S' ||
           value == TChineseCodeList::kOtherValue);
    entries += value != TChineseCodeList::kNoEntry;
  }
  Expect(entries == list.Entries() && list.Empty() == (entries == 0));
  Expect(entries <= static_cast<size_t>(std::count(bytes.begin(), bytes.end(), '=')));

  Expect(SameList(list, TChineseCodeList::Parse(Written(list))));
  Expect(SameList(list, TChineseCodeList::Parse(std::string(bytes) + "\n" + std::string(bytes))));
  return 0;
}
