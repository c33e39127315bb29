// Command texts on their way to the database. Private to the database layer.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace mv::db {

// A command text as a driver takes it: every parameter place written as "?".
struct TPreparedSql {
  std::u16string Sql;
  std::vector<std::string> Places;  // the parameter name of each "?", in order
};

// Marked literals written as N'...', each ":name" outside quoted literals made a "?" place and
// "::" made one ":".
TPreparedSql PrepareSql(std::u16string_view commandText);

// The SQL Server text rewritten where SQLite cannot parse it: N'...' becomes '...', and the bare
// type name that opens CONVERT(...) becomes a quoted text (CONVERT(datetime, ...) ->
// CONVERT('datetime', ...)), which the connection's CONVERT function reads.
std::u16string SqliteDialect(std::u16string_view sql);

// The table of a select from one table ("select ... from T [where|order|group ...]"), as
// written (T, [T], dbo.T); empty for anything else (joins, several tables, sub-selects in from).
std::u16string SingleTableOf(std::u16string_view sql);

}  // namespace mv::db
