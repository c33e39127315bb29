#include "platform/db/run_query.h"

#include <sql.h>
#include <sqlext.h>
#include <sqlite3.h>

#include <QtSql/QSqlError>
#include <QtSql/QSqlResult>

#include "platform/db/connection_qt.h"
#include "platform/db/db_error.h"
#include "platform/db/lock_wait_p.h"
#include "platform/db/qt_values.h"
#include "platform/db/sql_text.h"

namespace mv::db {
namespace {

// The ODBC statement of a query on the ODBC driver, or nullptr. Qt hands it out as SQLHANDLE,
// which is a void*.
SQLHANDLE OdbcStatementOf(const QSqlQuery& query) {
  const QVariant handle = query.result()->handle();
  if (!handle.isValid() ||
      (qstrcmp(handle.typeName(), "SQLHANDLE") != 0 && qstrcmp(handle.typeName(), "void*") != 0)) {
    return nullptr;
  }
  return *static_cast<SQLHANDLE const*>(handle.data());
}

void SetOdbcTimeout(const QSqlQuery& query, int seconds) {
  SQLHANDLE statement = OdbcStatementOf(query);
  if (statement == nullptr) return;
  SQLSetStmtAttr(statement, SQL_ATTR_QUERY_TIMEOUT,
                 reinterpret_cast<SQLPOINTER>(static_cast<intptr_t>(seconds)), 0);
}

[[noreturn]] void Refused(const QSqlQuery& query) {
  const QSqlError error = query.lastError();
  std::string message = error.databaseText().toStdString();
  if (message.empty()) message = error.text().toStdString();
  throw EDatabaseError(message);
}

}  // namespace

QSqlQuery RunSql(const std::string& connection, const std::u16string& sql,
                 const std::vector<TBoundValue>& values, int timeout, bool forwardOnly) {
  const TBackend backend = Connection(connection).Backend;
  QSqlDatabase db = DatabaseOf(connection);
  QSqlQuery query(db);
  query.setForwardOnly(forwardOnly);
  const TLockWait wait(db, timeout);  // preparing reads the schema, which a lock may hold up too
  const std::u16string text = backend == TBackend::SQLite ? SqliteDialect(sql) : sql;
  if (!query.prepare(QString::fromStdU16String(text))) Refused(query);
  for (const TBoundValue& v : values) query.addBindValue(ToQt(v.Value, v.Type, backend));
  if (timeout >= 0 && backend == TBackend::Odbc) SetOdbcTimeout(query, timeout);
  if (!query.exec()) Refused(query);
  return query;
}

QSqlQuery RunQuery(const TMVADOQuery& query, bool forwardOnly) {
  return RunQuery(query, query.CommandText(), forwardOnly);
}

QSqlQuery RunQuery(const TMVADOQuery& query, std::u16string_view commandText, bool forwardOnly) {
  const TPreparedSql prepared = PrepareSql(commandText);
  std::vector<TBoundValue> values;
  values.reserve(prepared.Places.size());
  const TParameters& params = query.Parameters();
  for (const std::string& place : prepared.Places) {
    const TParameter* p = const_cast<TParameters&>(params).FindParam(place);
    if (p == nullptr) throw EDatabaseError("Parameter '" + place + "' not found");
    values.push_back({p->Value, p->DataType});
  }
  return RunSql(query.ConnectionName(), prepared.Sql, values, query.CommandTimeout(), forwardOnly);
}

namespace {

// The type names the ODBC driver gives the columns ("nvarchar", "char" ...), where the SQL type
// it reports says less (SQLite's driver reports every text column as varchar).
std::vector<TFieldType> OdbcColumnTypes(const QSqlQuery& query) {
  SQLHANDLE statement = OdbcStatementOf(query);
  SQLSMALLINT count = 0;
  if (statement == nullptr || !SQL_SUCCEEDED(SQLNumResultCols(statement, &count))) return {};
  std::vector<TFieldType> types;
  for (SQLUSMALLINT column = 1; column <= static_cast<SQLUSMALLINT>(count); ++column) {
    SQLCHAR name[128] = {};
    SQLSMALLINT length = 0;
    const SQLRETURN rc =
        SQLColAttribute(statement, column, SQL_DESC_TYPE_NAME, name, sizeof name, &length, nullptr);
    types.push_back(SQL_SUCCEEDED(rc) ? FieldTypeOfDeclared(reinterpret_cast<char*>(name))
                                      : ftUnknown);
  }
  return types;
}

}  // namespace

std::vector<TFieldType> DeclaredColumnTypes(const std::string& connection, const QSqlQuery& query) {
  if (Connection(connection).Backend == TBackend::Odbc) return OdbcColumnTypes(query);
  auto* db = static_cast<sqlite3*>(SqliteHandleOf(DatabaseOf(connection)));
  if (db == nullptr) return {};
  const std::u16string sql = query.lastQuery().toStdU16String();
  sqlite3_stmt* statement = nullptr;
  if (sqlite3_prepare16_v2(db, sql.data(), static_cast<int>(sql.size() * 2), &statement, nullptr) !=
      SQLITE_OK) {
    sqlite3_finalize(statement);
    return {};
  }
  std::vector<TFieldType> types;
  for (int i = 0; i < sqlite3_column_count(statement); ++i) {
    types.push_back(FieldTypeOfDeclared(sqlite3_column_decltype(statement, i)));
  }
  sqlite3_finalize(statement);
  return types;
}

}  // namespace mv::db
