// Day numbers (days since 1899-12-30, the time of day as fraction) to calendar parts and back.
// Private to the database layer.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace mv::db {

struct TDateParts {
  int Year = 1899, Month = 12, Day = 30, Hour = 0, Minute = 0, Second = 0, Msec = 0;
};

// The day number of the parts (proleptic Gregorian calendar).
double DayNumberOf(const TDateParts& parts);
// The parts of a day number; a negative number counts its days back and its fraction forward,
// as the client's date type does (-1.25 is 1899-12-29 06:00).
TDateParts PartsOfDayNumber(double days);
// "yyyy-mm-dd hh:nn:ss", the time left out at midnight.
std::string DayNumberText(double days);
// The day number of "yyyy-mm-dd[ hh:nn[:ss[.zzz]]]" ("T" may stand for the blank); nullopt when
// the text is not such a date or names no real day.
std::optional<double> ParseIsoDate(std::string_view text);
// Local time now as a day number.
double NowDayNumber();

}  // namespace mv::db
