// Command texts on their way to the database. Private to the database layer.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace mv::db {

// One "?" of a prepared text: a parameter of the query, or a literal of the text bound as a value.
struct TSqlPlace {
  std::string Name;     // the parameter's name; empty for a literal of the text
  std::u16string Text;  // the literal's text when Name is empty

  bool operator==(const TSqlPlace&) const = default;
};

// A command text as a driver takes it: well-formed UTF-16, every value written as "?".
struct TPreparedSql {
  std::u16string Sql;
  std::vector<TSqlPlace> Places;  // what each "?" stands for, in order
};

// Wide `commandText` (SQL Server's dialect, marked literals allowed) made ready for a driver:
// each ":name" outside quoted forms and comments a "?" place of that parameter; each marked
// literal and each quoted literal holding a NUL (or, with `bindNonAscii`, any character above
// U+007F) a "?" place bound to the literal's text (never written into the text); "::" one ":";
// inside a quoted literal "::" after an odd number of double quotes one ":"; a mark without a
// partner dropped; a lone surrogate U+FFFD. ODBC connections bind non-ASCII literals, as drivers
// convert a statement's text less faithfully than a bound wide text.
[[nodiscard]] TPreparedSql PrepareSql(std::u16string_view commandText, bool bindNonAscii = false);

// Wide `text` with every lone surrogate (a high one not followed by a low one, a low one not
// after a high one) replaced by U+FFFD; well-formed text comes back unchanged.
[[nodiscard]] std::u16string WellFormedText(std::u16string_view text);

// The SQL Server text rewritten where SQLite cannot parse it: N'...' becomes '...', and the bare
// type name that opens CONVERT(...) becomes a quoted text (CONVERT(datetime, ...) ->
// CONVERT('datetime', ...)), which the connection's CONVERT function reads. Literals, quoted
// names and comments are left as they are.
[[nodiscard]] std::u16string SqliteDialect(std::u16string_view sql);

// The table of a select from one table ("select ... from T [where|order|group ...]"), as
// written (T, [T], dbo.T); empty for anything else (joins, several tables, sub-selects in from).
[[nodiscard]] std::u16string SingleTableOf(std::u16string_view sql);

}  // namespace mv::db
