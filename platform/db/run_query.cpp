#include "platform/db/run_query.h"

#include <sql.h>
#include <sqlext.h>
#include <sqlite3.h>

#include <QtSql/QSqlError>
#include <QtSql/QSqlResult>

#include "platform/db/connection_qt.h"
#include "platform/db/db_error.h"
#include "platform/db/qt_values.h"
#include "platform/db/sql_text.h"

namespace mv::db {
namespace {

// Qt's SQLite driver waits this long for a locked database unless told otherwise.
constexpr int kSqliteDefaultBusyMs = 5000;

void SetOdbcTimeout(const QSqlQuery& query, int seconds) {
  const QVariant handle = query.result()->handle();
  // Qt's ODBC driver hands out the statement handle as SQLHANDLE, a void*.
  if (!handle.isValid() ||
      (qstrcmp(handle.typeName(), "SQLHANDLE") != 0 && qstrcmp(handle.typeName(), "void*") != 0)) {
    return;
  }
  SQLHANDLE statement = *static_cast<SQLHANDLE const*>(handle.data());
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
  const std::u16string text = backend == TBackend::SQLite ? SqliteDialect(sql) : sql;
  if (!query.prepare(QString::fromStdU16String(text))) Refused(query);
  for (const TBoundValue& v : values) query.addBindValue(ToQt(v.Value, v.Type, backend));
  auto* sqlite = static_cast<sqlite3*>(SqliteHandleOf(db));
  if (timeout >= 0 && sqlite != nullptr) sqlite3_busy_timeout(sqlite, timeout * 1000);
  if (timeout >= 0 && backend == TBackend::Odbc) SetOdbcTimeout(query, timeout);
  const bool ok = query.exec();
  if (timeout >= 0 && sqlite != nullptr) sqlite3_busy_timeout(sqlite, kSqliteDefaultBusyMs);
  if (!ok) Refused(query);
  return query;
}

QSqlQuery RunQuery(const TMVADOQuery& query, bool forwardOnly) {
  const TPreparedSql prepared = PrepareSql(query.CommandText());
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

std::vector<TFieldType> DeclaredColumnTypes(const std::string& connection, const QSqlQuery& query) {
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
