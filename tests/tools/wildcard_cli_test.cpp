// "mvcommon wildcard", run as a separate process: options, UTF-8 in and out, usage errors.
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/run_program.h"
#include "tests/support/temp_dir.h"

namespace mv::test {
namespace {

RunResult RunWildcard(std::vector<std::string> args) {
  args.insert(args.begin(), "wildcard");
  return RunProgram(MVCOMMON_PROGRAM, args);
}

// Each translator and option, a pattern after "--", an empty condition; Big5 characters whose
// second byte is "_" or "|" in the narrow translator.
TEST(WildcardCommand, PrintsTheConditionAndItsParameters) {
  ScopedEnv codePage("MV_CODEPAGE", "950");
  const std::pair<std::vector<std::string>, std::string> cases[] = {
      {{"MsgRef", "北_|四*|O'N"},
       "((MsgRef like '北!_' Escape '!') or (MsgRef like '四%') or (MsgRef = 'O''N'))\n"},
      {{"--wide", "MsgRef", "報單*"}, "(MsgRef like N'報單%')\n"},
      {{"--mark", "--wide", "MsgRef", "x%"}, "(MsgRef like \x02x!%\x02 Escape '!')\n"},
      {{"--no-double-quotes", "F", "O'N"}, "(F = 'O'N')\n"},
      {{"--", "F", "--wide"}, "(F = '--wide')\n"},
      {{"--params", "F", "50%|A..M|O'報*"},
       "((F like :pTmp1 Escape '!') or ((F >= :pTmp2) and (F <= :pTmp3)) or (F like :pTmp4))\n"
       "pTmp1\t50!%\npTmp2\tA\npTmp3\tM\npTmp4\tO'報%\n"},
      {{"--params", "F", "|"}, "\n"}};
  for (const auto& [args, out] : cases) {
    const RunResult result = RunWildcard(args);
    EXPECT_EQ(result.exitCode, 0) << args.back();
    EXPECT_EQ(result.out, out) << args.back();
  }
}

TEST(WildcardCommand, CommandLinesItCannotFollow) {
  const std::vector<std::string> cases[] = {
      {"F"}, {"--mark", "F", "A"}, {"--bogus", "F", "A"}, {"--params", "--wide", "F", "A"}};
  for (const std::vector<std::string>& args : cases) {
    const RunResult result = RunWildcard(args);
    EXPECT_EQ(result.exitCode, 2) << args[0];
    EXPECT_NE(result.err.find("Usage: mvcommon wildcard"), std::string::npos);
  }
  EXPECT_EQ(RunWildcard({"--help"}).exitCode, 0);
}

}  // namespace
}  // namespace mv::test
