// The system log on a copy of the demo database: the four ways in, the row written, and failures
// that never reach the caller.
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "common/frame/shared_state.h"
#include "common/settings/system_log.h"
#include "platform/codepage/codepage.h"
#include "platform/db/connections.h"
#include "platform/db/dataset.h"
#include "tests/platform/db/db_fixture.h"
#include "tests/support/demo_database.h"
#include "tests/support/installation.h"

namespace mv::test {
namespace {

struct TLogRow {
  int64_t LogNo;
  double DateTime;
  std::u16string UserName, Event, RefNo, Type, Status;
};

std::string Big5(std::u16string_view text) {
  return codepage::FromWide(text, 950);
}

class SystemLog : public testing::Test {
 protected:
  SystemLog() {
    ResetSharedState();
    UserRecord.UserID = "DEMO";
    db::OpenConnection("DBMAIN", CopyDemoDatabase(dir_));
    test::Exec("delete from Systemlg");
  }
  ~SystemLog() override {
    db::CloseConnection("DBMAIN");
    ResetSharedState();
  }

  static std::vector<TLogRow> Rows() {
    db::TMVADODataSet ds;
    ds.SetCommandText("select * from Systemlg order by LogNo");
    ds.Open();
    std::vector<TLogRow> rows;
    for (; !ds.Eof(); ds.Next()) {
      auto text = [&ds](const char* name) { return ds.FieldByName(name).AsWideString(); };
      rows.push_back({ds.FieldByName("LogNo").AsInteger(), ds.FieldByName("DateTime").AsFloat(),
                      text("UserName"), text("Event"), text("RefNo"), text("Type"),
                      text("Status")});
    }
    return rows;
  }
  static double Now() {
    db::TMVADODataSet ds;
    ds.SetCommandText("select GetDate()");
    ds.Open();
    return ds.Fields(0).AsFloat();
  }

  TempDir dir_;
  ScopedEnv codePage_{"MV_CODEPAGE", "950"};
};

TEST_F(SystemLog, EachOverloadWritesOneFullRow) {
  const double before = Now();
  InsertSystemLog(u"送出", u"TD24000131", Big5(u"報關"), Big5(u"成功"));
  InsertSystemLog(u"Send", Big5(u"報單1"), "HKTDEC", "OK");
  InsertSystemLog(Big5(u"接收"), u"TD24000132", "HKTDLD", "");
  InsertSystemLog(Big5(u"列印"), Big5(u"報單2"), "", "Failed");
  const double after = Now();

  const std::vector<TLogRow> rows = Rows();
  ASSERT_EQ(rows.size(), 4u);
  for (size_t i = 0; i < rows.size(); ++i) {
    EXPECT_GT(rows[i].LogNo, i == 0 ? 0 : rows[i - 1].LogNo);
    EXPECT_GE(rows[i].DateTime, std::floor(before * 86400) / 86400);
    EXPECT_LE(rows[i].DateTime, after);
    EXPECT_EQ(rows[i].UserName, u"DEMO");
  }
  EXPECT_EQ(rows[0].Event + u"|" + rows[0].RefNo + u"|" + rows[0].Type + u"|" + rows[0].Status,
            u"送出|TD24000131|報關|成功");
  EXPECT_EQ(rows[1].Event + u"|" + rows[1].RefNo + u"|" + rows[1].Type + u"|" + rows[1].Status,
            u"Send|報單1|HKTDEC|OK");
  EXPECT_EQ(rows[2].Event + u"|" + rows[2].RefNo + u"|" + rows[2].Type + u"|" + rows[2].Status,
            u"接收|TD24000132|HKTDLD|");
  EXPECT_EQ(rows[3].Event + u"|" + rows[3].RefNo + u"|" + rows[3].Type + u"|" + rows[3].Status,
            u"列印|報單2||Failed");
}

TEST_F(SystemLog, NarrowRefNoFollowsTheEventsForm) {
  // In a Simplified Chinese installation the system-language conversion shows Simplified
  // characters; the carrier conversion beside a wide event keeps the text as typed.
  SysLanguageMode = 3;
  InsertSystemLog(u"e", Big5(u"報關"), Big5(u"報關"), "");
  InsertSystemLog("e", Big5(u"報關"), Big5(u"報關"), "");
  // A wide event is stored as the text its carrier holds, literal marks removed.
  InsertSystemLog(
      u"\x02"
      u"a\x02",
      u"\x02"
      u"b\x02",
      "", "");
  const std::vector<TLogRow> rows = Rows();
  ASSERT_EQ(rows.size(), 3u);
  EXPECT_EQ(rows[0].RefNo, u"報關");
  EXPECT_EQ(rows[0].Type, u"报关");
  EXPECT_EQ(rows[1].RefNo, u"报关");
  EXPECT_EQ(rows[2].Event + rows[2].RefNo, u"ab");
}

TEST_F(SystemLog, FailuresAreDroppedSilently) {
  test::Exec("alter table Systemlg rename to Systemlg_old");
  test::Exec(
      "create table Systemlg (LogNo integer primary key, DateTime datetime, "
      "UserName nvarchar(20), Event nvarchar(10), RefNo nvarchar(35))");
  EXPECT_NO_THROW(InsertSystemLog(u"no", u"Type column", "", ""));
  test::Exec("drop table Systemlg");
  test::Exec(
      "create table Systemlg (LogNo integer primary key, DateTime datetime, "
      "UserName nvarchar(20), Event nvarchar(10) check (length(Event) < 5), "
      "RefNo nvarchar(35), Type nvarchar(5), Status nvarchar(5))");
  EXPECT_NO_THROW(InsertSystemLog("too long", "refused by the check", "", ""));
  InsertSystemLog("kept", "R1", "T", "S");
  ASSERT_EQ(Rows().size(), 1u);
  EXPECT_EQ(Rows()[0].Event, u"kept");
  test::Exec("drop table Systemlg");
  EXPECT_NO_THROW(InsertSystemLog(u"no", "table", "", ""));
  // No dataset outlives a failure: the connection closes, and without it nothing is raised.
  db::CloseConnection("DBMAIN");
  EXPECT_NO_THROW(InsertSystemLog("no", u"connection", "", ""));
  db::OpenConnection("DBMAIN", "sqlite:" + dir_.File("mvdemo.db"));
}

}  // namespace
}  // namespace mv::test
