// The system log on a copy of the demo database: the four ways in, the row written, and failures
// that never reach the caller.
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "common/frame/shared_state.h"
#include "common/settings/system_log.h"
#include "platform/db/connections.h"
#include "platform/db/dataset.h"
#include "tests/common/text/text_fixture.h"
#include "tests/platform/db/db_fixture.h"
#include "tests/support/demo_database.h"
#include "tests/support/installation.h"

namespace mv::test {
namespace {

// Each row of the log in LogNo order: UserName|Event|RefNo|Type|Status.
std::vector<std::u16string> Rows() {
  db::TMVADODataSet ds;
  ds.SetCommandText(
      "select UserName||'|'||Event||'|'||RefNo||'|'||Type||'|'||Status from Systemlg "
      "order by LogNo");
  ds.Open();
  std::vector<std::u16string> rows;
  for (; !ds.Eof(); ds.Next()) rows.push_back(ds.Fields(0).AsWideString());
  return rows;
}

class SystemLog : public testing::Test {
 protected:
  SystemLog() {
    ResetSharedState();
    UserRecord.UserID = "DEMO";
    db::OpenConnection("DBMAIN", CopyDemoDatabase(dir_));
    Exec("delete from Systemlg");
  }
  ~SystemLog() override {
    db::CloseConnection("DBMAIN");
    ResetSharedState();
  }
  TempDir dir_;
  ScopedEnv codePage_{"MV_CODEPAGE", "950"};
};

TEST_F(SystemLog, EachOverloadWritesOneRowAtTheTimeOfTheCall) {
  InsertSystemLog(u"送出", u"TD24000131", Big5("報關"), Big5("成功"));
  InsertSystemLog(u"Send", Big5("報單1"), "HKTDEC", "OK");
  InsertSystemLog(Big5("接收"), u"TD24000132", "HKTDLD", "");
  InsertSystemLog(Big5("列印"), Big5("報單2"), "", "Failed");
  EXPECT_EQ(Rows(), (std::vector<std::u16string>{
                        u"DEMO|送出|TD24000131|報關|成功", u"DEMO|Send|報單1|HKTDEC|OK",
                        u"DEMO|接收|TD24000132|HKTDLD|", u"DEMO|列印|報單2||Failed"}));
  db::TMVADODataSet ds;
  ds.SetCommandText("select min(LogNo), (GetDate() - min(DateTime)) * 86400 from Systemlg");
  ds.Open();
  EXPECT_GT(ds.Fields(0).AsInteger(), 0);
  EXPECT_LT(std::fabs(ds.Fields(1).AsFloat()), 5);
}

TEST_F(SystemLog, NarrowRefNoIsConvertedByTheEventsForm) {
  // In a Simplified Chinese installation the system-language conversion shows Simplified
  // characters; the carrier conversion beside a wide event keeps the text as typed, and a
  // carrier's literal marks are not stored.
  SysLanguageMode = 3;
  InsertSystemLog(u"\2e\2", Big5("報關"), Big5("報關"), "");
  InsertSystemLog("e", Big5("報關"), Big5("報關"), "");
  EXPECT_EQ(Rows(), (std::vector<std::u16string>{u"DEMO|e|報關|报关|", u"DEMO|e|报关|报关|"}));
}

TEST_F(SystemLog, FailuresAreDroppedSilently) {
  Exec("alter table Systemlg rename to Systemlg_old");
  Exec(
      "create table Systemlg (LogNo integer primary key, DateTime datetime, "
      "UserName nvarchar(20), Event nvarchar(10) check (length(Event) < 5), "
      "RefNo nvarchar(35), Type nvarchar(5), Status nvarchar(5))");
  EXPECT_NO_THROW(InsertSystemLog("too long", "refused by the check", "", ""));
  InsertSystemLog("kept", "R1", "T", "S");
  EXPECT_EQ(Rows(), std::vector<std::u16string>{u"DEMO|kept|R1|T|S"});
  Exec("drop table Systemlg");
  EXPECT_NO_THROW(InsertSystemLog(u"no", "table", "", ""));
  // No dataset outlives a failure: the connection closes, and without it nothing is raised.
  db::CloseConnection("DBMAIN");
  EXPECT_NO_THROW(InsertSystemLog("no", u"connection", "", ""));
  db::OpenConnection("DBMAIN", "sqlite:" + dir_.File("mvdemo.db"));
}

}  // namespace
}  // namespace mv::test
