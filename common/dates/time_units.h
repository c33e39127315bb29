// The time units of a period preset and the tables that name them, indexed by TTimeUnit. The
// tables are the library's shared variables: a caller may replace a text, and every caption made
// afterwards uses the new one.
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace mv {

enum TTimeUnit : uint8_t { TimeByDay = 0, TimeByWeek = 1, TimeByMonth = 2, TimeByYear = 3 };

inline constexpr int kTimeUnitCount = 4;

// The unit letters of the text form of a preset: 'D', 'W', 'M', 'Y'.
extern std::array<char, kTimeUnitCount> TimeUnitArray;
// English unit names for a count of exactly 1: "Day", "Week", "Month", "Year".
extern std::array<std::u16string, kTimeUnitCount> TimeUnitEngDescSingle;
// English unit names for any other count: "Days", "Weeks", "Months", "Years".
extern std::array<std::u16string, kTimeUnitCount> TimeUnitEngDescMulti;
// English unit names of unit pickers: "Day(s)", "Week(s)", "Month(s)", "Year(s)".
extern std::array<std::u16string, kTimeUnitCount> TimeUnitEngDesc;
// Chinese unit names: "日", "星期", "月", "年".
extern std::array<std::u16string, kTimeUnitCount> TimeUnitChiDesc;

}  // namespace mv
