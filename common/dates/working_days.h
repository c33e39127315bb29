// The working-day calendar: whole months and days between two dates, measured to the start of the
// stretch of Sundays and public holidays that directly precedes the later date, and two calendar
// helpers. Holidays come from the holiday table of the current language edition in the main
// database (connection DBMAIN), or from a holiday dataset the caller has opened.
//
// Dates are the client's date type (days since 1899-12-30, time of day as fraction). Of the two
// dates, `date1` is the later one (the end of the period), `date2` the earlier one.
#pragma once

#include <cstdint>
#include <string>

#include "common/dates/date_calendar.h"

namespace mv {

namespace db {
class TMVADODataSet;
}

// The holiday table of a language value of the language changer: 0 "ZHoliday" (Chinese
// edition), 1 "Holiday" (English), 3 "YHoliday" (Simplified Chinese); "" for any other value.
std::string HolidayTableName(uint8_t language);

// Months and days from `date2` to `date1` less the Sundays and holidays directly before `date1`
// (at most 365 of them): with E the first day of that stretch (`date1` itself when the day before
// it is a working day), months counts the calendar months from `date2` to E (99 when E lies two or
// more years later, one less when E's day of the month is not past `date2`'s) and days the days
// left over; both are 0 when E is earlier than `date2`. A holiday is a row of the holiday table of
// the current language (HolidayTableName(LangChanger().Language())) whose HolDate equals the day
// at midnight; the table is read with one query. `months` and `days` are set to 0 first; an error
// of the query (no connection, no such table, a language without a table) is raised to the caller
// as mv::db::EDatabaseError after the dataset is freed, with both still 0.
void GetMonthDay(TDateTime date1, TDateTime date2, uint16_t& months, uint16_t& days);

// The same with the holidays of `holidaySet`, an open dataset with a field HolDate, which the
// caller keeps: each day is looked up with Locate among all its rows, and the set is back on its
// row when the routine returns, so the answer does not depend on where the set stood. The set
// needs a client cursor (ApplyRead or ApplyReport prepare one); a forward-only set (server cursor)
// or one without HolDate raises mv::db::EDatabaseError, with `months` and `days` 0 and the set
// not moved.
void GetMonthDayRpt(db::TMVADODataSet& holidaySet, TDateTime date1, TDateTime date2,
                    uint16_t& months, uint16_t& days);

// The number of days (28 to 31) of `month` in `year`. Raises EConvertError for a month outside
// 1 to 12 or a year outside 1 to 9999.
uint16_t LastDay(uint16_t year, uint16_t month);

// True when `date1` lies in the first 14 days of January and `date2` in an earlier year.
bool LastVersion(TDateTime date1, TDateTime date2);

}  // namespace mv
