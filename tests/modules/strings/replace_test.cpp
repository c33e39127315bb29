// Replacement and quoting: first or every occurrence, no overlaps, ignore-case with Chinese
// around, result forms of the mixtures, SQL national literals, the doubled-quote check, and Big5
// second bytes that look like the text replaced or the quote character.
#include <gtest/gtest.h>

#include "modules/mv_str_quote.h"
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
  const std::string narrow = "\xB3\xF8\xC3\xF6 y";  // 報關 y
  const std::u16string expected = u"報關 x";
  EXPECT_EQ(MV_WideStringReplace(narrow, "y", u"x", 0), expected);
  EXPECT_EQ(MV_WideStringReplace(narrow, u"Y", "x", rfIgnoreCase), expected);
  EXPECT_EQ(MV_WideStringReplace(u"報關 y", "y", "x", 0), expected);
  EXPECT_EQ(MV_WideStringReplace(std::string("\xB3\xF8y"), u"y", u"關 x", 0), expected);
}

TEST_F(ReplaceTest, QuotesDoubleOnlyWholeQuoteCharacters) {
  EXPECT_EQ(MV_WideQuotedStr(std::string("it's"), '\''), "'it''s'");
  EXPECT_EQ(MV_WideQuotedStr(kXu + "\\", '\\'), "\\" + kXu + "\\\\\\");
  EXPECT_EQ(MV_WideQuotedStr(u"", u'"'), u"\"\"");
  EXPECT_EQ(MV_NQuotedStr(u"O'Neil 報關"), u"N'O''Neil 報關'");
  EXPECT_EQ(MV_NQuotedStr(kZhong + "'"), "N'" + kZhong + "'''");
}

TEST_F(ReplaceTest, DequoteAndCheckWantQuotesDoubled) {
  EXPECT_EQ(MV_WideDequotedStr(std::string("'it''s'x"), '\''), "it's");
  EXPECT_EQ(MV_WideDequotedStr(u"''", u'\''), u"");
  EXPECT_EQ(MV_WideDequotedStr(u"'''", u'\''), u"'''");  // the closing quote is missing
  EXPECT_EQ(MV_WideDequotedStr(u"x'a'", u'\''), u"x'a'");
  EXPECT_EQ(MV_WideDequotedStr(std::string(), '\''), "");
  EXPECT_EQ(MV_WideDequotedStr("\\" + kXu + "\\\\" + kXu + "\\", '\\'), kXu + "\\" + kXu);
  EXPECT_EQ(MV_WideDequotedStr(kXu + "\\", '\\'), kXu + "\\");  // starts with 許, not a quote
  // The check wants every quote doubled.
  EXPECT_TRUE(MV_CheckQuot(std::string("no quotes")));
  EXPECT_TRUE(MV_CheckQuot(u"it''s ''"));
  EXPECT_FALSE(MV_CheckQuot(u"it's"));
  EXPECT_FALSE(MV_CheckQuot(std::string("'''")));
  EXPECT_FALSE(MV_CheckQuot(std::string("x'")));
}

}  // namespace
}  // namespace mv::modules
