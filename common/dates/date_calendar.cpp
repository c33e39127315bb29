#include "common/dates/date_calendar.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace mv {
namespace {

// Day number of 1970-01-01: the calendar conversions below count from there.
constexpr int64_t kUnixEpochDay = 25569;

int64_t FloorDiv(int64_t a, int64_t b) {
  return a / b - ((a % b != 0) && ((a < 0) != (b < 0)));
}

// Days since 1970-01-01 of a proleptic Gregorian date (eras of 400 years).
int64_t DaysFromCivil(int64_t y, int m, int d) {
  y -= m <= 2;
  const int64_t era = FloorDiv(y, 400);
  const int64_t yoe = y - era * 400;
  const int64_t doy = (153 * (m + (m > 2 ? -3 : 9)) + 2) / 5 + d - 1;
  const int64_t doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
  return era * 146097 + doe - 719468;
}

TCalendarDate CivilFromDays(int64_t z) {
  z += 719468;
  const int64_t era = FloorDiv(z, 146097);
  const int64_t doe = z - era * 146097;
  const int64_t yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;
  const int64_t doy = doe - (365 * yoe + yoe / 4 - yoe / 100);
  const int64_t mp = (5 * doy + 2) / 153;
  const int day = static_cast<int>(doy - (153 * mp + 2) / 5 + 1);
  const int month = static_cast<int>(mp < 10 ? mp + 3 : mp - 9);
  return {yoe + era * 400 + (month <= 2), month, day};
}

double Finite(TDateTime date) {
  return std::isfinite(date.Days) ? date.Days : 0.0;
}

}  // namespace

int64_t DayOf(TDateTime date) {
  const double days = std::trunc(Finite(date));
  if (days <= double(INT64_MIN / 2)) return INT64_MIN / 2;
  if (days >= double(INT64_MAX / 2)) return INT64_MAX / 2;
  return static_cast<int64_t>(days);
}

double TimeOf(TDateTime date) {
  const double days = Finite(date);
  const double time = std::fabs(days - std::trunc(days));
  return time < 1.0 ? time : 0.0;
}

TDateTime DateOf(int64_t day, double time) {
  const double whole = static_cast<double>(day);
  return {day < 0 ? whole - time : whole + time};
}

TCalendarDate CalendarDateOf(int64_t day) {
  return CivilFromDays(day - kUnixEpochDay);
}

int64_t DayNumberOf(const TCalendarDate& date) {
  return DaysFromCivil(date.Year, date.Month, date.Day) + kUnixEpochDay;
}

int DaysInMonth(int64_t year, int month) {
  static constexpr int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  const bool leap = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
  return month == 2 && leap ? 29 : kDays[month - 1];
}

TCalendarDate AddMonths(const TCalendarDate& date, int64_t months) {
  const int64_t index = date.Year * 12 + (date.Month - 1) + months;
  TCalendarDate moved{FloorDiv(index, 12), static_cast<int>(index - FloorDiv(index, 12) * 12) + 1,
                      date.Day};
  moved.Day = std::min(moved.Day, DaysInMonth(moved.Year, moved.Month));
  return moved;
}

int64_t ClampDay(int64_t day) {
  return std::clamp(day, kMinDay, kMaxDay);
}

std::string DottedDateText(int64_t day) {
  const TCalendarDate date = CalendarDateOf(day);
  char text[16];
  std::snprintf(text, sizeof text, "%04d.%02d.%02d", static_cast<int>(date.Year), date.Month,
                date.Day);
  return text;
}

}  // namespace mv
