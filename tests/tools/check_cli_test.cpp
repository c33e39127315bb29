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

// One answer a line; a refused "syntax" or "charset" adds the message in the user's language.
TEST(CheckCommand, PrintsTheAnswerAndTheMessageTheUserWouldSee) {
  ScopedEnv codePage("MV_CODEPAGE", "950");
  for (const auto& [args, out] : std::vector<std::pair<Args, std::string>>{
           {{"mod11", "1234567890123"}, "3\n"},
           {{"mod36", "ABC1234567890"}, "U\n"},
           {{"base36", "-5"}, "0\n"},
           {{"digits", "１２"}, "false\n"},
           {{"format", "HK/1", "AAO9", "/-"}, "true\n"},
           {{"format", "乁", "A"}, "true\n"},  // U+4E41: its low byte is "A"
           {{"format", "㐱", "9"}, "true\n"},  // U+3431: its low byte is "1"
           {{"float", "-1.5", "5", "2"}, "false\n"},
           {{"tabs", "a\tb"}, "true\n"},
           {{"syntax", "a@b"}, "false\nText含有不容許的字元「@」。\n"},
           {{"charset", "發票", "发票"}, "true\nM\n"},
           {{"--language=1", "charset", "發票", "x\tb", "ÿ"},
            "false\nText 2 contains the character \"\t\", which is not allowed here.\nT\n"}})
    EXPECT_EQ(Check(args).out, out) << args.back();
}

TEST(CheckCommand, CommandLinesItCannotFollow) {
  for (const Args& args : {Args{},
                           {"bogus"},
                           {"mod11", "a", "b"},
                           {"base36", "12x"},
                           {"syntax"},
                           {"tabs", "--server-path"}}) {
    const RunResult result = Check(args);
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_NE(result.err.find("Usage: mvcommon check"), std::string::npos);
  }
}

}  // namespace
}  // namespace mv::test
