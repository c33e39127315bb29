// Case and comparison: title case and English upper case over words, digits, apostrophes and Big5
// second bytes that look like letters; Unicode case mapping and folding; code point order; the
// length of a common start; Chinese characters in either form; base-36 numbers at their limits.
#include <gtest/gtest.h>

#include "modules/mv_str_case.h"
#include "modules/mv_str_chars.h"
#include "modules/mv_str_compare.h"
#include "modules/mv_strings.h"
#include "tests/modules/strings/big5.h"

namespace mv::modules {
namespace {

using namespace big5;
using CaseTest = Big5Test;

TEST_F(CaseTest, ChangeCaseStartsEveryWordUpper) {
  EXPECT_EQ(_MV_ChangeCase(std::string("hELLO wORLD-again o'neil 2nd")),
            "Hello World-Again O'neil 2nd");
  EXPECT_EQ(_MV_ChangeCase(u"中文abc DEF éCOLE ｆoo"), u"中文Abc Def éCole ｆOo");
  EXPECT_EQ(_MV_ChangeCase(u"\U00020000xY"), u"\U00020000Xy");
  EXPECT_EQ(_MV_ChangeCase(std::string()), "");
}

TEST_F(CaseTest, Big5SecondBytesAreNoLetters) {
  // 兀 ends in "a", 乙 in "A": neither changes, and each ends a word.
  EXPECT_EQ(_MV_ChangeCase("ab" + kWu + "cd" + kYi + "EF"), "Ab" + kWu + "Cd" + kYi + "Ef");
  EXPECT_EQ(_MV_ECharUpperCase(u"aé中ｂz"), u"Aé中ｂZ");
  std::string wus;
  for (int i = 0; i < 5000; ++i) wus += kWu;  // read in pieces, some 兀 cut between two
  EXPECT_EQ(_MV_ECharUpperCase("a" + wus + "z" + kZhong), "A" + wus + "Z" + kZhong);
  EXPECT_EQ(_MV_ChangeCase("a" + wus + "zz"), "A" + wus + "Zz");
}

TEST_F(CaseTest, WideCaseMappingFollowsUnicodeOneUnitForOne) {
  // ß and ﬁ have no one-character upper case and stay; a surrogate pair (𐐨) stays as well.
  EXPECT_EQ(MV_WideUpperCase(u"straße ａσǆﬁ\U00010428"), u"STRAßE ＡΣǄﬁ\U00010428");
  EXPECT_EQ(MV_WideLowerCase(u"İI\U00010400"), u"ii\U00010400");  // root rules, not Turkish
  EXPECT_EQ(MV_WideUpperCase("x" + kWu + kFullSmallA), u"X兀Ａ");
  EXPECT_EQ(MV_WideLowerCase(kFullA + "Q"), u"ａq");
}

TEST_F(CaseTest, WideComparisonsReadBig5AsItsWideTwinInCodePointOrder) {
  const std::string narrow = kZhong + "Ab";
  const std::u16string wide = u"中Ab";
  EXPECT_TRUE(MV_WideSameStr(narrow, wide));
  EXPECT_FALSE(MV_WideSameStr(wide, u"中AB"));
  EXPECT_TRUE(MV_WideSameText(narrow, u"中aB"));
  EXPECT_TRUE(MV_WideSameText(kFullA + "x", kFullSmallA + "X"));
  EXPECT_FALSE(MV_WideSameText(kWu, kYi));
  EXPECT_EQ(MV_WideCompareText(u"ΣΑ", u"σα"), 0);
  EXPECT_EQ(MV_WideCompareStr(kZhong, kWen), MV_WideCompareStr(u"中", u"文"));
  // Code point order, then length; text comparison folds case first.
  EXPECT_EQ(MV_WideCompareStr(u"\U00010000", u"\uFFFD"), 1);  // UTF-16 units would say -1
  EXPECT_EQ(MV_WideCompareText(u"ABC", u"ab"), 1);
  EXPECT_EQ(MV_WideCompareStr(u"B", u"a"), -1);
  EXPECT_EQ(MV_WideCompareText(u"B", u"a"), 1);
  EXPECT_EQ(MV_WideCompareStr(std::string(), std::u16string()), 0);
}

TEST_F(CaseTest, CompareTextFoldsOnlySingleByteLetters) {
  EXPECT_NE(MV_CompareText(kWu, kYi), 0);  // 兀 and 乙 are different characters
  EXPECT_TRUE(MV_SameText(kWu + "abc", kWu + "ABC"));
  EXPECT_LT(MV_CompareText("a", "\xA4\xA4"), 0);  // bytes compare unsigned
  EXPECT_GT(MV_CompareText(u"b", u"A"), 0);
  EXPECT_FALSE(MV_SameText(u"ａ", u"Ａ"));  // only English letters a-z fold
}

TEST_F(CaseTest, LocaleOrderPutsPunctuationBeforeDigitsBeforeLetters) {
  EXPECT_LT(MV_AnsiCompareText("1=z", "10=a"), 0);  // byte order would put "10" first
  EXPECT_LT(MV_AnsiCompareText(u"-", u"0"), 0);
  EXPECT_LT(MV_AnsiCompareText(u"9", u"a"), 0);
  EXPECT_EQ(MV_AnsiCompareText(u"ab=1", u"AB=1"), 0);
  EXPECT_NE(MV_AnsiCompareText(u"e", u"é"), 0);                           // accents count
  EXPECT_EQ(MV_AnsiCompareText(kWu + "x", std::string("\xA4\x61X")), 0);  // Big5 read as its text
  EXPECT_NE(MV_AnsiCompareText(kWu, kYi), 0);
  EXPECT_EQ(MV_AnsiCompareText(u"a\xD800", u"A\xD800"), 0);  // a lone surrogate is a unit too
}

TEST_F(CaseTest, MatchCountsWholeCharacters) {
  EXPECT_EQ(_MV_Match(std::string("abcd"), "abxy"), 2);
  EXPECT_EQ(_MV_Match(kZhong + kWu, kZhong + kYi), 1);  // 兀 and 乙 share their first byte only
  EXPECT_EQ(_MV_Match(std::string(), "a"), 0);
  EXPECT_EQ(_MV_Match(u"\U00020000\U00020001", u"\U00020000\U00020002"), 1);
  EXPECT_EQ(_MV_Match(u"Abc", u"abc"), 0);
}

TEST_F(CaseTest, HasChineseInEitherForm) {
  EXPECT_TRUE(MV_HasChinese("abc" + kWu));
  EXPECT_TRUE(MV_HasChinese(kFullA));
  EXPECT_FALSE(MV_HasChinese("\xA3\x55"));  // Σ is a Big5 character but no Chinese one
  EXPECT_TRUE(MV_HasChinese(u"x\U00020000"));
  EXPECT_TRUE(MV_HasChinese(u"，"));
  EXPECT_FALSE(MV_HasChinese(u"éΣ\U0001F600"));
  EXPECT_FALSE(MV_HasChinese(u""));
}

TEST(Get36Test, Base36ValuesAndRejects) {
  EXPECT_EQ(MV_Get36(std::string("Z")), 35);
  EXPECT_EQ(MV_Get36(u"10"), 36);
  EXPECT_EQ(MV_Get36(std::string("zz")), 36 * 36 - 1);
  EXPECT_EQ(MV_Get36(std::string("1Y2P0IJ32E8E7")), INT64_MAX);
  EXPECT_EQ(MV_Get36(std::string("1Y2P0IJ32E8E8")), -1);
  EXPECT_EQ(MV_Get36(std::string("")), -1);
  EXPECT_EQ(MV_Get36(u" 1"), -1);
  EXPECT_EQ(MV_Get36(u"１"), -1);
}

}  // namespace
}  // namespace mv::modules
