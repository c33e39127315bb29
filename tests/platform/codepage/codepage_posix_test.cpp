// The code pages of a POSIX machine come from its locale.
#include <gtest/gtest.h>

#include "platform/codepage/codepage.h"
#include "tests/support/temp_dir.h"

namespace mv::codepage {
namespace {

TEST(CodePagePosix, UserCodePageFollowsTheEnvironment) {
  test::ScopedEnv all("LC_ALL", "");
  test::ScopedEnv ctype("LC_CTYPE", "");
  test::ScopedEnv lang("LANG", "C");
  test::ScopedEnv none("MV_CODEPAGE", "");
  EXPECT_EQ(UserCodePage(), kWestern);
  test::ScopedEnv utf8("LANG", "C.UTF-8");  // the C library always has this one
  EXPECT_EQ(UserCodePage(), kUtf8);
  test::ScopedEnv override("MV_CODEPAGE", "950");  // wins over the locale
  EXPECT_EQ(UserCodePage(), kBig5);
  EXPECT_EQ(SystemCodePage(), kBig5);
}

}  // namespace
}  // namespace mv::codepage
