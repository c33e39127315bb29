// Quoting and unquoting, SQL national literals and the doubled-quote check, with quote characters
// that Big5 texts carry as second bytes.
#include <gtest/gtest.h>

#include "modules/mv_str_quote.h"
#include "tests/modules/strings/big5.h"

namespace mv::modules {
namespace {

using namespace big5;
using QuoteTest = Big5Test;

TEST_F(QuoteTest, QuotesDoubleOnlyWholeQuoteCharacters) {
  EXPECT_EQ(MV_WideQuotedStr(std::string("it's"), '\''), "'it''s'");
  EXPECT_EQ(MV_WideQuotedStr(kXu + "\\", '\\'), "\\" + kXu + "\\\\\\");
  EXPECT_EQ(MV_WideQuotedStr(u"", u'"'), u"\"\"");
  EXPECT_EQ(MV_NQuotedStr(u"O'Neil 報關"), u"N'O''Neil 報關'");
  EXPECT_EQ(MV_NQuotedStr(kZhong + "'"), "N'" + kZhong + "'''");
}

TEST_F(QuoteTest, DequoteUndoublesAndStopsAtTheClosingQuote) {
  EXPECT_EQ(MV_WideDequotedStr(std::string("'it''s'x"), '\''), "it's");
  EXPECT_EQ(MV_WideDequotedStr(u"''", u'\''), u"");
  EXPECT_EQ(MV_WideDequotedStr(u"'''", u'\''), u"'''");  // the closing quote is missing
  EXPECT_EQ(MV_WideDequotedStr(u"x'a'", u'\''), u"x'a'");
  EXPECT_EQ(MV_WideDequotedStr(std::string(), '\''), "");
  std::string quoted = MV_WideQuotedStr(kXu + "\\" + kXu, '\\');
  EXPECT_EQ(MV_WideDequotedStr(quoted, '\\'), kXu + "\\" + kXu);
  EXPECT_EQ(MV_WideDequotedStr(kXu + "\\", '\\'), kXu + "\\");  // starts with 許, not a quote
}

TEST(CheckQuotTest, EveryQuoteMustBeDoubled) {
  EXPECT_TRUE(MV_CheckQuot(std::string("no quotes")));
  EXPECT_TRUE(MV_CheckQuot(u"it''s ''"));
  EXPECT_FALSE(MV_CheckQuot(u"it's"));
  EXPECT_FALSE(MV_CheckQuot(std::string("'''")));
  EXPECT_FALSE(MV_CheckQuot(std::string("x'")));
}

}  // namespace
}  // namespace mv::modules
