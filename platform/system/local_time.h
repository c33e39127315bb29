// The machine's clock as local time.
#pragma once

namespace mv::sys {

struct TLocalTime {
  int Year = 1970, Month = 1, Day = 1;  // Month 1 .. 12, Day 1 .. 31
  int Hour = 0, Minute = 0, Second = 0, Msec = 0;
};

// The date and time now in the process's time zone, to the millisecond.
TLocalTime LocalTimeNow();

}  // namespace mv::sys
