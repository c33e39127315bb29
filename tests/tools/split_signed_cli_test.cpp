// "mvcommon split-signed", run as a separate process on real files.
#include <gtest/gtest.h>

#include "tests/support/run_program.h"
#include "tests/support/temp_dir.h"

namespace mv::test {
namespace {

TEST(SplitSignedCommand, PrintsTheCodeAndOnSuccessThePartFiles) {
  TempDir dir;
  const std::string file =
      dir.Write("in.xml", "<d>\r\n<electronicSignature>\r\n AB \r\n</electronicSignature>");
  const RunResult done = RunProgram(MVCOMMON_PROGRAM, {"split-signed", file});
  EXPECT_EQ(done.exitCode, 0);
  EXPECT_EQ(done.out, "0\n" + dir.File("in.d") + "\n" + dir.File("in.s") + "\n");
  EXPECT_EQ(dir.Read("in.s"), "AB");
  const RunResult reversed = RunProgram(
      MVCOMMON_PROGRAM,
      {"split-signed", dir.Write("r.xml", "</electronicSignature><electronicSignature>")});
  EXPECT_EQ(reversed.out + std::to_string(reversed.exitCode), "-14\n1");
  const RunResult wrong = RunProgram(MVCOMMON_PROGRAM, {"split-signed", "a.xml", "b.xml"});
  EXPECT_EQ(wrong.exitCode, 2);
  EXPECT_NE(wrong.err.find("Usage: mvcommon split-signed"), std::string::npos);
}

}  // namespace
}  // namespace mv::test
