// "mvcommon check", run as a separate process: the checks without an installation, the two that
// start the demo installation and show its messages, and command lines it cannot follow.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/support/run_program.h"
#include "tests/support/temp_dir.h"

namespace mv::test {
namespace {

using Args = std::vector<std::string>;

RunResult Check(Args args) {
  args.insert(args.begin(), {"check", "--machine-dir", MV_DEMO_MACHINE_DIR});
  return RunProgram(MVCOMMON_PROGRAM, args);
}

TEST(CheckCommand, PrintsEachAnswerOnALine) {
  ScopedEnv codePage("MV_CODEPAGE", "950");
  std::string out;
  for (const Args& args : {Args{"mod11", "1234567890123"},
                           {"mod36", "ABC1234567890"},
                           {"base36", "-5"},
                           {"digits", "１２"},
                           {"format", "HK/1", "AAO9", "/-"},
                           {"float", "-1.5", "5", "2"},
                           {"tabs", "a\tb"}})
    out += Check(args).out;
  EXPECT_EQ(out, "3\nU\n0\nfalse\ntrue\nfalse\ntrue\n");
}

TEST(CheckCommand, SyntaxAndCharsetShowTheUsersMessage) {
  EXPECT_EQ(Check({"--language", "1", "syntax", "a_b"}).out,
            "false\nText contains the character \"_\", which is not allowed here.\n");
  EXPECT_EQ(Check({"syntax", "a@b"}).out, "false\nText含有不容許的字元「@」。\n");
  EXPECT_EQ(Check({"charset", "TDEC", "台"}).out, "true\nC\n");
  EXPECT_EQ(Check({"charset", "發票", "发票"}).out, "true\nM\n");
  EXPECT_EQ(Check({"--language=1", "charset", "發票", "x\tb", "ÿ"}).out,
            "false\nText 2 contains the character \"\t\", which is not allowed here.\nT\n");
}

TEST(CheckCommand, CommandLinesItCannotFollow) {
  for (const Args& args : {Args{},
                           {"bogus"},
                           {"mod11"},
                           {"mod11", "a", "b"},
                           {"base36", "12x"},
                           {"float", "1", "five", "2"},
                           {"syntax"},
                           {"tabs", "--server-path"}}) {
    const RunResult result = Check(args);
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_NE(result.err.find("Usage: mvcommon check"), std::string::npos);
  }
}

}  // namespace
}  // namespace mv::test
