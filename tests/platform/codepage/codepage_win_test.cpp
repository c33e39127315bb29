// The code pages of a Windows machine come from the system, unless MV_CODEPAGE names another.
#include <windows.h>

#include <gtest/gtest.h>

#include "platform/codepage/codepage.h"
#include "tests/support/temp_dir.h"

namespace mv::codepage {
namespace {

TEST(CodePageWin, SystemCodePageIsTheSystemsUnlessOverridden) {
  {
    test::ScopedEnv none("MV_CODEPAGE", "");
    EXPECT_EQ(SystemCodePage(), static_cast<int>(::GetACP()));
    EXPECT_TRUE(IsKnownCodePage(UserCodePage()));
  }
  test::ScopedEnv big5("MV_CODEPAGE", "950");
  EXPECT_EQ(SystemCodePage(), kBig5);
  EXPECT_EQ(UserCodePage(), kBig5);
  test::ScopedEnv notANumber("MV_CODEPAGE", "950x");
  EXPECT_EQ(SystemCodePage(), static_cast<int>(::GetACP()));
}

}  // namespace
}  // namespace mv::codepage
