// Period presets: the text form read and written, captions in both languages, matching, and the
// first date of a rolling period with its SQL expression.
#include <gtest/gtest.h>

#include <cmath>

#include "common/dates/date_param.h"
#include "common/text/lang_changer.h"
#include "tests/common/text/text_fixture.h"

namespace mv::test {
namespace {

TDateTime At(int64_t year, int month, int day, double hours = 0) {
  return DateOf(DayNumberOf({year, month, day}), hours / 24.0);
}

TEST(DateParam, UnreadableTextsAreAllDatesAndLocked) {
  for (const char* text :
       {"-1D", "", "   ", "X", "abcD", "3X", "3m", "3 M", "+-3M", "D3", "99999999999D", "-1W"}) {
    const TDateParam param = ParseDateParam(text);
    EXPECT_EQ(param.Count, -1) << text;
    EXPECT_TRUE(param.Locked) << text;
    EXPECT_TRUE(param.Match(ParseDateParam("-1D"))) << text;
  }
}

TEST(DateParam, ReadsTrimmedTextWritesItBackAndMatchesCountAndUnit) {
  const TDateParam three = ParseDateParam(" \t3M\r\n");
  EXPECT_EQ(three.ToString(), "3M");
  EXPECT_FALSE(three.Locked);
  EXPECT_EQ(ParseDateParam("+2Y").ToString(), "2Y");
  EXPECT_EQ(ParseDateParam("-2W").ToString(), "-2W");
  EXPECT_EQ(ParseDateParam("2147483647W").Count, 2147483647);
  EXPECT_TRUE(three.Match({3, TimeByMonth, true}));
  EXPECT_FALSE(three.Match({3, TimeByWeek}));
  EXPECT_FALSE(three.Match({1, TimeByMonth}));
}

class DateParamCaption : public TextFixture {
 protected:
  ~DateParamCaption() override { LangChanger().SetLanguage(kLangChinese); }
};

TEST_F(DateParamCaption, EnglishAndChineseCaptions) {
  LangChanger().SetLanguage(kLangEnglish);
  EXPECT_EQ((TDateParam{1, TimeByDay}).Description(), "Last 1 Day");
  EXPECT_EQ((TDateParam{0, TimeByDay}).Description(), "Last 0 Days");
  EXPECT_EQ(TDateParam{}.Description(), "[All]");
  LangChanger().SetLanguage(kLangChinese);
  EXPECT_EQ((TDateParam{3, TimeByMonth}).Description(), Big5("最近3月"));
  EXPECT_EQ(TDateParam{}.DescriptionW(), u"[所有]");
  std::u16string other = u"個工作天";  // the tables may be replaced
  TimeUnitChiDesc[TimeByDay].swap(other);
  EXPECT_EQ((TDateParam{5, TimeByDay}).DescriptionW(), u"最近5個工作天");
  TimeUnitChiDesc[TimeByDay].swap(other);
}

TEST(DateParam, RollingRangesKeepOrDropTheTimeOfDayAndSqlNeedsAFirstDate) {
  // Months and years start at midnight and stop at the month's last day.
  EXPECT_EQ((TDateParam{1, TimeByMonth}).GetRangeFromDate(At(2024, 3, 31, 14.5)), At(2024, 2, 29));
  EXPECT_EQ((TDateParam{1, TimeByYear}).GetRangeFromDate(At(2024, 2, 29)), At(2023, 2, 28));
  EXPECT_EQ((TDateParam{14, TimeByMonth}).GetRangeFromDate(At(2024, 1, 15)), At(2022, 11, 15));
  EXPECT_EQ((TDateParam{-2, TimeByMonth}).GetRangeFromDate(At(2024, 12, 31)), At(2025, 2, 28));
  EXPECT_EQ((TDateParam{2, TimeByDay}).GetRangeFromDate(At(2024, 3, 1, 6)), At(2024, 2, 28, 6));
  EXPECT_EQ((TDateParam{1, TimeByWeek}).GetRangeFromDate(At(2024, 1, 3, 12)), At(2023, 12, 27, 12));
  EXPECT_EQ(TDateParam{}.GetRangeFromDate(At(2024, 1, 3)), TDateTime{0});
  // Before 30 December 1899 the whole days count back and the time of day forward.
  EXPECT_EQ((TDateParam{1, TimeByDay}).GetRangeFromDate({0.25}), TDateTime{-1.25});
  EXPECT_EQ((TDateParam{2147483647, TimeByYear}).GetRangeFromDate(At(2024, 1, 1)), At(1, 1, 1));
  EXPECT_EQ(DayOf((TDateParam{0, TimeByDay}).GetRangeFromDate({NAN})), 0);
  // No first date, no condition (the condition of a first date is checked through a link).
  EXPECT_EQ(TDateParam{}.GetBeforeDateSQL(At(2024, 3, 31)), "");
  EXPECT_EQ((TDateParam{0, TimeByDay}).GetBeforeDateSQL({0}), "");
}

}  // namespace
}  // namespace mv::test
