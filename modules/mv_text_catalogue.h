// The text catalogue of an installation: the numbered texts that messages and dialogs show, kept
// in one UTF-8 file that a translator edits with any text editor.
//
// File format, one entry a line:
//   ; a comment (also "#"), blank lines are passed over
//   2000=Delete %s
//   8000=刪除%s
// The number is decimal (0 or more, blanks around it allowed). The text starts after the "=" and
// its leading blanks; trailing blanks are kept. Escapes in the text: \n (LF), \r (CR), \t (tab),
// \\ (backslash) and "\ " (a blank, also at the start); any other backslash stays as written.
// By the library's convention the English text of number N is stored under N and the Chinese one
// under N + 6000. Lines end in LF or CR LF; a UTF-8 byte-order mark is passed over.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace mv::modules {

// A line of the catalogue that was passed over and why. Lines count from 1.
struct TCatalogueWarning {
  int line = 0;
  std::string message;
};

class TTextCatalogue {
 public:
  // The entries of the bytes of a catalogue file. A line that is neither a comment nor a valid
  // entry is passed over with a warning, and so is a number met a second time (the first entry
  // wins). Ill-formed UTF-8 becomes U+FFFD. Never throws for bad input.
  static TTextCatalogue Parse(std::string_view bytes);

  // The UTF-16 text stored under `number`; empty when there is none.
  std::u16string Find(int number) const;
  size_t size() const { return texts_.size(); }
  // The lines passed over, in file order.
  const std::vector<TCatalogueWarning>& warnings() const { return warnings_; }

 private:
  std::map<int, std::u16string> texts_;
  std::vector<TCatalogueWarning> warnings_;
};

}  // namespace mv::modules
