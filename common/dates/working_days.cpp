#include "common/dates/working_days.h"

#include <algorithm>
#include <functional>
#include <vector>

#include "common/datasets/apply_modes.h"
#include "common/frame/errors.h"
#include "common/text/lang_changer.h"
#include "platform/db/dataset.h"
#include "platform/db/db_error.h"

namespace mv {
namespace {

constexpr int kMaxDaysOff = 365;
constexpr uint16_t kOverAYear = 99;
constexpr std::string_view kHolidayField = "HolDate";

using THolidayTest = std::function<bool(int64_t day)>;

// Day 0 (1899-12-30) was a Saturday, so day 1 was a Sunday.
bool IsSunday(int64_t day) {
  return ((day % 7) + 7) % 7 == 1;
}

// The number of consecutive Sundays and holidays directly before `day`, at most kMaxDaysOff.
int DaysOffBefore(int64_t day, const THolidayTest& isHoliday) {
  int count = 0;
  while (count < kMaxDaysOff) {
    const int64_t before = day - count - 1;
    if (!IsSunday(before) && !isHoliday(before)) break;
    ++count;
  }
  return count;
}

// Every HolDate of the open dataset `holidays`, sorted, read in one pass.
std::vector<double> HolidayDates(db::TMVADODataSet& holidays) {
  std::vector<double> dates;
  db::TField& field = holidays.FieldByName(kHolidayField);
  for (; !holidays.Eof(); holidays.Next()) {
    if (!field.IsNull()) dates.push_back(field.AsDateTime().Days);
  }
  std::sort(dates.begin(), dates.end());
  return dates;
}

// Whole months and days from `from` to `to` (not earlier than `from`), by calendar parts.
void CountMonthsAndDays(const TCalendarDate& to, const TCalendarDate& from, uint16_t& months,
                        uint16_t& days) {
  if (to.Year == from.Year) {
    months = static_cast<uint16_t>(to.Month - from.Month);
  } else if (to.Year == from.Year + 1) {
    months = static_cast<uint16_t>(12 - from.Month + to.Month);
  } else {
    months = kOverAYear;
  }
  if (to.Day > from.Day) {
    days = static_cast<uint16_t>(to.Day - from.Day);
    return;
  }
  if (months == 0) return;
  --months;
  if (from.Day == DaysInMonth(from.Year, from.Month)) {
    days = static_cast<uint16_t>(to.Day);
    return;
  }
  const int64_t year = to.Month == 1 ? to.Year - 1 : to.Year;
  const int length = DaysInMonth(year, to.Month == 1 ? 12 : to.Month - 1);
  days = static_cast<uint16_t>(length > from.Day ? length - from.Day + to.Day : to.Day);
}

void MonthsAndDays(TDateTime date1, TDateTime date2, const THolidayTest& isHoliday,
                   uint16_t& months, uint16_t& days) {
  const int daysOff = DaysOffBefore(DayOf(date1), isHoliday);
  const TDateTime end{date1.Days - daysOff};
  if (end.Days < date2.Days) return;
  CountMonthsAndDays(CalendarDateOf(DayOf(end)), CalendarDateOf(DayOf(date2)), months, days);
}

// Puts the open client-cursor dataset back on row `recNo` (1-based), or at its end for 0.
void MoveBack(db::TMVADODataSet& dataset, int recNo) {
  if (recNo > 0) {
    dataset.SetRecNo(recNo);
  } else if (dataset.RecordCount() > 0) {
    dataset.SetRecNo(dataset.RecordCount());
    dataset.Next();
  }
}

}  // namespace

std::string HolidayTableName(uint8_t language) {
  switch (language) {
    case kLangChinese:
      return "ZHoliday";
    case kLangEnglish:
      return "Holiday";
    case kLangSimplified:
      return "YHoliday";
    default:
      return "";
  }
}

void GetMonthDay(TDateTime date1, TDateTime date2, uint16_t& months, uint16_t& days) {
  months = 0;
  days = 0;
  std::vector<double> holidays;
  {
    db::TMVADODataSet dataset;  // closed and freed here, also when the query fails
    ApplyRead(dataset);
    dataset.SetCommandText("Select HolDate from " + HolidayTableName(LangChanger().Language()) +
                           " order by HolDate");
    dataset.Open();
    holidays = HolidayDates(dataset);
  }
  const auto isHoliday = [&holidays](int64_t day) {
    return std::binary_search(holidays.begin(), holidays.end(), static_cast<double>(day));
  };
  MonthsAndDays(date1, date2, isHoliday, months, days);
}

void GetMonthDayRpt(db::TMVADODataSet& holidaySet, TDateTime date1, TDateTime date2,
                    uint16_t& months, uint16_t& days) {
  months = 0;
  days = 0;
  holidaySet.FieldByName(kHolidayField);  // a set without the field fails before any move
  if (holidaySet.RecordCount() < 0) {
    throw db::EDatabaseError(
        "The holiday set is read forward only: open it with a client cursor (ApplyRead or "
        "ApplyReport) so that every day can be looked up among all its rows");
  }
  const int recNo = holidaySet.RecNo();
  const auto isHoliday = [&holidaySet](int64_t day) {
    return holidaySet.Locate(kHolidayField, db::Variant(TDateTime{static_cast<double>(day)}));
  };
  MonthsAndDays(date1, date2, isHoliday, months, days);
  MoveBack(holidaySet, recNo);
}

uint16_t LastDay(uint16_t year, uint16_t month) {
  if (month < 1 || month > 12 || year < 1 || year > 9999) {
    throw EConvertError("Invalid argument to date encode: year " + std::to_string(year) +
                        ", month " + std::to_string(month));
  }
  return static_cast<uint16_t>(DaysInMonth(year, month));
}

bool LastVersion(TDateTime date1, TDateTime date2) {
  const TCalendarDate later = CalendarDateOf(DayOf(date1));
  if (later.Month != 1 || later.Day > 14) return false;
  return CalendarDateOf(DayOf(date2)).Year < later.Year;
}

}  // namespace mv
