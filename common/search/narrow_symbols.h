// Narrow text read as a row of symbols, so that the pattern code can look for its signs ("|",
// "_", "[" ...) without mistaking the second byte of a Big5 character for one of them.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace mv::search {

// Turns narrow text (bytes in the user's code page) into wide symbols and back. A single-byte
// character below 0x80 is its own symbol; every other character of the code page (double-byte
// characters, bytes of 0x80 and above) becomes a symbol of its own from U+0080 up, the same
// symbol for the same bytes, so that Decode(Encode(s)) == s for any text of whole characters.
// A lead byte without its second byte is dropped: the pattern code would write its own signs
// ("_" for "?", "[" ...) after it, and the code page would read the two bytes as one character.
class TNarrowSymbols {
 public:
  // The symbols of narrow `text`, read in the user's code page (byte by byte when the code page
  // is unknown).
  std::u16string Encode(std::string_view text);
  // The narrow text of symbols made by this object's Encode; a symbol it never made is dropped.
  std::string Decode(std::u16string_view symbols) const;

 private:
  char16_t SymbolOf(std::string_view character);

  std::map<std::string, char16_t, std::less<>> codes_;
  std::vector<std::string> characters_;  // by symbol - 0x80
};

}  // namespace mv::search
