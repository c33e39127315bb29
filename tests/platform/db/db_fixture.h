// Databases for the tests: a SQLite file or the same file through unixODBC and the SQLite ODBC
// driver, both in a temporary folder, opened as the connection DBMAIN.
#pragma once

#include <memory>
#include <string>

#include "platform/db/command.h"
#include "tests/support/temp_dir.h"

namespace mv::test {

// Runs `sql` on DBMAIN and returns the rows it changed.
int Exec(const std::string& sql);
int Exec(const std::u16string& sql);

class SqliteBackend {
 public:
  explicit SqliteBackend(const TempDir& dir);
  ~SqliteBackend();
  static constexpr bool kOdbc = false;
};

class OdbcBackend {
 public:
  explicit OdbcBackend(const TempDir& dir);
  ~OdbcBackend();
  static constexpr bool kOdbc = true;

 private:
  std::unique_ptr<ScopedEnv> sysIni_, userIni_;
};

}  // namespace mv::test
