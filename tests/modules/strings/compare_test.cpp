// Comparisons across the forms: every pairing of Big5 and wide texts, Unicode folding, code point
// order beyond the basic plane, and the length of a common start.
#include <gtest/gtest.h>

#include "modules/mv_str_compare.h"
#include "tests/modules/strings/big5.h"

namespace mv::modules {
namespace {

using namespace big5;
using CompareTest = Big5Test;

TEST_F(CompareTest, EveryPairingReadsBig5AsItsWideTwin) {
  const std::string narrow = kZhong + "Ab";
  const std::u16string wide = u"中Ab";
  EXPECT_TRUE(MV_WideSameStr(narrow, wide));
  EXPECT_TRUE(MV_WideSameStr(wide, narrow));
  EXPECT_TRUE(MV_WideSameStr(narrow, narrow));
  EXPECT_FALSE(MV_WideSameStr(wide, u"中AB"));
  EXPECT_TRUE(MV_WideSameText(narrow, u"中aB"));
  EXPECT_TRUE(MV_WideSameText(u"中aB", narrow));
  EXPECT_TRUE(MV_WideSameText(kFullA + "x", kFullSmallA + "X"));
  EXPECT_FALSE(MV_WideSameText(kWu, kYi));
  EXPECT_EQ(MV_WideCompareText(u"ΣΑ", u"σα"), 0);
  EXPECT_EQ(MV_WideCompareStr(kZhong, kWen), MV_WideCompareStr(u"中", u"文"));
}

TEST(CompareOrderTest, CodePointOrderAndLengths) {
  EXPECT_EQ(MV_WideCompareStr(u"\U00010000", u"\uFFFD"), 1);  // UTF-16 units would say -1
  EXPECT_EQ(MV_WideCompareStr(u"ab", u"abc"), -1);
  EXPECT_EQ(MV_WideCompareText(u"ABC", u"ab"), 1);
  EXPECT_EQ(MV_WideCompareStr(u"B", u"a"), -1);
  EXPECT_EQ(MV_WideCompareText(u"B", u"a"), 1);
  EXPECT_EQ(MV_WideCompareStr(std::string(), std::u16string()), 0);
}

TEST_F(CompareTest, MatchCountsWholeCharacters) {
  EXPECT_EQ(_MV_Match(std::string("abcd"), "abxy"), 2);
  EXPECT_EQ(_MV_Match(kZhong + kWu, kZhong + kYi), 1);  // 兀 and 乙 share their first byte only
  EXPECT_EQ(_MV_Match(kZhong + "a", kZhong + "a"), 2);
  EXPECT_EQ(_MV_Match(std::string(), "a"), 0);
  EXPECT_EQ(_MV_Match(u"\U00020000\U00020001", u"\U00020000\U00020002"), 1);
  EXPECT_EQ(_MV_Match(u"Abc", u"abc"), 0);
}

}  // namespace
}  // namespace mv::modules
