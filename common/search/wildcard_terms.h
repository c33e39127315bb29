// The steps of the wildcard translator, on wide text (UTF-16). The narrow translator runs the
// same steps on the symbols of its text (narrow_symbols.h). Used by wildcard.cpp and its tests.
//
// The pattern language: "*" any run of characters, "?" one character, "|" between alternatives,
// ".." between the bounds of a range. "_", "%" and "[" typed by the user are plain characters and
// are escaped with "!" (WildEscapeChar); a typed "!" is written "!!".
#pragma once

#include <string>
#include <string_view>

namespace mv::search {

// The SQL escape character of every like condition the translator writes.
inline constexpr char16_t WildEscapeChar = u'!';

// How a literal is written: opened with `open`, closed with `close`. With `marked` set (the
// WideLiteralMark form) the escape clause follows the closing mark instead of replacing it.
struct TLiteralForm {
  std::u16string_view open;
  std::u16string_view close;
  bool marked = false;
};

// The literal forms: plain quotes, national literal, WideLiteralMark pairs.
extern const TLiteralForm kPlainLiteral;
extern const TLiteralForm kNationalLiteral;
extern const TLiteralForm kMarkedLiteral;

// The pattern made ready for SQL: "!" doubled, "_", "%" and "[" escaped with "!", "'" doubled
// when `doubleQuotes` is set, then "?" written "_" and "*" written "%".
std::u16string EscapePattern(std::u16string_view pattern, bool doubleQuotes);

// A range term with the escaping of EscapePattern undone: "!" with the character after it is one
// pair that gives that character; an unpaired "_" gives "?" and an unpaired "%" gives "*".
std::u16string UnescapeRangeTerm(std::u16string_view term);

// The condition of an escaped term holding "..": the bounds on either side of the first ".." of
// the unescaped term, compared literally ("(F >= lo)", "(F <= hi)" or both joined with "and");
// empty when the unescaped term has no ".." or is no longer than "..".
std::u16string RangeCondition(std::u16string_view field, std::u16string_view term,
                              const TLiteralForm& form);

// The condition of an escaped term without "..": like with the escape clause when it holds "!",
// like when it holds "%" or "_", else equality.
std::u16string SimpleCondition(std::u16string_view field, std::u16string_view term,
                               const TLiteralForm& form);

// The whole condition of `pattern` on column `field`, literals written in `form`; empty for an
// empty pattern or one of nothing but empty alternatives and bare "..".
std::u16string TranslatePattern(std::u16string_view field, std::u16string_view pattern,
                                bool doubleQuotes, const TLiteralForm& form);

}  // namespace mv::search
