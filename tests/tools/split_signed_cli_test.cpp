// "mvcommon split-signed", run as a separate process on real files.
#include <gtest/gtest.h>

#include "tests/support/run_program.h"
#include "tests/support/temp_dir.h"

namespace mv::test {
namespace {

RunResult RunSplit(const std::vector<std::string>& args) {
  std::vector<std::string> words = {"split-signed"};
  words.insert(words.end(), args.begin(), args.end());
  return RunProgram(MVCOMMON_PROGRAM, words);
}

TEST(SplitSignedCommand, PrintsTheCodeAndThePartFiles) {
  TempDir dir;
  const std::string file =
      dir.Write("in.xml", "<doc>\r\n<electronicSignature>\r\n AB \r\n</electronicSignature>\r\n");
  const RunResult done = RunSplit({file});
  EXPECT_EQ(done.exitCode, 0);
  EXPECT_EQ(done.out, "0\n" + dir.File("in.d") + "\n" + dir.File("in.s") + "\n");
  EXPECT_EQ(dir.Read("in.s"), "AB");

  const RunResult reversed =
      RunSplit({dir.Write("r.xml", "</electronicSignature><electronicSignature>")});
  EXPECT_EQ(reversed.exitCode, 1);
  EXPECT_EQ(reversed.out, "-14\n");
  EXPECT_EQ(RunSplit({dir.File("none.xml")}).out, "-2\n");
  EXPECT_EQ(RunSplit({""}).out, "-1\n");
}

TEST(SplitSignedCommand, CommandLinesItCannotFollow) {
  for (const std::vector<std::string>& args :
       {std::vector<std::string>{}, {"a.xml", "b.xml"}, {"--bogus", "a.xml"}}) {
    const RunResult result = RunSplit(args);
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_NE(result.err.find("Usage: mvcommon split-signed"), std::string::npos);
  }
}

}  // namespace
}  // namespace mv::test
