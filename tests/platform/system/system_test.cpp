// Facts about the machine and the process: registered messages, the floating-point control word,
// the system's version, the program's own file and an exit that skips every clean-up.
#include "platform/system/machine.h"

#include <gtest/gtest.h>

#include "platform/files/paths.h"
#include "tests/support/helper_program.h"
#include "tests/support/run_program.h"

namespace mv::sys {
namespace {

TEST(System, RegisteredMessagesKeepTheirNumber) {
  const uint32_t advertise = RegisterWindowMessage("eAdvertise");
  EXPECT_GE(advertise, 0xC000u);
  EXPECT_LE(advertise, 0xFFFFu);
  EXPECT_EQ(RegisterWindowMessage("eAdvertise"), advertise);
  EXPECT_NE(RegisterWindowMessage("eAdvertise2"), advertise);
}

TEST(System, FpuControlWordIsLoadedAndPutBack) {
  const uint16_t saved = GetFpuControlWord();
  // Another rounding mode (bits 10-11) and precision (bits 8-9) than the one in force.
  const uint16_t other = static_cast<uint16_t>(saved ^ 0x0F00u);
  SetFpuControlWord(other);
  EXPECT_EQ(GetFpuControlWord(), other);
  SetFpuControlWord(saved);
  EXPECT_EQ(GetFpuControlWord(), saved);
}

TEST(System, VersionNeedsTheRecordSize) {
  TOSVersionInfo info;
  EXPECT_FALSE(GetVersionEx(info));
  info.dwOSVersionInfoSize = kOSVersionInfoSize;
  ASSERT_TRUE(GetVersionEx(info));
  EXPECT_GE(info.dwMajorVersion, 2u);
}

TEST(System, TheProgramsOwnFileAndTitle) {
  const std::string path = ExecutablePath();
  EXPECT_TRUE(files::FileExists(path)) << path;
  EXPECT_EQ(ApplicationTitle(), "system_test");
  SetApplicationTitle("Merovan");
  EXPECT_EQ(ApplicationTitle(), "Merovan");
  SetApplicationTitle("");
  EXPECT_EQ(ApplicationTitle(), "system_test");
}

TEST(System, TerminateEndsWithTheExitCodeAfterFlushing) {
  const test::RunResult run =
      test::RunProgram(test::HelperProgram(PLATFORM_HELPER), {"exit", "7", "last words"});
  EXPECT_EQ(run.exitCode, 7);
  EXPECT_EQ(run.out, "last words");
}

}  // namespace
}  // namespace mv::sys
