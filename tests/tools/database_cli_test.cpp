// "mvcommon workdays" and "mvcommon log", run as separate processes on copies of the demo
// database: the database chosen by --db or MV_DBMAIN, the results printed, and failures.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/db/connections.h"
#include "platform/db/dataset.h"
#include "tests/platform/db/db_fixture.h"
#include "tests/support/demo_database.h"
#include "tests/support/run_program.h"
#include "tests/support/temp_dir.h"

namespace mv::test {
namespace {

RunResult Mvcommon(std::vector<std::string> args) {
  return RunProgram(MVCOMMON_PROGRAM, args);
}

class DatabaseCommands : public testing::Test {
 protected:
  // Runs `sql` on the copy.
  void Exec(const std::string& sql) {
    db::OpenConnection("DBMAIN", copy_);
    test::Exec(sql);
    db::CloseConnection("DBMAIN");
  }
  std::u16string LastLogRow() {
    db::OpenConnection("DBMAIN", copy_);
    db::TMVADODataSet ds;
    ds.SetCommandText("select UserName, Event, RefNo, Type, Status from Systemlg order by LogNo");
    ds.Open();
    std::u16string row;
    for (; !ds.Eof(); ds.Next()) {
      row.clear();
      for (int i = 0; i < ds.FieldCount(); ++i) row += ds.Fields(i).AsWideString() + u"|";
    }
    ds.Close();
    db::CloseConnection("DBMAIN");
    return row;
  }

  TempDir dir_;
  std::string copy_ = CopyDemoDatabase(dir_);
  ScopedEnv noDefault_{"MV_DBMAIN", "sqlite:" + dir_.File("missing/none.db")};
};

TEST_F(DatabaseCommands, WorkdaysPrintsMonthsAndDays) {
  EXPECT_EQ(Mvcommon({"workdays", "--db", copy_, "2025-06-02", "2025-05-01"}).out, "0 30\n");
  EXPECT_EQ(
      Mvcommon({"workdays", "--db=" + copy_, "--lang", "1", "2024-04-02T10:00", "2024-01-15"}).out,
      "2 14\n");
  EXPECT_EQ(Mvcommon({"workdays", "--db", copy_, "--lang", "3", "2027-03-03", "2025-03-05"}).out,
            "98 26\n");
  ScopedEnv viaEnvironment("MV_DBMAIN", copy_);
  EXPECT_EQ(Mvcommon({"workdays", "2024-04-02 10:00:30", "2024-03-30"}).out, "0 0\n");
}

TEST_F(DatabaseCommands, WorkdaysRejectsBadInput) {
  for (const std::vector<std::string>& args :
       {std::vector<std::string>{"workdays", "--db", copy_, "2024-02-30", "2024-01-01"},
        {"workdays", "--db", copy_, "2024-03-01T24:00", "2024-01-01"},
        {"workdays", "--db", copy_, "1.3.2024", "2024-01-01"},
        {"workdays", "--db", copy_, "--lang", "2", "2024-03-01", "2024-01-01"},
        {"workdays", "--db", copy_, "2024-03-01"}}) {
    const RunResult r = Mvcommon(args);
    EXPECT_EQ(r.exitCode, 2) << args[3];
    EXPECT_EQ(r.out, "");
  }
  // MV_DBMAIN names a database that cannot be opened.
  const RunResult r = Mvcommon({"workdays", "2024-03-01", "2024-01-01"});
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_NE(r.err.find("unable to open database"), std::string::npos) << r.err;
  Exec("drop table ZHoliday");
  EXPECT_EQ(Mvcommon({"workdays", "--db", copy_, "2024-03-01", "2024-01-01"}).exitCode, 1);
}

TEST_F(DatabaseCommands, LogAppendsARowAsTheDemoUser) {
  ScopedEnv codePage("MV_CODEPAGE", "950");
  RunResult r = Mvcommon({"log", "--db", copy_, "送出", "TD24000131", "報關", "成功"});
  EXPECT_EQ(r.exitCode, 0) << r.err;
  EXPECT_EQ(r.out, "4\n");  // after the three rows of the demo log
  EXPECT_EQ(LastLogRow(), u"DEMO|送出|TD24000131|報關|成功|");
  EXPECT_EQ(Mvcommon({"log", "--db", copy_, "", "", "", ""}).out, "5\n");
  EXPECT_EQ(LastLogRow(), u"DEMO|||||");
  EXPECT_EQ(Mvcommon({"log", "--db", copy_, "only", "three", "words"}).exitCode, 2);
}

TEST_F(DatabaseCommands, LogFailsWhenNoRowArrives) {
  Exec("create table Log2 (LogNo integer primary key, DateTime datetime, UserName nvarchar(20))");
  Exec("drop table Systemlg");
  Exec("alter table Log2 rename to Systemlg");
  RunResult r = Mvcommon({"log", "--db", copy_, "e", "r", "t", "s"});
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_NE(r.err.find("not written"), std::string::npos) << r.err;
  Exec("drop table Systemlg");
  EXPECT_EQ(Mvcommon({"log", "--db", copy_, "e", "r", "t", "s"}).exitCode, 1);
}

}  // namespace
}  // namespace mv::test
