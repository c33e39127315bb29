// Condition texts for queries that need no query object: exact-match conditions with the value
// inline, quote doubling, and joined wildcard conditions whose literals are still marked.
#pragma once

#include <string>
#include <string_view>

namespace mv {

// The joined condition " " + joiner + " " + the wildcard condition of wide `pattern` on
// `fieldName`, wide, literals between WideLiteralMark pairs and quotes left single (they become
// parameters when attached); empty when the pattern gives no condition.
std::u16string AddWildCard(std::string_view fieldName, std::u16string_view pattern,
                           std::string_view joiner);

// The exact-match condition of wide `value` on `fieldName`, narrow (user's code page), value
// inline: "!" doubled, "_", "%" and "[" escaped with "!", quotes doubled, colons inside double
// quotes doubled; equality, or like with Escape '!' when an escape was written. "*" and "?" are
// plain characters. An empty value matches an empty or NULL column.
std::string StrSQLCond(std::string_view fieldName, std::u16string_view value);

// Wide `text` with every colon that stands after an odd number of double quotes written twice,
// so that a parameter check does not read it as a parameter; text without both a double quote and
// a colon comes back unchanged.
std::u16string RepeatColonAfterOddDBQuote(std::u16string_view text);

// Wide `text` for a literal put inline into SQL text ('...' or N'...'): every single quote
// doubled, and every colon after an odd number of double quotes doubled, so that the database
// layer reads the literal back as `text`. Marks, NULs and other characters are kept as they are.
[[nodiscard]] std::u16string CheckQuot(std::u16string_view text);
// The same for narrow `text` (user's code page).
[[nodiscard]] std::string CheckQuot(std::string_view text);

}  // namespace mv
