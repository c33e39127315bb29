// Literals in command texts as the database layer reads them. Two kinds of literal carry user text:
// a stretch between two WideLiteralMark characters outside quoted literals, which the layer binds
// as a parameter, and a quoted literal '...' or N'...', whose text the layer reads with doubled
// quotes made single and, after an odd number of double quotes, "::" made ":" (the parameter
// rule that RepeatColonAfterOddDBQuote serves). Code that writes user text into either form uses
// these routines, so that the text reads back as it was written. Header only: the primitives
// package uses it as well.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace mv::db {

// Opens and closes a marked literal (U+0002).
inline constexpr char16_t WideLiteralMark = u'\x02';

// Wide `text` with every WideLiteralMark removed, so that a character 2 in user data can never
// open a marked literal.
[[nodiscard]] inline std::u16string WithoutLiteralMarks(std::u16string_view text) {
  std::u16string out(text);
  out.erase(std::remove(out.begin(), out.end(), WideLiteralMark), out.end());
  return out;
}

// Wide `text` with its last WideLiteralMark removed when the marks do not pair up; otherwise
// unchanged.
[[nodiscard]] inline std::u16string WithPairedLiteralMarks(std::u16string_view text) {
  std::u16string out(text);
  if (std::count(out.begin(), out.end(), WideLiteralMark) % 2 != 0)
    out.erase(out.rfind(WideLiteralMark), 1);
  return out;
}

// Narrow (code-page bytes) or wide `text` with every colon that stands after an odd number of
// double quotes written twice; other text unchanged. Quote and colon are single bytes below 0x40,
// so no second byte of a double-byte character is taken for one.
template <class Char>
[[nodiscard]] std::basic_string<Char> ColonsDoubledAfterOddDoubleQuote(
    std::basic_string_view<Char> text) {
  std::basic_string<Char> out;
  out.reserve(text.size());
  bool inside = false;
  for (Char c : text) {
    if (c == Char('"')) inside = !inside;
    if (c == Char(':') && inside) out += c;
    out += c;
  }
  return out;
}

// Narrow or wide `text` as the inside of a quoted literal that reads back as `text`: every "'"
// doubled and every colon after an odd number of double quotes doubled.
template <class Char>
[[nodiscard]] std::basic_string<Char> InlineLiteralBody(std::basic_string_view<Char> text) {
  std::basic_string<Char> out;
  out.reserve(text.size() + 2);
  for (Char c : ColonsDoubledAfterOddDoubleQuote(text)) {
    out += c;
    if (c == Char('\'')) out += c;
  }
  return out;
}

}  // namespace mv::db
