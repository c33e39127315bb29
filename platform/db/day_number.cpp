#include "platform/db/day_number_p.h"

#include <cmath>
#include <cstdio>

#include "platform/system/local_time.h"

namespace mv::db {
namespace {

// Days from 1970-01-01 to the civil date (Howard Hinnant's algorithm).
long DaysFromCivil(int y, int m, int d) {
  y -= m <= 2;
  const long era = (y >= 0 ? y : y - 399) / 400;
  const long yoe = y - era * 400;
  const long doy = (153 * (m + (m > 2 ? -3 : 9)) + 2) / 5 + d - 1;
  const long doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
  return era * 146097 + doe - 719468;
}

void CivilFromDays(long z, int& y, int& m, int& d) {
  z += 719468;
  const long era = (z >= 0 ? z : z - 146096) / 146097;
  const long doe = z - era * 146097;
  const long yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;
  const long doy = doe - (365 * yoe + yoe / 4 - yoe / 100);
  const long mp = (5 * doy + 2) / 153;
  d = static_cast<int>(doy - (153 * mp + 2) / 5 + 1);
  m = static_cast<int>(mp < 10 ? mp + 3 : mp - 9);
  y = static_cast<int>(yoe + era * 400 + (m <= 2));
}

constexpr long kEpochOffset = 25569;  // 1970-01-01 as a day number
constexpr double kMsecPerDay = 86400000.0;

int DaysInMonth(int y, int m) {
  static const int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  const bool leap = (y % 4 == 0 && y % 100 != 0) || y % 400 == 0;
  return m == 2 && leap ? 29 : kDays[m - 1];
}

}  // namespace

double DayNumberOf(const TDateParts& p) {
  const double day = static_cast<double>(DaysFromCivil(p.Year, p.Month, p.Day) + kEpochOffset);
  const double time = ((p.Hour * 60.0 + p.Minute) * 60.0 + p.Second) * 1000.0 + p.Msec;
  const double fraction = time / kMsecPerDay;
  return day >= 0 ? day + fraction : day - fraction;
}

TDateParts PartsOfDayNumber(double days) {
  TDateParts p;
  const double whole = std::trunc(days);
  long long msec = std::llround(std::fabs(days - whole) * kMsecPerDay);
  long day = static_cast<long>(whole);
  if (msec >= static_cast<long long>(kMsecPerDay)) {  // rounding reached the next midnight
    msec -= static_cast<long long>(kMsecPerDay);
    day += days >= 0 ? 1 : -1;
  }
  CivilFromDays(day - kEpochOffset, p.Year, p.Month, p.Day);
  p.Msec = static_cast<int>(msec % 1000);
  p.Second = static_cast<int>(msec / 1000 % 60);
  p.Minute = static_cast<int>(msec / 60000 % 60);
  p.Hour = static_cast<int>(msec / 3600000);
  return p;
}

std::string DayNumberText(double days) {
  const TDateParts p = PartsOfDayNumber(days);
  char buffer[48];
  if (p.Hour == 0 && p.Minute == 0 && p.Second == 0 && p.Msec == 0) {
    std::snprintf(buffer, sizeof buffer, "%04d-%02d-%02d", p.Year, p.Month, p.Day);
  } else {
    std::snprintf(buffer, sizeof buffer, "%04d-%02d-%02d %02d:%02d:%02d", p.Year, p.Month, p.Day,
                  p.Hour, p.Minute, p.Second);
  }
  return buffer;
}

std::optional<double> ParseIsoDate(std::string_view text) {
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  const std::string s(text);
  TDateParts p;
  char sep = ' ';
  int consumed = 0;
  if (std::sscanf(s.c_str(), "%4d-%2d-%2d%n", &p.Year, &p.Month, &p.Day, &consumed) != 3) {
    return std::nullopt;
  }
  if (static_cast<size_t>(consumed) < s.size()) {
    int more = 0;
    const int n = std::sscanf(s.c_str() + consumed, "%c%2d:%2d%n:%2d%n.%3d%n", &sep, &p.Hour,
                              &p.Minute, &more, &p.Second, &more, &p.Msec, &more);
    if (n < 3 || (sep != ' ' && sep != 'T') || static_cast<size_t>(consumed + more) != s.size()) {
      return std::nullopt;
    }
  }
  if (p.Month < 1 || p.Month > 12 || p.Day < 1 || p.Day > DaysInMonth(p.Year, p.Month) ||
      p.Hour > 23 || p.Minute > 59 || p.Second > 59) {
    return std::nullopt;
  }
  return DayNumberOf(p);
}

double NowDayNumber() {
  const sys::TLocalTime t = sys::LocalTimeNow();
  return DayNumberOf({t.Year, t.Month, t.Day, t.Hour, t.Minute, t.Second, t.Msec});
}

}  // namespace mv::db
