// "mvcommon period", run as a separate process: captions, first dates in the form they were asked
// in, the bracketed SQL expression, and command lines it refuses.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/run_program.h"

namespace mv::test {
namespace {

std::string Period(std::vector<std::string> args) {
  args.insert(args.begin(), "period");
  const RunResult result = RunProgram(MVCOMMON_PROGRAM, args);
  EXPECT_EQ(result.exitCode, 0) << result.err;
  return result.out;
}

TEST(PeriodCommand, PrintsCaptionsDatesInTheirOwnFormAndBracketedSql) {
  EXPECT_EQ(Period({"describe", "3M"}), "Last 3 Months\n");
  EXPECT_EQ(Period({"describe", "--lang", "zh", "1W"}), "最近1星期\n");
  EXPECT_EQ(Period({"describe", "-1D", "--lang=zh"}), "[所有]\n");
  EXPECT_EQ(Period({"range", "1M", "2024-03-31"}), "2024-02-29\n");
  EXPECT_EQ(Period({"range", "2D", "2024-03-01T14:05"}), "2024-02-28T14:05:00\n");
  EXPECT_EQ(Period({"range", "-1D", "2024-03-31"}), "0\n");
  EXPECT_EQ(Period({"sql", "1M", "2024-03-31T14:05:00"}),
            "[ CONVERT(datetime, '2024.02.29',102) ]\n");
  EXPECT_EQ(Period({"sql", "", "2024-03-31"}), "[]\n");
}

TEST(PeriodCommand, CommandLinesItCannotFollow) {
  for (const std::vector<std::string>& args :
       {std::vector<std::string>{"period"},
        {"period", "shift", "1M"},
        {"period", "range", "1M"},
        {"period", "range", "1M", "2023-02-29"},
        {"period", "range", "1M", "2024-03-31T14"},
        {"period", "sql", "1M", "2024-03-31T24:00"},
        {"period", "describe", "1M", "--lang", "fr"},
        {"period", "sql", "1M", "2024-03-31", "--lang", "en"}}) {
    const RunResult result = RunProgram(MVCOMMON_PROGRAM, args);
    EXPECT_EQ(result.exitCode, 2) << args.back();
    EXPECT_NE(result.err.find("Usage: mvcommon period"), std::string::npos) << args.back();
  }
}

}  // namespace
}  // namespace mv::test
