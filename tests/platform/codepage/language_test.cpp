#include <gtest/gtest.h>

#include "platform/codepage/language.h"

namespace mv::codepage {
namespace {

TEST(Language, OfLocaleNames) {
  const LanguageInfo zh = LanguageOfLocale("zh_TW.Big5");
  EXPECT_EQ(zh.id, 0x0404);
  EXPECT_EQ(zh.name, u"Chinese (Traditional, Taiwan)");
  EXPECT_EQ(zh.tag, "zh-TW");
  EXPECT_EQ(LanguageOfLocale("zh_HK.UTF-8@stroke").id, 0x0C04);
  EXPECT_EQ(LanguageOfLocale("en").id, 0x0409);  // a bare language takes its likely region
  for (const char* english : {"C", "POSIX", "C.UTF-8", "", "xx_YY", "@", "."}) {
    EXPECT_EQ(LanguageOfLocale(english).tag, "en-US") << english;
  }
}

}  // namespace
}  // namespace mv::codepage
