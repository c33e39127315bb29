// The one reader of command texts (wide, UTF-16) in the database layer. Private to it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace mv::db {

enum class TSqlTokenKind : uint8_t {
  Text,             // anything else: words, operators, blanks, "?"
  Literal,          // '...', a doubled quote inside
  NationalLiteral,  // N'...' (N in either case, not the end of a name)
  Name,             // [...] with "]]" inside, or "..." with a doubled quote inside
  Comment,          // "--" to the end of the line, or "/*" to "*/"
  Marked,           // a stretch between two WideLiteralMark characters outside the forms above
  StrayMark,        // a last WideLiteralMark without a partner
  Parameter,        // ":name" (letters, digits, "_")
  DoubleColon,      // "::", which stands for one ":"
};

// One token: its kind and where it stands in the text, [Start, End). A quoted form that is not
// closed runs to the end of the text.
struct TSqlToken {
  TSqlTokenKind Kind;
  size_t Start;
  size_t End;
  bool Closed = true;  // false for a quoted form or comment that runs to the end unclosed
};

// The tokens of `text`, in order, covering all of it.
[[nodiscard]] std::vector<TSqlToken> TokenizeSql(std::u16string_view text);

// The text the closed literal `token` of `text` stands for: doubled quotes single, and "::" after
// an odd number of double quotes one ":". For a marked stretch, the text between the marks.
[[nodiscard]] std::u16string LiteralValue(std::u16string_view text, const TSqlToken& token);

// Whether `c` may stand in a parameter or other name of the text (ASCII letter, digit, "_").
[[nodiscard]] bool IsSqlNameChar(char16_t c);

}  // namespace mv::db
