// Replacement: first or every occurrence, no overlaps, ignore-case with Chinese around, result
// forms of the mixtures, and Big5 second bytes that look like the text replaced.
#include <gtest/gtest.h>

#include "modules/mv_str_replace.h"
#include "tests/modules/strings/big5.h"

namespace mv::modules {
namespace {

using namespace big5;
using ReplaceTest = Big5Test;

TEST_F(ReplaceTest, OccurrencesNeverOverlapAndNewTextIsNotSearched) {
  EXPECT_EQ(MV_WideStringReplace(std::string("aaa"), "aa", "X", rfReplaceAll), "Xa");
  EXPECT_EQ(MV_WideStringReplace(u"abab", u"ab", u"abab", rfReplaceAll), u"abababab");
  EXPECT_EQ(MV_WideStringReplace(u"abab", u"ab", u"", 0), u"ab");
  EXPECT_EQ(MV_WideStringReplace(u"abc", u"", u"x", rfReplaceAll), u"abc");
  EXPECT_EQ(MV_WideStringReplace(std::string("abc"), "", "x", rfReplaceAll), "abc");
}

TEST_F(ReplaceTest, NarrowMatchesNeverStartOrEndInsideABig5Character) {
  std::string text = kXu + "\\" + kWu + "a";
  EXPECT_EQ(MV_WideStringReplace(text, "\\", "/", rfReplaceAll), kXu + "/" + kWu + "a");
  EXPECT_EQ(MV_WideStringReplace(text, "a", "b", rfReplaceAll | rfIgnoreCase),
            kXu + "\\" + kWu + "b");
}

TEST_F(ReplaceTest, IgnoreCaseWithChineseAround) {
  std::string text = kZhong + "Abc" + kFullA + kWen + "aBC";
  EXPECT_EQ(MV_WideStringReplace(text, "abc", kWu, rfReplaceAll | rfIgnoreCase),
            kZhong + kWu + kFullA + kWen + kWu);
  EXPECT_EQ(MV_WideStringReplace(text, kFullSmallA, "-", rfIgnoreCase),
            kZhong + "Abc-" + kWen + "aBC");
  EXPECT_EQ(MV_WideStringReplace(u"中STRASSE中", u"strasse", u"x", rfIgnoreCase), u"中x中");
  EXPECT_EQ(MV_WideStringReplace(u"ΣΑΣ", u"σ", u"s", rfReplaceAll | rfIgnoreCase), u"sΑs");
  EXPECT_EQ(MV_WideStringReplace(u"aBc", u"b", u"x", rfReplaceAll), u"aBc");
}

TEST_F(ReplaceTest, MixturesGiveWideText) {
  std::u16string expected = u"報關 x";
  EXPECT_EQ(MV_WideStringReplace(std::string("\xB3\xF8\xC3\xF6 y"), "y", u"x", 0), expected);
  EXPECT_EQ(MV_WideStringReplace(std::string("\xB3\xF8\xC3\xF6 y"), u"Y", "x", rfIgnoreCase),
            expected);
  EXPECT_EQ(MV_WideStringReplace(u"報關 y", "y", "x", 0), expected);
  EXPECT_EQ(MV_WideStringReplace(u"報關 y", u"y", "x", 0), expected);
  EXPECT_EQ(MV_WideStringReplace(std::string("\xB3\xF8y"), u"y", u"關 x", 0), expected);
}

}  // namespace
}  // namespace mv::modules
