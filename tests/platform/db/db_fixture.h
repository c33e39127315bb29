// Databases for the tests: a SQLite file or the same file through unixODBC and the SQLite ODBC
// driver, both in a temporary folder, opened as the connection DBMAIN.
#pragma once

#include <memory>
#include <string>

#include "platform/db/command.h"
#include "tests/support/temp_dir.h"

namespace mv::test {

// Runs `sql` on DBMAIN and returns the rows it changed.
template <typename Text>
int Exec(const Text& sql) {
  db::TMVADOCommand command;
  command.SetCommandText(sql);
  return command.Execute();
}

class SqliteBackend {
 public:
  explicit SqliteBackend(const TempDir& dir);
  ~SqliteBackend();
};

class OdbcBackend {
 public:
  explicit OdbcBackend(const TempDir& dir);
  ~OdbcBackend();

 private:
  std::unique_ptr<ScopedEnv> sysIni_, userIni_;
};

}  // namespace mv::test
