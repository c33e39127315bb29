#include "common/search/narrow_symbols.h"

#include <exception>

#include "platform/codepage/codepage.h"
#include "platform/codepage/narrow_chars.h"

namespace mv::search {
namespace {

constexpr char16_t kFirstSymbol = 0x80;

std::vector<size_t> CharacterStarts(std::string_view text) {
  try {
    return codepage::CharStarts(text, codepage::UserCodePage());
  } catch (const std::exception&) {
    std::vector<size_t> starts(text.size());
    for (size_t i = 0; i < starts.size(); ++i) starts[i] = i;
    return starts;
  }
}

// A lead byte without its second byte (one byte of 0x80 and above that the code page reads as
// U+FFFD), as a Big5 text cut in the middle of a character ends in.
bool IsBrokenCharacter(std::string_view character) {
  if (character.size() != 1 || static_cast<unsigned char>(character[0]) < 0x80) return false;
  try {
    return codepage::ToWide(character, codepage::UserCodePage()) == u"\uFFFD";
  } catch (const std::exception&) {
    return false;
  }
}

}  // namespace

char16_t TNarrowSymbols::SymbolOf(std::string_view character) {
  if (character.size() == 1 && static_cast<unsigned char>(character[0]) < 0x80)
    return static_cast<char16_t>(character[0]);
  if (auto it = codes_.find(character); it != codes_.end()) return it->second;
  // A text has fewer distinct characters than a code page, far below the 0xFF80 symbols.
  const auto symbol = static_cast<char16_t>(kFirstSymbol + characters_.size());
  characters_.emplace_back(character);
  codes_.emplace(std::string(character), symbol);
  return symbol;
}

std::u16string TNarrowSymbols::Encode(std::string_view text) {
  const std::vector<size_t> starts = CharacterStarts(text);
  std::u16string symbols;
  symbols.reserve(starts.size());
  for (size_t i = 0; i < starts.size(); ++i) {
    const size_t end = i + 1 < starts.size() ? starts[i + 1] : text.size();
    const std::string_view character = text.substr(starts[i], end - starts[i]);
    if (!IsBrokenCharacter(character)) symbols.push_back(SymbolOf(character));
  }
  return symbols;
}

std::string TNarrowSymbols::Decode(std::u16string_view symbols) const {
  std::string text;
  text.reserve(symbols.size());
  for (char16_t symbol : symbols) {
    if (symbol < kFirstSymbol) {
      text.push_back(static_cast<char>(symbol));
    } else if (size_t i = symbol - kFirstSymbol; i < characters_.size()) {
      text += characters_[i];
    }
  }
  return text;
}

}  // namespace mv::search
