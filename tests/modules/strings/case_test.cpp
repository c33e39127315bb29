// Case rules: title case and English upper case over words, digits, apostrophes and Big5 second
// bytes that look like letters; Unicode case mapping into wide text.
#include <gtest/gtest.h>

#include "modules/mv_str_case.h"
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
  EXPECT_EQ(_MV_ECharUpperCase("a" + kWu + "z" + kZhong), "A" + kWu + "Z" + kZhong);
  EXPECT_EQ(_MV_ECharUpperCase(u"aé中ｂz"), u"Aé中ｂZ");
  std::string wus;
  for (int i = 0; i < 5000; ++i) wus += kWu;  // read in pieces, some 兀 cut between two
  EXPECT_EQ(_MV_ECharUpperCase("a" + wus + "z"), "A" + wus + "Z");
  EXPECT_EQ(_MV_ChangeCase("a" + wus + "zz"), "A" + wus + "Zz");
}

TEST_F(CaseTest, WideCaseMappingFollowsUnicode) {
  EXPECT_EQ(MV_WideUpperCase(u"straße ａσ"), u"STRASSE ＡΣ");
  EXPECT_EQ(MV_WideLowerCase(u"İI"), u"i̇i");  // root rules, not Turkish
  EXPECT_EQ(MV_WideUpperCase("x" + kWu + kFullSmallA), u"X兀Ａ");
  EXPECT_EQ(MV_WideLowerCase(kFullA + "Q"), u"ａq");
}

}  // namespace
}  // namespace mv::modules
