// "mvcommon workdays" and "mvcommon log", run as separate processes on copies of the demo
// database: the database chosen by --db or MV_DBMAIN, the results printed, and failures.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "platform/db/connections.h"
#include "platform/db/dataset.h"
#include "tests/platform/db/db_fixture.h"
#include "tests/support/demo_database.h"
#include "tests/support/run_program.h"

namespace mv::test {
namespace {

using TArgs = std::vector<std::string>;

RunResult Mvcommon(const TArgs& args) {
  return RunProgram(MVCOMMON_PROGRAM, args);
}

class DatabaseCommands : public testing::Test {
 protected:
  // The test reads and changes the copy the commands work on through its own connection.
  DatabaseCommands() { db::OpenConnection("DBMAIN", copy_); }
  ~DatabaseCommands() override { db::CloseConnection("DBMAIN"); }

  TempDir dir_;
  std::string copy_ = CopyDemoDatabase(dir_);
  ScopedEnv noDefault_{"MV_DBMAIN", "sqlite:" + dir_.File("missing/none.db")};
};

TEST_F(DatabaseCommands, WorkdaysPrintsMonthsAndDays) {
  EXPECT_EQ(Mvcommon({"workdays", "--db", copy_, "2025-06-02", "2025-05-01"}).out, "0 30\n");
  EXPECT_EQ(
      Mvcommon({"workdays", "--db=" + copy_, "--lang", "3", "2024-04-02T10:00:30", "2024-01-15"})
          .out,
      "2 14\n");
  ScopedEnv viaEnvironment("MV_DBMAIN", copy_);
  EXPECT_EQ(Mvcommon({"workdays", "2027-03-03 08:00", "2025-03-05"}).out, "98 26\n");
}

TEST_F(DatabaseCommands, WorkdaysRejectsBadInput) {
  for (const TArgs& dates : {TArgs{"1.3.2024", "2024-01-01"},
                             {"--lang", "2", "2024-03-01", "2024-01-01"},
                             {"2024-03-01"}}) {
    TArgs args{"workdays", "--db", copy_};
    args.insert(args.end(), dates.begin(), dates.end());
    EXPECT_EQ(Mvcommon(args).exitCode, 2) << dates[0];
  }
  const RunResult r = Mvcommon({"workdays", "2024-03-01", "2024-01-01"});  // MV_DBMAIN fails
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_NE(r.err.find("missing/none.db"), std::string::npos) << r.err;
  const std::string missing = dir_.File("none.db");
  EXPECT_EQ(
      Mvcommon({"workdays", "--db", "sqlite:" + missing, "2024-03-01", "2024-01-01"}).exitCode, 1);
  EXPECT_FALSE(std::filesystem::exists(missing));
}

TEST_F(DatabaseCommands, LogAppendsARowAsTheDemoUserOrFails) {
  ScopedEnv codePage("MV_CODEPAGE", "950");
  const RunResult r = Mvcommon({"log", "--db", copy_, "送出", "TD24000131", "報關", "成功"});
  ASSERT_EQ(r.exitCode, 0) << r.err;
  // The demo log's rows come first; their number depends on what was logged into the demo.
  const int logNo = std::stoi(r.out);
  {
    db::TMVADODataSet ds;
    ds.SetCommandText("select UserName||Event||RefNo||Type||Status from Systemlg where LogNo = " +
                      std::to_string(logNo));
    ds.Open();
    EXPECT_EQ(ds.Fields(0).AsWideString(), u"DEMO送出TD24000131報關成功");
  }
  EXPECT_EQ(Mvcommon({"log", "--db", copy_, "", "", "", ""}).out, std::to_string(logNo + 1) + "\n");
  EXPECT_EQ(Mvcommon({"log", "--db", copy_, "only", "three", "words"}).exitCode, 2);
  Exec("alter table Systemlg drop column Status");
  const RunResult failed = Mvcommon({"log", "--db", copy_, "e", "r", "t", "s"});
  EXPECT_EQ(failed.exitCode, 1);
  EXPECT_NE(failed.err.find("not written"), std::string::npos) << failed.err;
}

}  // namespace
}  // namespace mv::test
