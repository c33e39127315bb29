// Dates on the command line: the ISO form yyyy-mm-dd, with an optional time of day
// (yyyy-mm-ddThh:mm or yyyy-mm-ddThh:mm:ss; a blank may stand for the "T").
#pragma once

#include <string>
#include <string_view>

#include "common/dates/date_calendar.h"

namespace mv::cli {

// A date read from the command line; `WithTime` tells whether a time of day was written.
struct IsoDate {
  TDateTime Date;
  bool WithTime = false;
};

// The date-time `text` names (the client's date type). Raises UsageError naming `what` and the
// text when it is not in the form above or names no real day or time (2023-02-29, 24:00).
IsoDate ReadIsoDateTime(std::string_view text, std::string_view what);

// ReadIsoDateTime's date alone.
TDateTime ReadIsoDate(std::string_view text, std::string_view what);

// `date` written yyyy-mm-dd, followed by Thh:mm:ss (to the nearest second) when `withTime`.
std::string IsoText(TDateTime date, bool withTime);

}  // namespace mv::cli
