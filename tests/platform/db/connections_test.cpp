// Opening SQLite files: a missing file is an error that names it and leaves nothing behind; an
// existing one opens whatever characters its name holds.
#include <gtest/gtest.h>

#include <filesystem>

#include "platform/db/connections.h"
#include "platform/db/db_error.h"
#include "tests/platform/db/db_fixture.h"

namespace mv::db {
namespace {

TEST(Connections, AMissingSqliteFileIsAnErrorAndIsNotMade) {
  test::TempDir dir;
  for (const std::string& path : {dir.File("none.db"), dir.File("no folder/none.db")}) {
    try {
      OpenConnection("DBMAIN", "sqlite:" + path);
      ADD_FAILURE() << "opened " << path;
    } catch (const EDatabaseError& e) {
      EXPECT_NE(std::string(e.what()).find(path), std::string::npos) << e.what();
    }
    EXPECT_FALSE(std::filesystem::exists(path));
    EXPECT_FALSE(HasConnection("DBMAIN"));
  }
  EXPECT_THROW(OpenConnection("DBMAIN", "sqlite:"), EDatabaseError);
}

// Characters a file URI gives a meaning to ("?", "#", "%") stay part of the name.
TEST(Connections, AnExistingFileOpensWhateverItsNameHolds) {
  test::TempDir dir;
  const std::string path = dir.Write("報關 50%?#x.db", "");
  OpenConnection("DBMAIN", "sqlite:" + path);
  test::Exec("create table t (a int)");
  CloseConnection("DBMAIN");
  EXPECT_GT(std::filesystem::file_size(path), 0u);
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dir.path()), {}), 1);
}

}  // namespace
}  // namespace mv::db
