// Calendar arithmetic on the client's date type, TDateTime: a day number counted from
// 30 December 1899 whose fraction is the time of day. A negative value counts its whole days
// back and its fraction forward (-1.25 is 29 December 1899, 06:00). Days are those of the
// proleptic Gregorian calendar. The dates the client handles run from 1 January 0001 to
// 31 December 9999 (day numbers kMinDay to kMaxDay).
#pragma once

#include <cstdint>
#include <string>

#include "platform/db/variant.h"

namespace mv {

using TDateTime = db::TDateTime;

inline constexpr int64_t kMinDay = -693593;  // 0001-01-01
inline constexpr int64_t kMaxDay = 2958465;  // 9999-12-31

struct TCalendarDate {
  int64_t Year = 1899;
  int Month = 12;  // 1 .. 12
  int Day = 30;    // 1 .. days of the month
  bool operator==(const TCalendarDate&) const = default;
};

// The calendar day of `date` (its whole part, rounded toward zero) and its time of day (0 up to
// but not including 1). A value that is not a finite number counts as 0.
int64_t DayOf(TDateTime date);
double TimeOf(TDateTime date);
// The date of day number `day` at time of day `time` (0 .. 1), in the client's encoding.
TDateTime DateOf(int64_t day, double time);

// The calendar date of a day number, and the day number of a calendar date (a day past the end of
// its month runs on into the next month).
TCalendarDate CalendarDateOf(int64_t day);
int64_t DayNumberOf(const TCalendarDate& date);

// The number of days of `month` (1 .. 12) in `year`: leap years are those divisible by 4, except
// centuries not divisible by 400.
int DaysInMonth(int64_t year, int month);

// `date` moved by `months` (negative: back), whole years first; the day is lowered to the last
// day of the resulting month when that month is shorter (31 March less one month is 28 or
// 29 February).
TCalendarDate AddMonths(const TCalendarDate& date, int64_t months);

// `day` brought into kMinDay .. kMaxDay.
int64_t ClampDay(int64_t day);

// The day as "yyyy.mm.dd" (always "." between the parts, whatever the machine's regional
// settings); `day` must lie in kMinDay .. kMaxDay.
std::string DottedDateText(int64_t day);

}  // namespace mv
