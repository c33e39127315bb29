#include "common/tables/table_def.h"

#include "platform/codepage/codepage.h"
#include "platform/db/dataset.h"
#include "platform/db/db_error.h"

namespace mv::tables {
namespace {

// SQL Server's INFORMATION_SCHEMA: every column in order with its key place (0 outside the key).
constexpr std::string_view kServerColumns =
    "select c.COLUMN_NAME, c.DATA_TYPE, c.CHARACTER_MAXIMUM_LENGTH, c.NUMERIC_PRECISION, "
    "c.NUMERIC_SCALE, c.IS_NULLABLE, coalesce((select k.ORDINAL_POSITION "
    "from INFORMATION_SCHEMA.KEY_COLUMN_USAGE k join INFORMATION_SCHEMA.TABLE_CONSTRAINTS t "
    "on t.CONSTRAINT_NAME = k.CONSTRAINT_NAME and t.TABLE_SCHEMA = k.TABLE_SCHEMA "
    "where t.CONSTRAINT_TYPE = 'PRIMARY KEY' and k.TABLE_SCHEMA = c.TABLE_SCHEMA "
    "and k.TABLE_NAME = c.TABLE_NAME and k.COLUMN_NAME = c.COLUMN_NAME), 0) "
    "from INFORMATION_SCHEMA.COLUMNS c where c.TABLE_NAME = :TableName "
    "order by c.ORDINAL_POSITION";

std::string Utf8(const db::TField& field) {
  return codepage::Utf8FromWide(field.AsWideString());
}

// A SQL Server data type with its size: nvarchar(50), varbinary(max), decimal(18,2).
std::string ServerType(db::TMVADODataSet& rows) {
  const std::string type = Utf8(rows.Fields(1));
  const bool sized =
      type.find("char") != std::string::npos || type.find("binary") != std::string::npos;
  if (sized && !rows.Fields(2).IsNull()) {
    const int64_t length = rows.Fields(2).AsInteger();
    return type + "(" + (length < 0 ? std::string("max") : std::to_string(length)) + ")";
  }
  if ((type == "decimal" || type == "numeric") && !rows.Fields(3).IsNull()) {
    return type + "(" + std::to_string(rows.Fields(3).AsInteger()) + "," +
           std::to_string(rows.Fields(4).AsInteger()) + ")";
  }
  return type;
}

std::vector<TColumnDef> SqliteColumns(const std::string& connection, const std::string& table) {
  db::TMVADODataSet rows;
  rows.SetConnectionName(connection);
  rows.SetReadOnly(true);
  rows.SetCommandText(codepage::WideFromUtf8("PRAGMA table_info(" + BracketedName(table) + ")"));
  rows.Open();
  std::vector<TColumnDef> columns;
  for (; !rows.Eof(); rows.Next()) {
    columns.push_back({Utf8(rows.FieldByName("name")), Utf8(rows.FieldByName("type")),
                       rows.FieldByName("notnull").AsInteger() != 0,
                       static_cast<int>(rows.FieldByName("pk").AsInteger())});
  }
  return columns;
}

std::vector<TColumnDef> ServerColumns(const std::string& connection, const std::string& table) {
  db::TMVADODataSet rows;
  rows.SetConnectionName(connection);
  rows.SetReadOnly(true);
  rows.SetCommandText(kServerColumns);
  rows.Parameters().ParamByName("TableName").Value = codepage::WideFromUtf8(table);
  rows.Open();
  std::vector<TColumnDef> columns;
  for (; !rows.Eof(); rows.Next()) {
    columns.push_back({Utf8(rows.Fields(0)), ServerType(rows), Utf8(rows.Fields(5)) == "NO",
                       static_cast<int>(rows.Fields(6).AsInteger())});
  }
  return columns;
}

// A declared type the CREATE TABLE text may carry: letters, digits, "_", blanks, and one pair of
// parentheses around numbers, "max" or a comma ("decimal(18, 2)"), nothing that could end it.
bool IsPlainType(std::string_view type) {
  int depth = 0;
  for (char c : type) {
    const bool word = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
                      c == '_' || c == ' ';
    if (c == '(')
      ++depth;
    else if (c == ')')
      --depth;
    else if (!word && !(c == ',' && depth == 1))
      return false;
    if (depth < 0 || depth > 1) return false;
  }
  return depth == 0;
}

}  // namespace

TValueClass ValueClassOf(std::string_view declaredType) {
  switch (db::FieldTypeOfDeclared(std::string(declaredType).c_str())) {
    case db::ftSmallint:
    case db::ftInteger:
    case db::ftLargeint:
      return TValueClass::Integer;
    case db::ftFloat:
    case db::ftBCD:
      return TValueClass::Real;
    case db::ftDate:
    case db::ftTime:
    case db::ftDateTime:
      return TValueClass::Date;
    case db::ftBoolean:
      return TValueClass::Bool;
    case db::ftBytes:
    case db::ftVarBytes:
      return TValueClass::Bytes;
    default:
      return TValueClass::Text;
  }
}

db::TFieldType BindTypeOf(TValueClass valueClass) {
  switch (valueClass) {
    case TValueClass::Integer:
      return db::ftLargeint;
    case TValueClass::Real:
      return db::ftFloat;
    case TValueClass::Date:
      return db::ftDateTime;
    case TValueClass::Bool:
      return db::ftBoolean;
    case TValueClass::Bytes:
      return db::ftVarBytes;
    default:
      return db::ftWideString;
  }
}

std::string BracketedName(std::string_view name) {
  std::string quoted = "[";
  for (char c : name) {
    quoted += c;
    if (c == ']') quoted += ']';
  }
  return quoted + "]";
}

bool IsSqliteDatabase(const std::string& connection) {
  if (db::Connection(connection).Backend == db::TBackend::SQLite) return true;
  try {
    db::TMVADODataSet probe;
    probe.SetConnectionName(connection);
    probe.SetReadOnly(true);
    probe.SetCommandText("select sqlite_version()");
    probe.Open();
    return true;
  } catch (const db::EDatabaseError&) {
    return false;
  }
}

TTableDef ReadTableDef(const std::string& connection, const std::string& table) {
  TTableDef def{table, IsSqliteDatabase(connection) ? SqliteColumns(connection, table)
                                                    : ServerColumns(connection, table)};
  if (def.Columns.empty()) throw db::EDatabaseError("Table '" + table + "' not found");
  return def;
}

std::string CreateTableText(const TTableDef& def, std::string_view name) {
  std::string text = "CREATE TABLE " + BracketedName(name) + " (";
  std::vector<std::string> keys;
  for (const TColumnDef& column : def.Columns) {
    if (&column != &def.Columns.front()) text += ", ";
    if (!IsPlainType(column.Type)) {
      throw db::EDatabaseError("Column '" + column.Name + "' has the type '" + column.Type +
                               "', which is no plain type name");
    }
    text += BracketedName(column.Name);
    if (!column.Type.empty()) text += " " + column.Type;
    text += column.NotNull ? " NOT NULL" : " NULL";
    if (column.KeyOrder > 0) {
      if (keys.size() < static_cast<size_t>(column.KeyOrder)) keys.resize(column.KeyOrder);
      keys[column.KeyOrder - 1] = column.Name;
    }
  }
  if (!keys.empty()) {
    text += ", PRIMARY KEY (";
    for (size_t i = 0; i < keys.size(); ++i) text += (i ? ", " : "") + BracketedName(keys[i]);
    text += ")";
  }
  return text + ")";
}

}  // namespace mv::tables
