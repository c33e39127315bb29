// The languages of a POSIX machine come from the locale variables.
#include <gtest/gtest.h>

#include "platform/codepage/language.h"
#include "tests/support/temp_dir.h"

namespace mv::codepage {
namespace {

TEST(LanguagePosix, UserAndSystemFromTheEnvironment) {
  test::ScopedEnv all("LC_ALL", "");
  test::ScopedEnv messages("LC_MESSAGES", "");
  test::ScopedEnv ctype("LC_CTYPE", "");
  test::ScopedEnv none("LANG", "");
  EXPECT_EQ(UserLanguage().tag, "en-US");
  test::ScopedEnv lang("LANG", "zh_TW.UTF-8");
  EXPECT_EQ(UserLanguage().id, 0x0404);
  EXPECT_EQ(SystemLanguage().id, 0x0404);
  test::ScopedEnv userMessages("LC_MESSAGES", "en_US.UTF-8");
  test::ScopedEnv systemCtype("LC_CTYPE", "zh_CN.GBK");
  EXPECT_EQ(UserLanguage().id, 0x0409);
  EXPECT_EQ(SystemLanguage().id, 0x0804);
  test::ScopedEnv overrides("LC_ALL", "zh_HK.Big5-HKSCS");
  EXPECT_EQ(UserLanguage().id, 0x0C04);
  EXPECT_EQ(SystemLanguage().id, 0x0C04);
}

}  // namespace
}  // namespace mv::codepage
