// Quoting of narrow text (bytes in the user's code page) and wide text (UTF-16) for SQL and
// other quoted forms. A quote character of narrow text matches single-byte characters only,
// never the second byte of a Big5 character. Narrow text is read through the user's code page
// (code page 1252 when no converter serves it).
#pragma once

#include <string>
#include <string_view>

namespace mv::modules {

// The text between two `quote` characters with every `quote` inside doubled: "it's" and "'"
// give "'it''s'".
std::string MV_WideQuotedStr(std::string_view s, char quote);
std::u16string MV_WideQuotedStr(std::u16string_view s, char16_t quote);

// The text inside the `quote` characters with doubled quotes made single again: "'it''s'x" and
// "'" give "it's" (what follows the closing quote is dropped). A text that does not start with
// `quote`, or has no closing quote, comes back unchanged.
std::string MV_WideDequotedStr(std::string_view s, char quote);
std::u16string MV_WideDequotedStr(std::u16string_view s, char16_t quote);

// The SQL national literal of the text, which the database layer reads back as the text: "N'" +
// the text with every "'" doubled and every ":" after an odd number of '"' doubled + "'".
std::string MV_NQuotedStr(std::string_view s);
std::u16string MV_NQuotedStr(std::u16string_view s);

// True when every "'" of the text is one of a doubled pair "''", so that the text can stand
// between the quotes of an SQL literal as it is; a text without quotes is true.
bool MV_CheckQuot(std::string_view s);
bool MV_CheckQuot(std::u16string_view s);

}  // namespace mv::modules
