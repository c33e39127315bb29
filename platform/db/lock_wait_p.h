// How long a statement waits for a database that another connection has locked. Private to the
// database layer.
#pragma once

#include <QtSql/QSqlDatabase>

namespace mv::db {

// While it lives, statements on `database` wait at most `seconds` for a locked SQLite file: 0 waits
// without limit, as a time-out of 0 means on ODBC too; a negative number keeps the driver's own
// wait (5 s). Scopes nest: the wait of the enclosing one comes back when an inner one goes. Nothing
// is done for a connection that is not SQLite (ODBC statements carry their own time-out).
class TLockWait {
 public:
  TLockWait(const QSqlDatabase& database, int seconds);
  ~TLockWait();
  TLockWait(const TLockWait&) = delete;
  TLockWait& operator=(const TLockWait&) = delete;

 private:
  void* handle_;  // the sqlite3 connection, or nullptr
  int previous_ = -1;
};

}  // namespace mv::db
