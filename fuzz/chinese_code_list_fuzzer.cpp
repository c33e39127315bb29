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
#include <utility>
#include <vector>

#include "common/validate/chinese_code_list.h"

namespace {

using mv::TChineseCodeList;

void Expect(bool condition) {
  if (!condition) std::abort();
}

// A code with an entry and its value.
using TEntry = std::pair<char16_t, char>;

// The entries of the list in code order, each checked on the way: its value one of the five a
// code can have, its code named by a line of the file. The one scan of the whole table per input.
std::vector<TEntry> EntriesOf(const TChineseCodeList& list, const std::vector<bool>& named) {
  std::vector<TEntry> entries;
  for (unsigned code = 0; code <= 0xFFFF; ++code) {
    const char value = list.ClassOf(static_cast<char16_t>(code));
    if (value == TChineseCodeList::kNoEntry) continue;
    Expect(value == 'C' || value == 'T' || value == 'S' || value == TChineseCodeList::kOtherValue);
    Expect(named[code]);
    entries.emplace_back(static_cast<char16_t>(code), value);
  }
  return entries;
}

// True when `list` holds just `entries`: as many, and each with its value.
bool Holds(const TChineseCodeList& list, const std::vector<TEntry>& entries) {
  return list.Entries() == entries.size() &&
         std::all_of(entries.begin(), entries.end(),
                     [&](const TEntry& e) { return list.ClassOf(e.first) == e.second; });
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
std::string Written(const std::vector<TEntry>& entries) {
  std::string text;
  for (const auto& [code, value] : entries) {
    char line[16];
    std::snprintf(line, sizeof line, "%04X=%c\r\n", static_cast<unsigned>(code), value);
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
  const std::vector<TEntry> entries = EntriesOf(list, named);
  Expect(list.Entries() == entries.size() && list.Empty() == entries.empty());
  Expect(entries.size() <= static_cast<size_t>(std::count(bytes.begin(), bytes.end(), '=')));

  Expect(Holds(TChineseCodeList::Parse(Written(entries)), entries));
  Expect(Holds(TChineseCodeList::Parse(std::string(bytes) + "\n" + std::string(bytes)), entries));
  return 0;
}
