// Users' wildcard search patterns as SQL conditions on one column. A pattern is "*" for any run
// of characters, "?" for one character, "|" between alternatives and ".." between the bounds of
// a range (bounds compare literally); "_", "%", "[" and "!" are plain characters. The condition is
// parenthesised SQL Server text for after WHERE; an empty condition means there is none. A
// pattern that matches everything as one term ("*", blanks only) also finds NULL columns.
// FieldName goes into the text as it stands (an alias such as "m.MsgRef" is fine). In a quoted
// literal a colon after an odd number of double quotes is written twice, as the database layer
// reads "::" there as one ":". No routine throws; every pattern gives a text.
#pragma once

#include <string>
#include <string_view>

namespace mv {

// The condition of narrow `pattern` on column `fieldName` (both bytes in the user's code page),
// narrow, literals in plain quotes; quotes of the pattern doubled when `doubleQuotes` is set and
// left as they are otherwise (the caller then answers for them).
std::string ChangeWildCard(std::string_view fieldName, std::string_view pattern, bool doubleQuotes);

// The condition of the wide carrier `pattern` on narrow column `fieldName`, wide, passed through
// MV_SetWideVc: literals as N'...' or, with `markWideLiterals`, between WideLiteralMark pairs
// (the escape clause then follows the closing mark), for query code to turn into parameters. A
// WideLiteralMark in the pattern is dropped, so the user's text never leaves a literal.
std::u16string ChangeWildCard(std::string_view fieldName, std::u16string_view pattern,
                              bool doubleQuotes, bool markWideLiterals);

// The wide condition with N'...' literals of narrow `pattern` (user's code page), widened first.
std::u16string ChangeWildCardW(std::string_view fieldName, std::string_view pattern,
                               bool doubleQuotes);
// The wide condition with N'...' literals of wide `pattern`.
std::u16string ChangeWildCardW(std::string_view fieldName, std::u16string_view pattern,
                               bool doubleQuotes);

// The range condition of narrow `term` (already escaped as the translator escapes, holding "..")
// on `fieldName`, narrow with plain-quoted bounds; empty when the term is only "..".
std::string RangeCondition(std::string_view fieldName, std::string_view term);
// The same for a wide term; literals as N'...' or, with `markWideLiterals`, between marks.
std::u16string RangeCondition(std::string_view fieldName, std::u16string_view term,
                              bool markWideLiterals);

// Narrow `term` with the translator's escaping undone: "!x" gives "x", a bare "_" gives "?" and a
// bare "%" gives "*". Characters of the user's code page are kept whole.
std::string UnescapeRangeTerm(std::string_view term);
// The same for a wide term.
std::u16string UnescapeRangeTerm(std::u16string_view term);

}  // namespace mv
