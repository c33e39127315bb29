// "mvcommon check", run as a separate process: the checks without an installation, the two that
// start the demo installation and show its messages, and command lines it cannot follow.
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/run_program.h"
#include "tests/support/temp_dir.h"

namespace mv::test {
namespace {

using Args = std::vector<std::string>;

std::string Check(Args args) {
  args.insert(args.begin(), "check");
  const RunResult result = RunProgram(MVCOMMON_PROGRAM, args);
  EXPECT_EQ(result.exitCode, 0) << result.err;
  return result.out;
}

// The same on the demo installation.
std::string CheckDemo(Args args) {
  args.insert(args.begin(), {"--machine-dir", MV_DEMO_MACHINE_DIR});
  return Check(args);
}

TEST(CheckCommand, AnswersWithoutAnInstallation) {
  ScopedEnv codePage("MV_CODEPAGE", "950");
  EXPECT_EQ(Check({"mod11", "1234567890123"}), "3\n");
  EXPECT_EQ(Check({"mod36", "ABC1234567890"}), "U\n");
  EXPECT_EQ(Check({"base36", "123456"}), "2N9C\n");
  EXPECT_EQ(Check({"base36", "-5"}), "0\n");
  EXPECT_EQ(Check({"digits", "0123"}), "true\n");
  EXPECT_EQ(Check({"digits", "１２"}), "false\n");
  EXPECT_EQ(Check({"format", "ab12", "AA99"}), "true\n");
  EXPECT_EQ(Check({"format", "HK/1", "AAO9", "/-"}), "true\n");
  EXPECT_EQ(Check({"format", "HK/1", "AAO9"}), "false\n");
  EXPECT_EQ(Check({"float", "12.5", "5", "2"}), "true\n");
  EXPECT_EQ(Check({"float", "-1.5", "5", "2"}), "false\n");
  EXPECT_EQ(Check({"tabs", "a\tb"}), "true\n");
  EXPECT_EQ(Check({"tabs", "\"a\tb\",c"}), "false\n");
}

TEST(CheckCommand, SyntaxAndCharsetShowTheUsersMessage) {
  EXPECT_EQ(CheckDemo({"syntax", "Invoice no. 12"}), "true\n");
  EXPECT_EQ(CheckDemo({"--language", "1", "syntax", "a_b"}),
            "false\nText contains the character \"_\", which is not allowed here.\n");
  EXPECT_EQ(CheckDemo({"syntax", "a@b"}), "false\nText含有不容許的字元「@」。\n");
  EXPECT_EQ(CheckDemo({"charset", "TDEC", "台"}), "true\nC\n");
  EXPECT_EQ(CheckDemo({"charset", "發票", "发票"}), "true\nM\n");
  EXPECT_EQ(CheckDemo({"--language=1", "charset", "發票", "x\tb", "发"}),
            "false\nText 2 contains the character \"\t\", which is not allowed here.\nT\n");
  EXPECT_EQ(CheckDemo({"--language=1", "charset", "ÿ"}),
            "false\nText 1 contains the character \"ÿ\", which is not allowed here.\nE\n");
}

TEST(CheckCommand, CommandLinesItCannotFollow) {
  for (const Args& args :
       {Args{}, Args{"bogus", "x"}, Args{"mod11"}, Args{"mod11", "a", "b"}, Args{"base36", "12x"},
        Args{"float", "1", "5"}, Args{"float", "1", "five", "2"}, Args{"syntax"},
        Args{"tabs", "x", "--server-path"}}) {
    Args line = args;
    line.insert(line.begin(), "check");
    const RunResult result = RunProgram(MVCOMMON_PROGRAM, line);
    EXPECT_EQ(result.exitCode, 2) << (args.empty() ? "" : args[0]);
    EXPECT_NE(result.err.find("Usage: mvcommon check"), std::string::npos);
  }
  EXPECT_EQ(RunProgram(MVCOMMON_PROGRAM, {"check", "--help"}).exitCode, 0);
}

}  // namespace
}  // namespace mv::test
