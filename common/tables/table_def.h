// The structure of a database table as table copy and archives carry it: its columns in order,
// each with its declared type in SQL Server's words ("nvarchar(50)", "int", "datetime"), whether
// it takes NULL, and its place in the primary key. Defaults, identity columns, indexes other than
// the primary key, and constraints are not carried.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/db/field_types.h"

namespace mv::tables {

// How a column's values are carried: the class follows the declared type (FieldTypeOfDeclared);
// a type this library does not know is carried as text.
enum class TValueClass { Text, Integer, Real, Date, Bool, Bytes };

struct TColumnDef {
  std::string Name;  // UTF-8
  std::string Type;  // the declared type, UTF-8 ("" for a SQLite column declared without one)
  bool NotNull = false;
  int KeyOrder = 0;  // 1, 2 ... for the columns of the primary key in key order; 0 otherwise
};

struct TTableDef {
  std::string Name;  // UTF-8, without brackets
  std::vector<TColumnDef> Columns;
};

// The value class of a declared type.
[[nodiscard]] TValueClass ValueClassOf(std::string_view declaredType);
// The field type values of that class are bound with, so that dates bind as dates.
[[nodiscard]] db::TFieldType BindTypeOf(TValueClass valueClass);

// `name` (UTF-8) as a bracketed name of SQL text: "a]b" -> "[a]]b]".
[[nodiscard]] std::string BracketedName(std::string_view name);

// True when the open connection `connection` reaches a SQLite database (directly or through an
// ODBC driver for SQLite); false for SQL Server.
bool IsSqliteDatabase(const std::string& connection);

// The structure of table `table` (UTF-8, without brackets) on the open connection `connection`,
// from SQLite's table_info or SQL Server's INFORMATION_SCHEMA views. Raises db::EDatabaseError
// when the table does not exist or the schema cannot be read.
TTableDef ReadTableDef(const std::string& connection, const std::string& table);

// The CREATE TABLE text of `def` under the name `name` (UTF-8): bracketed names, the declared
// types as they stand, NULL / NOT NULL, and a PRIMARY KEY clause in key order. SQL Server and
// SQLite both read it. A column without a type gets none on SQLite's side and sql_variant would
// be needed on SQL Server's: such a column is written without a type. A type that is more than
// words, digits and one parenthesised list (so text that could end the statement) raises
// db::EDatabaseError.
[[nodiscard]] std::string CreateTableText(const TTableDef& def, std::string_view name);

}  // namespace mv::tables
