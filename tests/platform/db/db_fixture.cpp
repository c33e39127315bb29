#include "tests/platform/db/db_fixture.h"

#include "platform/db/connections.h"

namespace mv::test {

namespace {
constexpr const char* kOdbcDriver = "/usr/lib/x86_64-linux-gnu/odbc/libsqlite3odbc.so";
}

SqliteBackend::SqliteBackend(const TempDir& dir) {
  dir.Write("main.db", "");  // an empty file is an empty database
  db::OpenConnection("DBMAIN", "sqlite:" + dir.File("main.db"));
}

SqliteBackend::~SqliteBackend() {
  db::CloseConnection("DBMAIN");
}

OdbcBackend::OdbcBackend(const TempDir& dir) {
  dir.Write("odbcinst.ini", std::string("[SQLite3]\nDriver=") + kOdbcDriver + "\n");
  dir.Write("odbc.ini", "");
  sysIni_ = std::make_unique<ScopedEnv>("ODBCSYSINI", dir.path());
  userIni_ = std::make_unique<ScopedEnv>("ODBCINI", dir.File("odbc.ini"));
  db::OpenConnection("DBMAIN", "odbc:Driver=SQLite3;Database=" + dir.File("main.db") + ";");
}

OdbcBackend::~OdbcBackend() {
  db::CloseConnection("DBMAIN");
}

}  // namespace mv::test
