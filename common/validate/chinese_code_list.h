// The code list of Chinese characters, "TCCS.map" in the server folder: one line per wide
// character, its code as four hexadecimal digits, "=", and its class: "C" common to both Chinese
// scripts, "T" Traditional only, "S" Simplified only. The demo installation's list is generated
// by tools/tccs from ICU's data.
#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace mv {

inline constexpr std::string_view kChineseCodeListName = "TCCS.map";

class TChineseCodeList {
 public:
  // What a code has in the list: no line, a line whose value is none of C, T, S, or its class.
  static constexpr char kNoEntry = 0;
  static constexpr char kOtherValue = '?';

  // The list of the bytes of a code list file. Lines end with LF or CR LF; a line that is not
  // four hexadecimal digits (either case), "=" and a value is skipped (comments among them); the
  // first line of a code wins.
  static TChineseCodeList Parse(std::string_view text);

  // 'C', 'T' or 'S', kOtherValue, or kNoEntry for `code`: one probe of a table.
  char ClassOf(char16_t code) const { return (*classes_)[code]; }
  // True when the list holds no entry (file missing, empty or without one valid line).
  bool Empty() const { return entries_ == 0; }
  size_t Entries() const { return entries_; }

 private:
  std::unique_ptr<std::array<char, 0x10000>> classes_ =
      std::make_unique<std::array<char, 0x10000>>();
  size_t entries_ = 0;
};

// The code list of the installation: "TCCS.map" in ServerPath (name found without regard to
// case), read once and kept; read again only when ServerPath names another folder. A missing file
// gives an empty list.
const TChineseCodeList& InstalledChineseCodeList();

}  // namespace mv
