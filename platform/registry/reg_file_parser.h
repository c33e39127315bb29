// Parser of registry export files (the text that the registry editor writes) into the keys and
// values under HKEY_LOCAL_MACHINE that importing the file would leave behind. It touches no file
// and no environment, so the POSIX registry and the tests share it.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace mv::registry {

// A line the parser skipped and why. Lines count from 1.
struct TRegWarning {
  int line = 0;
  std::string message;
};

// The local-machine keys of one export file.
class TRegFile {
 public:
  // Parses the bytes of an export file.
  // Encoding: UTF-16LE after the BOM FF FE (also without the BOM when the second byte is zero);
  // UTF-8 after the BOM EF BB BF; without a BOM, a "REGEDIT4" file is narrow text in
  // `narrowCodePage` (an unknown code page reads as 1252) and any other file UTF-8.
  // The first non-blank line must be "Windows Registry Editor Version 5.00" or "REGEDIT4";
  // otherwise the file holds no keys. Key lines are "[HKEY_LOCAL_MACHINE\path]" or "[HKLM\path]";
  // "[-...]" deletes the key with its subkeys; keys of other roots are passed over. Value lines are
  // "Name"=data or @=data (the default value, whose name is empty); data is "text" (with the
  // escapes \\ and \"; any other backslash stays as written), "-" (deletes the value), dword:,
  // hex:, or hex(type): with continuation lines ending in a backslash. hex(1) and hex(2) data
  // (text and expandable text, the latter not expanded) read as text: UTF-16LE in a version 5.00
  // file, `narrowCodePage` in a "REGEDIT4" file, up to the first NUL. Lines apply in order, so a
  // later key or value replaces an earlier one. Any other line is skipped with a warning; `;`
  // starts a comment line. Never throws for bad input.
  static TRegFile Parse(std::string_view bytes, int narrowCodePage);

  // The text value `valueName` of the key `keyPath` below HKEY_LOCAL_MACHINE ("SOFTWARE\Merovan",
  // leading backslash optional). Key and value names match without regard to case (Unicode case
  // folding). Nothing when the key or value is missing or the value is not text.
  std::optional<std::u16string> ReadString(std::u16string_view keyPath,
                                           std::u16string_view valueName) const;

  // The lines skipped as malformed, in file order.
  const std::vector<TRegWarning>& warnings() const { return warnings_; }

 private:
  class Parser;
  // Value name (folded) -> text, or nothing for a value of another type.
  using TValues = std::map<std::u16string, std::optional<std::u16string>>;

  void DeleteTree(const std::u16string& key);

  // Key path below HKEY_LOCAL_MACHINE, folded, components joined by one backslash.
  std::map<std::u16string, TValues> keys_;
  std::vector<TRegWarning> warnings_;
};

// Wide text of narrow text in `codePage`, reading an unknown code page as 1252. Never throws.
std::u16string WideOfNarrow(std::string_view text, int codePage);

}  // namespace mv::registry
