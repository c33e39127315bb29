// A period preset that a list screen offers to limit what it shows: "[All]" or "Last " count
// unit, such as Last 3 Months. Periods roll: they end at a given date and reach back a number of
// days, weeks, months or years from it, without being aligned to the start of a week, month or
// year.
//
// Text form (how presets are stored in the user's preferences): the decimal count followed at
// once by the unit letter of TimeUnitArray: 1W, 3M, 6M, 1Y. The all-dates preset is -1D.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "common/dates/date_calendar.h"
#include "common/dates/time_units.h"

namespace mv {

struct TDateParam {
  // How many units the period reaches back; -1 means all dates (no lower bound). A count of 0 or
  // below -1 is allowed: the period then starts on or after the date it ends at.
  int32_t Count = -1;
  // The unit of Count; not looked at when Count is -1. It must be one of the four TTimeUnit
  // values: any other makes the operations below throw std::out_of_range.
  TTimeUnit TimeUnit = TimeByDay;
  // The preset must not be deleted from the preset list (always so for the all-dates preset).
  bool Locked = false;

  // The caption in the current language: "[All]" / "[所有]" for Count -1; otherwise "Last ",
  // the count and " " with the unit's name (singular from TimeUnitEngDescSingle for a count of
  // exactly 1, TimeUnitEngDescMulti for any other), or in Chinese "最近", the count and the
  // unit's TimeUnitChiDesc name: Last 1 Week / 最近1星期, Last 3 Months / 最近3月. Narrow text is
  // in the form LangChanger().CStr gives; DescriptionW is UTF-16.
  std::string Description() const;
  std::u16string DescriptionW() const;

  // The text form: the decimal Count, then the unit letter ("3M"; "-1D" for all dates as read).
  std::string ToString() const;

  // True when `other` means the same period: both counts -1 (units not compared), or equal
  // counts and equal units.
  bool Match(const TDateParam& other) const;

  // The first moment of the period that ends at `date`; 0 for all dates. Days and weeks keep the
  // time of day of `date`. Months and years keep the day of the month, lowered to the last day of
  // a shorter month (31 May less 1 month is 30 April, 29 February 2024 less 1 year is
  // 28 February 2023), and give midnight. The result, and `date` itself before it is used, are
  // kept within 1 January 0001 .. 31 December 9999: a period reaching beyond ends at that bound.
  TDateTime GetRangeFromDate(TDateTime date) const;

  // The SQL Server expression of GetRangeFromDate(date), " CONVERT(datetime, 'yyyy.mm.dd',102) "
  // with its leading and trailing blank, so a caller writes "DateColumn >=" in front and further
  // conditions behind. The date is always written with "." between year, month and day whatever
  // the machine's regional settings (style 102 reads exactly that), the time of day never. The
  // empty text when the first moment is exactly 0 (all dates, or a period that starts at day 0).
  std::string GetBeforeDateSQL(TDateTime date) const;
};

// The preset written by `text` in the text form. Blanks and control characters around it are
// dropped; the characters but the last must be a decimal whole number (an optional sign, then
// digits only) within 32 bits, and the last must be one of the TimeUnitArray letters, compared
// exactly (so "3m" is not three months). Any text that is not such a preset, an unknown unit
// letter included, reads as the all-dates preset (Count -1, TimeByDay): a damaged entry then
// hides no records rather than a guessed part of them. Locked is set when Count is -1 ("-1W"
// too, which keeps its unit and matches "-1D").
TDateParam ParseDateParam(std::string_view text);

}  // namespace mv
