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
  EXPECT_EQ(MV_CodePageToWideString("\xB1\xA8\xB9\xD8", 936), u"报关");
  EXPECT_EQ(MV_WideStringToCodePage(u"A", 4242), "");  // no converter: empty, no exception
  EXPECT_EQ(MV_CodePageToWideString("A", 4242), u"");

  test::ScopedEnv unknown("MV_CODEPAGE", "4242");
  EXPECT_EQ(MV_WideStringToAnsi(u"A"), "");
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
  EXPECT_EQ(MV_GetLanguageName(true), "English (United States)");
  EXPECT_EQ(MV_GetLanguageName(false), "Chinese (Traditional, Taiwan)");
}

TEST(WideVc, MarksSurviveUntilTheDatabase) {
  test::ScopedEnv big5("MV_CODEPAGE", "950");
  const std::u16string vc = u"Name LIKE \x02O'Neil%\x02 OR \x02報關\x02";
  EXPECT_EQ(MV_SetWideVc(vc), vc);
  EXPECT_EQ(MV_SetWideVc(u"A\x02"
                         u"B\x02"
                         u"C\x02"),
            u"A\x02"
            u"B\x02"
            u"C");  // unpaired mark
  EXPECT_EQ(MV_SetWideVc(std::string("\x02\xB3\xF8\x02")), u"\x02報\x02");
  EXPECT_EQ(MV_WideVcToWideString(vc), vc);
  EXPECT_EQ(MV_WideVcToAnsiString(u"\x02報\x02"), "\x02\xB3\xF8\x02");
  EXPECT_EQ(MV_WideVcLiteralsToSql(vc), u"Name LIKE N'O''Neil%' OR N'報關'");
  EXPECT_EQ(MV_WideVcLiteralsToSql(u"A\x02\x02"
                                   u"B\x02"),
            u"AN''B");
  EXPECT_EQ(MV_WideVcLiteralsToSql(u"it's plain"), u"it's plain");

  std::u16string wide;
  MV_GetWideVc(vc, wide);
  EXPECT_EQ(wide, u"Name LIKE O'Neil% OR 報關");
  std::string narrow;
  MV_GetWideVc(u"\x02報\x02", narrow);
  EXPECT_EQ(narrow, "\xB3\xF8");
  EXPECT_EQ(MV_WideStringToWideVc(u"a\x02"
                                  u"b"),
            u"ab");  // plain text holds no literal
  EXPECT_EQ(MV_AnsiStringToWideVc("\x02\xB3\xF8\x02"), u"報");
}

}  // namespace
}  // namespace mv
