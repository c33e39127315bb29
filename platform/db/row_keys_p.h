// How a dataset names the rows it writes back: its table's primary key, read from the schema and
// selected beside the columns the command text reads. Private to the database layer.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace mv::db {

// The primary key columns of `table` (as a select names it: T, [T], dbo.T) on the open connection
// `connection`, in key order, from the schema (SQLite's table_info, ODBC's primary key catalogue);
// empty for a table without one, or one the schema does not know. On SQLite the look-up waits for
// a locked file `timeout` seconds as a statement does, and raises EDatabaseError when it gives up.
std::vector<std::string> PrimaryKeyOf(const std::string& connection, std::u16string_view table,
                                      int timeout);

// The command text `commandText` (a select from one table) with the columns `keys` selected first,
// ahead of the columns it reads: "select a from T" -> "select [k1], [k2], a from T". Empty unless
// the text opens with "select" (after blanks) and a list of plain columns (names, "*", aliases:
// no DISTINCT, TOP, expressions or literals) and has no GROUP BY, HAVING or UNION, so that the
// extra columns change neither its rows nor whether the server accepts it.
std::u16string WithKeyColumns(std::u16string_view commandText,
                              const std::vector<std::string>& keys);

// `column` as a bracketed name for SQL text ("a]b" -> "[a]]b]").
std::u16string QuotedName(std::string_view column);

}  // namespace mv::db
