// Dates on the command line: the ISO form yyyy-mm-dd, with an optional time of day
// (yyyy-mm-ddThh:mm or yyyy-mm-ddThh:mm:ss; a blank may stand for the "T").
#pragma once

#include <string_view>

#include "common/dates/date_calendar.h"

namespace mv::cli {

// The date-time `text` names (the client's date type). Raises UsageError naming `what` and the
// text when it is not in the form above or names no real day or time (2023-02-29, 24:00).
TDateTime ReadIsoDate(std::string_view text, std::string_view what);

}  // namespace mv::cli
