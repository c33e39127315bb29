// "mvcommon export" and "mvcommon import" run as separate processes on copies of the demo
// database: what they print, the rows that arrive, and failures that leave nothing behind,
// a real 64 KB file system among them.
#include <gtest/gtest.h>

#include <filesystem>

#include "platform/db/connections.h"
#include "tests/common/tables/tables_fixture.h"
#include "tests/support/demo_database.h"
#include "tests/support/run_program.h"

namespace mv::test {
namespace {

namespace fs = std::filesystem;

RunResult Mvcommon(const std::vector<std::string>& args) {
  return RunProgram(MVCOMMON_PROGRAM, args);
}

class TablesCommands : public testing::Test {
 protected:
  TempDir dir_;
  std::string copy_ = CopyDemoDatabase(dir_);
  std::string archive_ = dir_.File("boxes.zip");
};

TEST_F(TablesCommands, ExportAndImportPrintTheRowsOfEachTable) {
  const RunResult out = Mvcommon({"export", "--db", copy_, archive_, "Inbox", "Systemlg"});
  ASSERT_EQ(out.exitCode, 0) << out.err;
  EXPECT_EQ(out.out, "Inbox\t4\nSystemlg\t3\n");
  EXPECT_NE(out.err.find("[2/2] Systemlg [##############################] 100% 3/3 rows"),
            std::string::npos)
      << out.err;
  dir_.Write("empty.db", "");
  const std::string empty = "sqlite:" + dir_.File("empty.db");
  const RunResult in = Mvcommon({"import", "--db", empty, archive_, "systemlg"});
  ASSERT_EQ(in.exitCode, 0) << in.err;
  EXPECT_EQ(in.out, "Systemlg\t3\n");
  EXPECT_EQ(Mvcommon({"import", "--db", empty, "--replace", archive_}).out,
            "Inbox\t4\nSystemlg\t3\n");
  db::OpenConnection("A", copy_);
  db::OpenConnection("B", empty);
  EXPECT_EQ(AllRows("A", "Inbox"), AllRows("B", "Inbox"));
  EXPECT_EQ(AllRows("A", "Systemlg"), AllRows("B", "Systemlg"));
  db::CloseConnection("A");
  db::CloseConnection("B");
}

TEST_F(TablesCommands, FailuresLeaveNothingHalfWritten) {
  const RunResult missing = Mvcommon({"export", "--db", copy_, archive_, "Inbox", "NoSuchTable"});
  EXPECT_EQ(missing.exitCode, 1);
  EXPECT_NE(missing.err.find("不能匯出資料表 NoSuchTable"), std::string::npos) << missing.err;
  EXPECT_FALSE(fs::exists(archive_));
  dir_.Write("junk.zip", std::string(300, 'x'));
  dir_.Write("empty.db", "");
  const RunResult junk =
      Mvcommon({"import", "--db", "sqlite:" + dir_.File("empty.db"), dir_.File("junk.zip")});
  EXPECT_EQ(junk.exitCode, 1);
  EXPECT_NE(junk.err.find("Cannot read the archive"), std::string::npos) << junk.err;
  EXPECT_EQ(fs::file_size(dir_.File("empty.db")), 0u);
  EXPECT_EQ(Mvcommon({"export", "--db", copy_, archive_}).exitCode, 2);
  EXPECT_EQ(Mvcommon({"import", "--db", copy_}).exitCode, 2);
}

// A 64 KB file system of the test's own (a tmpfs in a user and mount namespace): the export
// of a table larger than that is refused before anything is written.
TEST_F(TablesCommands, TooSmallFileSystemIsRefusedBeforeWriting) {
  if (RunProgram("/usr/bin/unshare", {"-rm", "true"}).exitCode != 0) {
    GTEST_SKIP() << "no user namespaces here";
  }
  db::OpenConnection("BIG", copy_);
  MakeGoods("BIG", 200);  // 200 rows of 256 bytes and text: well over 64 KB
  db::CloseConnection("BIG");
  const std::string small = dir_.MakeDir("small");
  const std::string script = "mount -t tmpfs -o size=64k none '" + small + "' && '" +
                             MVCOMMON_PROGRAM + "' export --db '" + copy_ + "' '" + small +
                             "/goods.zip' Goods; echo \"exit $?\"; ls -A '" + small + "'";
  const RunResult r = RunProgram("/usr/bin/unshare", {"-rm", "sh", "-c", script});
  EXPECT_EQ(r.out, "exit 1\n") << r.err;
  EXPECT_NE(r.err.find("Not enough free space in " + small + "/"), std::string::npos) << r.err;
  EXPECT_NE(r.err.find("可用空間不足"), std::string::npos) << r.err;
}

}  // namespace
}  // namespace mv::test
