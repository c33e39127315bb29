// Running SQL on a named connection through Qt. Private to the database layer.
#pragma once

#include <QtSql/QSqlQuery>
#include <string>
#include <string_view>
#include <vector>

#include "platform/db/query.h"

namespace mv::db {

// A value to bind with the field type that says how (a date type binds numbers as dates).
struct TBoundValue {
  Variant Value;
  TFieldType Type = ftUnknown;
};

// Runs `sql` (SQL Server's dialect, "?" places, no marks left) on `connection` with `values`
// bound in order; `timeout` seconds (-1: the driver's). Texts reach the driver well-formed (a lone
// surrogate as U+FFFD) and bound texts with their length, NULs included. A forward-only query
// fetches rows as asked. Raises EDatabaseError with the driver's message when the database
// refuses it.
QSqlQuery RunSql(const std::string& connection, const std::u16string& sql,
                 const std::vector<TBoundValue>& values, int timeout, bool forwardOnly);

// Runs the command text of `query` (see PrepareSql) with its parameters bound by name to their
// places and the literals it binds as wide texts.
QSqlQuery RunQuery(const TMVADOQuery& query, bool forwardOnly);
// The same with `commandText` in place of the query's own text.
QSqlQuery RunQuery(const TMVADOQuery& query, std::u16string_view commandText, bool forwardOnly);

// The field types of the result columns of the run `query` by their declared type names (what Qt
// does not tell): SQLite's declared types, or the type names an ODBC driver gives; empty when
// they cannot be found, ftUnknown for a column whose name means nothing.
std::vector<TFieldType> DeclaredColumnTypes(const std::string& connection, const QSqlQuery& query);

}  // namespace mv::db
