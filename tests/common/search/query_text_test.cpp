// Condition texts without a query object: exact-match conditions, quote and colon doubling,
// joined conditions with marked literals.
#include "common/search/query_text.h"

#include <gtest/gtest.h>

#include "platform/codepage/codepage.h"
#include "tests/support/temp_dir.h"

namespace mv::test {
namespace {

TEST(StrSQLCond, ExactMatchForms) {
  EXPECT_EQ(StrSQLCond("MsgRef", u""), "((MsgRef = '') or (MsgRef IS NULL))");
  EXPECT_EQ(StrSQLCond("MsgRef", u"A*B?"), "(MsgRef = 'A*B?')");
  EXPECT_EQ(StrSQLCond("MsgRef", u"O'NEIL"), "(MsgRef = 'O''NEIL')");
  EXPECT_EQ(StrSQLCond("MsgRef", u"50%"), "(MsgRef like '50!%' Escape '!')");
  EXPECT_EQ(StrSQLCond("MsgRef", u"A!_[B"), "(MsgRef like 'A!!!_![B' Escape '!')");
  EXPECT_EQ(StrSQLCond("m.Ref", u"\"a:b\":c"), "(m.Ref = '\"a::b\":c')");
}

TEST(StrSQLCond, ValueInUserCodePage) {
  ScopedEnv codePage("MV_CODEPAGE", "950");
  EXPECT_EQ(StrSQLCond("F", u"\u5317_"), "(F like '\xA5\x5F!_' Escape '!')");
}

TEST(RepeatColonAfterOddDBQuote, OnlyColonsInsideDoubleQuotes) {
  EXPECT_EQ(RepeatColonAfterOddDBQuote(u""), u"");
  EXPECT_EQ(RepeatColonAfterOddDBQuote(u"a:b"), u"a:b");
  EXPECT_EQ(RepeatColonAfterOddDBQuote(u"\"ab\""), u"\"ab\"");
  EXPECT_EQ(RepeatColonAfterOddDBQuote(u":\"a:b\":\"::"), u":\"a::b\":\"::::");
}

TEST(CheckQuot, DoublesEveryQuote) {
  EXPECT_EQ(CheckQuot(u"none"), u"none");
  EXPECT_EQ(CheckQuot(u"'a''b'"), u"''a''''b''");
  EXPECT_EQ(CheckQuot(std::string("O'NEIL")), "O''NEIL");
  EXPECT_EQ(CheckQuot(std::string("")), "");
}

TEST(AddWildCard, JoinedTextKeepsMarks) {
  EXPECT_EQ(AddWildCard("MsgRef", u"", "and"), u"");
  EXPECT_EQ(AddWildCard("MsgRef", u"..", "or"), u"");
  EXPECT_EQ(AddWildCard("MsgRef", u"O'N*", "and"), u" and (MsgRef like \x02O'N%\x02)");
  EXPECT_EQ(AddWildCard("MsgRef", u"A..M", "or"),
            u" or ((MsgRef >= \x02"
            u"A\x02) and (MsgRef <= \x02M\x02))");
}

}  // namespace
}  // namespace mv::test
