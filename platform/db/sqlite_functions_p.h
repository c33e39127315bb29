// The SQL Server functions that a SQLite connection offers. Private to the database layer.
#pragma once

struct sqlite3;

namespace mv::db {

// Registers on `db`:
// GetDate(): local time now as a day number (days since 1899-12-30, time as fraction).
// CONVERT(type, value[, style]), the type a quoted name (the connection's rewrite quotes it):
//   datetime, smalldatetime, datetime2, date: a number stays a day number; text is read by the
//     style (102 yyyy.mm.dd, 111 yyyy/mm/dd, 112 yyyymmdd, otherwise yyyy-mm-dd[ hh:mi[:ss]]);
//   varchar, nvarchar, char, nchar (with optional size, which cuts the text): with a style of
//     23, 102, 111, 112 or 120 a number is written as that date form, otherwise as its text;
//   int, bigint, smallint, tinyint, bit: a whole number (numbers truncated, text read strictly);
//   float, real, decimal, numeric, money: a floating-point number.
//   A null value gives null; a value that does not convert and an unknown type are errors
//   worded as SQL Server words them.
// Returns false when registration fails.
bool RegisterSqlServerFunctions(sqlite3* db);

}  // namespace mv::db
