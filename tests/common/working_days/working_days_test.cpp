// The working-day calendar on a copy of the demo database, whose holiday tables hold the Hong Kong
// general holidays of 2024 to 2027.
#include <gtest/gtest.h>

#include <utility>

#include "common/datasets/apply_modes.h"
#include "common/dates/working_days.h"
#include "common/frame/errors.h"
#include "common/text/lang_changer.h"
#include "platform/db/connections.h"
#include "platform/db/dataset.h"
#include "platform/db/db_error.h"
#include "tests/platform/db/db_fixture.h"
#include "tests/support/demo_database.h"

namespace mv::test {
namespace {

using TMonthsDays = std::pair<int, int>;

TDateTime Date(int year, int month, int day, double hours = 0) {
  return DateOf(DayNumberOf({year, month, day}), hours / 24);
}

TMonthsDays MonthDay(TDateTime date1, TDateTime date2, db::TMVADODataSet* holidays = nullptr) {
  uint16_t months = 7, days = 7;
  holidays ? GetMonthDayRpt(*holidays, date1, date2, months, days)
           : GetMonthDay(date1, date2, months, days);
  return {months, days};
}

class WorkingDays : public testing::Test {
 protected:
  WorkingDays() { db::OpenConnection("DBMAIN", CopyDemoDatabase(dir_)); }
  ~WorkingDays() override {
    db::CloseConnection("DBMAIN");
    LangChanger().SetLanguage(kLangChinese);
  }
  TempDir dir_;
};

TEST(CalendarHelpers, LastDayAndLastVersion) {
  EXPECT_EQ(LastDay(2024, 2), 29);
  EXPECT_EQ(LastDay(2100, 2), 28);
  EXPECT_EQ(LastDay(2000, 2), 29);
  EXPECT_EQ(LastDay(2024, 4), 30);
  EXPECT_THROW(LastDay(2024, 13), EConvertError);
  EXPECT_THROW(LastDay(0, 1), EConvertError);
  EXPECT_TRUE(LastVersion(Date(2025, 1, 14, 23.9), Date(2024, 12, 31)));
  EXPECT_FALSE(LastVersion(Date(2025, 1, 15), Date(2024, 12, 31)));
  EXPECT_FALSE(LastVersion(Date(2025, 1, 10), Date(2025, 1, 1)));
}

TEST_F(WorkingDays, MonthsAndDaysUpToTheStartOfTheDaysOffBeforeTheEnd) {
  // Sat 31 May 2025 (Tuen Ng) and Sun 1 June: a Monday end counts from the Saturday.
  EXPECT_EQ(MonthDay(Date(2025, 6, 2), Date(2025, 5, 1)), TMonthsDays(0, 30));
  // Easter 2024: Fri 29 Mar to Mon 1 Apr off, so Tue 2 Apr measures to Fri 29 Mar.
  EXPECT_EQ(MonthDay(Date(2024, 4, 2, 10), Date(2024, 1, 15)), TMonthsDays(2, 14));
  // The end inside the stretch of days off, or earlier in the day than the start: nothing left.
  EXPECT_EQ(MonthDay(Date(2024, 4, 2), Date(2024, 3, 30)), TMonthsDays(0, 0));
  EXPECT_EQ(MonthDay(Date(2024, 3, 5, 9), Date(2024, 3, 5, 10)), TMonthsDays(0, 0));
  // 31 January to 28 February: the month falls back to 0, January's last day gives 28 days.
  EXPECT_EQ(MonthDay(Date(2023, 2, 28), Date(2023, 1, 31)), TMonthsDays(0, 28));
  // Over the year end, December's length counts (31 - 20 + 10); a February shorter than the
  // start's day leaves only the end's day.
  EXPECT_EQ(MonthDay(Date(2025, 1, 10), Date(2024, 11, 20)), TMonthsDays(1, 21));
  EXPECT_EQ(MonthDay(Date(2023, 3, 1), Date(2023, 1, 30)), TMonthsDays(1, 1));
  // Two or more years apart: the marker 99, one less after the day step.
  EXPECT_EQ(MonthDay(Date(2027, 3, 3), Date(2025, 3, 1)), TMonthsDays(99, 2));
  EXPECT_EQ(MonthDay(Date(2027, 3, 3), Date(2025, 3, 5)), TMonthsDays(98, 26));
}

TEST_F(WorkingDays, TheLanguageChoosesTheTableAndQueryErrorsReachTheCaller) {
  Exec("insert into YHoliday (HolDate) values (" + std::to_string(DayNumberOf({2024, 4, 9})) + ")");
  LangChanger().SetLanguage(kLangSimplified);
  EXPECT_EQ(MonthDay(Date(2024, 4, 10), Date(2024, 1, 15)), TMonthsDays(2, 25));
  LangChanger().SetLanguage(kLangEnglish);
  EXPECT_EQ(MonthDay(Date(2024, 4, 10), Date(2024, 1, 15)), TMonthsDays(2, 26));
  uint16_t months = 5, days = 5;
  LangChanger().SetLanguage(2);  // no table
  EXPECT_THROW(GetMonthDay(Date(2024, 4, 10), Date(2024, 1, 15), months, days), db::EDatabaseError);
  EXPECT_EQ(months + days, 0);
  // The failed dataset is gone: the connection closes cleanly.
  db::CloseConnection("DBMAIN");
  EXPECT_THROW(MonthDay(Date(2024, 4, 10), Date(2024, 1, 15)), db::EDatabaseError);
  db::OpenConnection("DBMAIN", "sqlite:" + dir_.File("mvdemo.db"));
}

// Whatever the library prepared the caller's set with, and wherever the caller left it, the
// answer is the table's and the set stays on its row; a set that reads forward only is refused.
TEST_F(WorkingDays, CallersHolidaySetAgreesWithTheTable) {
  LangChanger().SetLanguage(kLangEnglish);
  const TDateTime start = Date(2024, 1, 2);
  for (const auto prepare : {ApplyRead, ApplyReport}) {
    db::TMVADODataSet holidays;
    prepare(holidays);
    holidays.SetCommandText("select HolDate, HolName from Holiday order by HolName");
    holidays.Open();
    holidays.SetRecNo(holidays.RecordCount());
    holidays.Next();  // at the end, where a report leaves a set it has walked
    EXPECT_EQ(MonthDay(Date(2024, 4, 2, 10), Date(2024, 1, 15), &holidays), TMonthsDays(2, 14));
    EXPECT_TRUE(holidays.Eof());
    holidays.SetRecNo(3);
    for (int64_t day = DayOf(start); day < DayOf(start) + 800; day += 3) {
      ASSERT_EQ(MonthDay(DateOf(day, 0.5), start, &holidays), MonthDay(DateOf(day, 0.5), start));
    }
    EXPECT_EQ(holidays.RecNo(), 3);
  }
  db::TMVADODataSet holidays;
  holidays.SetCursorLocation(db::clUseServer);
  holidays.SetCommandText("select HolDate from Holiday");
  holidays.Open();
  EXPECT_THROW(MonthDay(Date(2024, 4, 10), start, &holidays), db::EDatabaseError);
  EXPECT_EQ(holidays.RecNo(), 1);
  holidays.Close();
  holidays.SetCursorLocation(db::clUseClient);
  holidays.SetCommandText("select HolName from Holiday");
  holidays.Open();
  EXPECT_THROW(MonthDay(Date(2024, 4, 10), start, &holidays), db::EDatabaseError);
}

TEST_F(WorkingDays, AtMostAYearOfDaysOffIsDiscounted) {
  const std::string end = std::to_string(DayNumberOf({2030, 6, 1}));
  Exec("create table Closed (HolDate datetime)");
  Exec(
      "with recursive d(n) as (select 1 union all select n + 1 from d where n < 400) "
      "insert into Closed select " +
      end + " - n from d");
  db::TMVADODataSet closed;
  closed.SetCommandText("select HolDate from Closed");
  closed.Open();
  // 365 days back from 1 June 2030 is 1 June 2029: a year and a day after 31 May 2028.
  EXPECT_EQ(MonthDay(Date(2030, 6, 1), Date(2028, 5, 31), &closed), TMonthsDays(12, 1));
}

}  // namespace
}  // namespace mv::test
