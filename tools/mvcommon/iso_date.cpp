#include "tools/mvcommon/iso_date.h"

#include <cmath>
#include <cstdio>
#include <regex>
#include <string>

#include "tools/mvcommon/command_line.h"

namespace mv::cli {

IsoDate ReadIsoDateTime(std::string_view text, std::string_view what) {
  static const std::regex kForm(
      R"(^(\d{4})-(\d{2})-(\d{2})(?:[T ](\d{2}):(\d{2})(?::(\d{2}))?)?$)");
  const std::string word(text);
  std::smatch parts;
  const auto number = [&parts](int i) { return parts[i].matched ? std::stoi(parts[i]) : 0; };
  const bool matched = std::regex_match(word, parts, kForm);
  const int year = matched ? number(1) : 0, month = matched ? number(2) : 0;
  const bool realDay = matched && year >= 1 && month >= 1 && month <= 12 && number(3) >= 1 &&
                       number(3) <= DaysInMonth(year, month);
  if (!realDay || number(4) > 23 || number(5) > 59 || number(6) > 59) {
    throw UsageError(std::string(what) + " must be a date yyyy-mm-dd[Thh:mm[:ss]]: " + word);
  }
  const double seconds = number(4) * 3600.0 + number(5) * 60.0 + number(6);
  return {DateOf(DayNumberOf({year, month, number(3)}), seconds / 86400.0), parts[4].matched};
}

TDateTime ReadIsoDate(std::string_view text, std::string_view what) {
  return ReadIsoDateTime(text, what).Date;
}

std::string IsoText(TDateTime date, bool withTime) {
  const TCalendarDate day = CalendarDateOf(DayOf(date));
  const int seconds = static_cast<int>(std::lround(TimeOf(date) * 86400.0)) % 86400;
  char text[32];
  std::snprintf(text, sizeof text, "%04d-%02d-%02d", static_cast<int>(day.Year), day.Month,
                day.Day);
  if (!withTime) return text;
  char time[32];
  std::snprintf(time, sizeof time, "T%02d:%02d:%02d", seconds / 3600, seconds / 60 % 60,
                seconds % 60);
  return std::string(text) + time;
}

}  // namespace mv::cli
