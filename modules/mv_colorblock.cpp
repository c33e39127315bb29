#include "modules/mv_colorblock.h"

namespace mv::modules {
namespace {

template <typename Char>
bool IsAsciiLetterOrDigit(Char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

// True when `text` starts with the ASCII word `word`, without regard to case.
template <typename Char>
bool StartsWithWord(std::basic_string_view<Char> text, std::string_view word) {
  if (text.size() < word.size()) return false;
  for (size_t i = 0; i < word.size(); ++i) {
    Char c = text[i];
    if (c >= 'A' && c <= 'Z') c = static_cast<Char>(c - 'A' + 'a');
    if (c != static_cast<Char>(word[i])) return false;
  }
  return true;
}

// The length of the colour mark at the start of `text`, or 0 when none starts there.
template <typename Char>
size_t MarkLength(std::basic_string_view<Char> text) {
  if (StartsWithWord(text, "</color>")) return 8;
  if (!StartsWithWord(text, "<color=")) return 0;
  size_t i = 7;
  while (i < text.size() && (IsAsciiLetterOrDigit(text[i]) || text[i] == '#' || text[i] == '$'))
    ++i;
  return i > 7 && i < text.size() && text[i] == '>' ? i + 1 : 0;
}

template <typename Char>
std::basic_string<Char> RemoveMarks(std::basic_string_view<Char> text) {
  std::basic_string<Char> out;
  out.reserve(text.size());
  for (size_t i = 0; i < text.size();) {
    size_t mark = text[i] == '<' ? MarkLength(text.substr(i)) : 0;
    if (mark > 0) {
      i += mark;
    } else {
      out += text[i++];
    }
  }
  return out;
}

}  // namespace

std::string MV_RemoveColorBlock(std::string_view text) {
  return RemoveMarks(text);
}

std::u16string MV_RemoveColorBlock(std::u16string_view text) {
  return RemoveMarks(text);
}

}  // namespace mv::modules
