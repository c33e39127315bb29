#include <gtest/gtest.h>

#include <string>

#include "common/text/conversions.h"
#include "tests/support/temp_dir.h"

namespace mv {
namespace {

TEST(Conversions, UserCodePageAndExplicitCodePages) {
  test::ScopedEnv big5("MV_CODEPAGE", "950");
  EXPECT_EQ(MV_AnsiToWideString("\xB3\xF8\xC3\xF6"), u"報關");
  EXPECT_EQ(MV_WideStringToAnsi(u"報關\U0001F600"), "\xB3\xF8\xC3\xF6?");
  EXPECT_TRUE(MV_IsWideStringMappableToAnsi(u"報關資料"));
  EXPECT_FALSE(MV_IsWideStringMappableToAnsi(u"\U0001F600"));
  EXPECT_EQ(MV_WideStringToCodePage(u"报关", 936), "\xB1\xA8\xB9\xD8");
  EXPECT_EQ(MV_WideStringToCodePage(u"A", 4242), "");  // no converter: empty, no exception
  EXPECT_EQ(MV_CodePageToWideString("A", 4242), u"");

  test::ScopedEnv unknown("MV_CODEPAGE", "4242");
  EXPECT_FALSE(MV_IsWideStringMappableToAnsi(u"A"));
}

TEST(Conversions, LanguageOfUserAndSystem) {
  test::ScopedEnv all("LC_ALL", "");
  test::ScopedEnv messages("LC_MESSAGES", "en_US.UTF-8");
  test::ScopedEnv ctype("LC_CTYPE", "");
  test::ScopedEnv lang("LANG", "zh_TW.Big5");
  test::ScopedEnv codePage("MV_CODEPAGE", "1252");
  EXPECT_EQ(MV_GetLanguageID(true), 0x0409);
  EXPECT_EQ(MV_GetLanguageID(false), 0x0404);
  EXPECT_EQ(MV_GetLanguageName(false), "Chinese (Traditional, Taiwan)");
}

// \u0002 marks the start and end of a literal inside a condition text.
TEST(WideVc, MarksSurviveUntilTheDatabase) {
  test::ScopedEnv big5("MV_CODEPAGE", "950");
  const std::u16string vc = u"Name LIKE \u0002O'Neil%\u0002 OR \u0002報關\u0002";
  EXPECT_EQ(MV_SetWideVc(vc), vc);
  EXPECT_EQ(MV_SetWideVc(u"A\u0002B\u0002C\u0002"), u"A\u0002B\u0002C");  // unpaired mark
  EXPECT_EQ(MV_SetWideVc(std::string("\x02\xB3\xF8\x02")), u"\u0002報\u0002");
  EXPECT_EQ(MV_WideVcToAnsiString(u"\u0002報\u0002"), "\x02\xB3\xF8\x02");
  EXPECT_EQ(MV_WideVcLiteralsToSql(vc), u"Name LIKE N'O''Neil%' OR N'報關'");
  EXPECT_EQ(MV_WideVcLiteralsToSql(u"A\u0002\u0002B\u0002"), u"AN''B");
  EXPECT_EQ(MV_WideVcLiteralsToSql(u"it's plain"), u"it's plain");

  std::u16string wide;
  MV_GetWideVc(vc, wide);
  EXPECT_EQ(wide, u"Name LIKE O'Neil% OR 報關");
  std::string narrow;
  MV_GetWideVc(u"\u0002報\u0002", narrow);
  EXPECT_EQ(narrow, "\xB3\xF8");
  EXPECT_EQ(MV_WideStringToWideVc(u"a\u0002b"), u"ab");  // plain text holds no literal
  EXPECT_EQ(MV_AnsiStringToWideVc("\x02\xB3\xF8\x02"), u"報");
}

}  // namespace
}  // namespace mv
