#include "platform/db/run_query_p.h"

#include <sql.h>
#include <sqlext.h>
#include <sqlite3.h>

#include <QtSql/QSqlDriver>
#include <QtSql/QSqlError>
#include <QtSql/QSqlResult>

#include "platform/db/connection_qt_p.h"
#include "platform/db/db_error.h"
#include "platform/db/lock_wait_p.h"
#include "platform/db/qt_values_p.h"
#include "platform/db/sql_text_p.h"

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

// Whether the ODBC connection `db` runs on the SQLite ODBC driver, which keeps every text as a C
// string and so ends a bound text at its first NUL, losing the rest.
bool OdbcOnSqlite(const QSqlDatabase& db) {
  const QVariant handle = db.driver()->handle();
  if (!handle.isValid()) return false;
  SQLHANDLE connection = *static_cast<SQLHANDLE const*>(handle.data());
  SQLCHAR name[64] = {};
  SQLSMALLINT length = 0;
  if (!SQL_SUCCEEDED(SQLGetInfo(connection, SQL_DBMS_NAME, name, sizeof name, &length)))
    return false;
  return std::string_view(reinterpret_cast<const char*>(name)).starts_with("SQLite");
}

bool StartsWithByteOrderMark(const QString& text) {
  return !text.isEmpty() && (text.front() == u'\xFEFF' || text.front() == u'\xFFFE');
}

// The value to bind for `v`. A text holding NUL goes whole to every driver that takes a text with
// its length; the SQLite ODBC driver cannot, so there each NUL becomes U+FFFD and what follows it
// is kept. Qt's SQLite driver binds UTF-16, and SQLite reads a text that begins with U+FEFF or
// U+FFFE as a byte-order mark: it drops the mark, and after U+FFFE reads the rest byte-swapped;
// such a text goes with one U+FEFF in front, which SQLite drops in its place.
QVariant BoundValue(const TBoundValue& v, TBackend backend, const QSqlDatabase& db) {
  QVariant value = ToQt(v.Value, v.Type, backend);
  if (value.typeId() != QMetaType::QString) return value;
  QString text = value.toString();
  if (backend == TBackend::SQLite && StartsWithByteOrderMark(text)) return text.prepend(u'\xFEFF');
  if (backend != TBackend::Odbc || !text.contains(QChar(u'\0')) || !OdbcOnSqlite(db)) return value;
  return text.replace(QChar(u'\0'), QChar(u'\xFFFD'));
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
  const std::u16string text =
      WellFormedText(backend == TBackend::SQLite ? SqliteDialect(sql) : sql);
  if (!query.prepare(QStringView(text).toString())) Refused(query);
  for (const TBoundValue& v : values) query.addBindValue(BoundValue(v, backend, db));
  if (timeout >= 0 && backend == TBackend::Odbc) SetOdbcTimeout(query, timeout);
  if (!query.exec()) Refused(query);
  return query;
}

QSqlQuery RunQuery(const TMVADOQuery& query, bool forwardOnly) {
  return RunQuery(query, query.CommandText(), forwardOnly);
}

QSqlQuery RunQuery(const TMVADOQuery& query, std::u16string_view commandText, bool forwardOnly) {
  const bool odbc = Connection(query.ConnectionName()).Backend == TBackend::Odbc;
  const TPreparedSql prepared = PrepareSql(commandText, odbc);
  std::vector<TBoundValue> values;
  values.reserve(prepared.Places.size());
  const TParameters& params = query.Parameters();
  for (const TSqlPlace& place : prepared.Places) {
    if (place.Name.empty()) {
      values.push_back({Variant(place.Text), ftWideString});
      continue;
    }
    const TParameter* p = const_cast<TParameters&>(params).FindParam(place.Name);
    if (p == nullptr) throw EDatabaseError("Parameter '" + place.Name + "' not found");
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
