// "mvcommon wildcard", run as a separate process: options, UTF-8 in and out, usage errors.
#include <string>
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

TEST(WildcardCommand, PrintsTheConditionOfEachTranslator) {
  ScopedEnv codePage("MV_CODEPAGE", "950");
  EXPECT_EQ(RunWildcard({"MsgRef", "A..C|X"}).out,
            "(((MsgRef >= 'A') and (MsgRef <= 'C')) or (MsgRef = 'X'))\n");
  EXPECT_EQ(RunWildcard({"MsgRef", "北_|四*"}).out,
            "((MsgRef like '北!_' Escape '!') or (MsgRef like '四%'))\n");
  EXPECT_EQ(RunWildcard({"--wide", "MsgRef", "報單*"}).out, "(MsgRef like N'報單%')\n");
  EXPECT_EQ(RunWildcard({"--mark", "--wide", "MsgRef", "50%"}).out,
            "(MsgRef like \x02"
            "50!%\x02 Escape '!')\n");
  EXPECT_EQ(RunWildcard({"--no-double-quotes", "F", "O'N"}).out, "(F = 'O'N')\n");
  EXPECT_EQ(RunWildcard({"F", "O'N"}).out, "(F = 'O''N')\n");
}

TEST(WildcardCommand, ParamsListsTheParametersInOrder) {
  EXPECT_EQ(RunWildcard({"--params", "MsgRef", "50%|A..M"}).out,
            "((MsgRef like :pTmp1 Escape '!') or ((MsgRef >= :pTmp2) and (MsgRef <= :pTmp3)))\n"
            "pTmp1\t50!%\npTmp2\tA\npTmp3\tM\n");
  EXPECT_EQ(RunWildcard({"--params", "F", "O'報*"}).out, "(F like :pTmp1)\npTmp1\tO'報%\n");
  EXPECT_EQ(RunWildcard({"--params", "F", "|"}).out, "\n");
}

TEST(WildcardCommand, EmptyConditionAndDashedPatterns) {
  const RunResult none = RunWildcard({"MsgRef", ".."});
  EXPECT_EQ(none.exitCode, 0);
  EXPECT_EQ(none.out, "\n");
  EXPECT_EQ(RunWildcard({"--", "F", "--wide"}).out, "(F = '--wide')\n");
}

TEST(WildcardCommand, CommandLinesItCannotFollow) {
  for (const std::vector<std::string>& args : {std::vector<std::string>{"F"},
                                               {"--mark", "F", "A"},
                                               {"--bogus", "F", "A"},
                                               {"--params", "--wide", "F", "A"}}) {
    const RunResult result = RunWildcard(args);
    EXPECT_EQ(result.exitCode, 2) << args[0];
    EXPECT_NE(result.err.find("Usage: mvcommon wildcard"), std::string::npos);
  }
  EXPECT_EQ(RunWildcard({"--help"}).exitCode, 0);
}

}  // namespace
}  // namespace mv::test
