// Condition texts: exact-match conditions, quote and colon doubling, joined conditions with
// marked literals; and conditions attached to a query's text with the user's words as parameters.
// The query is not opened here (see the database test for that).
#include "common/search/add_wildcard.h"

#include <gtest/gtest.h>

#include "common/search/param_list.h"
#include "common/search/query_text.h"
#include "platform/db/command.h"
#include "tests/support/temp_dir.h"

namespace mv::test {
namespace {

using db::ftInteger;
using db::ftWideString;
using db::Variant;

TEST(StrSQLCond, ExactMatchForms) {
  ScopedEnv codePage("MV_CODEPAGE", "950");
  EXPECT_EQ(StrSQLCond("MsgRef", u""), "((MsgRef = '') or (MsgRef IS NULL))");
  EXPECT_EQ(StrSQLCond("MsgRef", u"O'N*?"), "(MsgRef = 'O''N*?')");
  EXPECT_EQ(StrSQLCond("MsgRef", u"A!_[B%"), "(MsgRef like 'A!!!_![B!%' Escape '!')");
  EXPECT_EQ(StrSQLCond("m.Ref", u"\"a:b\":c"), "(m.Ref = '\"a::b\":c')");
  EXPECT_EQ(StrSQLCond("F", u"\u5317_"), "(F like '\xA5\x5F!_' Escape '!')");  // Big5 of the user
}

TEST(RepeatColonAfterOddDBQuote, OnlyColonsInsideDoubleQuotes) {
  EXPECT_EQ(RepeatColonAfterOddDBQuote(u"a:b"), u"a:b");
  EXPECT_EQ(RepeatColonAfterOddDBQuote(u"\"ab\""), u"\"ab\"");
  EXPECT_EQ(RepeatColonAfterOddDBQuote(u":\"a:b\":\"::"), u":\"a::b\":\"::::");
}

TEST(CheckQuot, DoublesEveryQuote) {
  EXPECT_EQ(CheckQuot(u"'a''b'"), u"''a''''b''");
  EXPECT_EQ(CheckQuot(std::string("O'NEIL")), "O''NEIL");
  EXPECT_EQ(CheckQuot(std::string("")), "");
}

// Literals become parameters numbered on from the list. Only a literal closed right after
// "escape" outside literals stays inline, which in practice means an empty one.
TEST(GetWildCard, LiteralsBecomeNumberedParameters) {
  TParamList list;
  EXPECT_EQ(GetWildCard(u"(MsgRef like \x02"
                        u"50!%\x02 Escape '!')",
                        true, list),
            u"(MsgRef like :pTmp1 Escape '!')");
  EXPECT_EQ(GetWildCard(u"((F >= 'A') and (F <= ''))", false, list),
            u"((F >= :pTmp2) and (F <= :pTmp3))");
  EXPECT_EQ(GetWildCard(u"(F like \x02x\x02 ESCAPE \x02\x02)", true, list),
            u"(F like :pTmp4 ESCAPE '')");
  EXPECT_EQ(GetWildCard(u"no literal", true, list), u"no literal");
  ASSERT_EQ(list.size(), 4u);
  EXPECT_EQ(list[0].Value, Variant(u"50!%"));
  EXPECT_EQ(list[1].Value, Variant(u"A"));
  EXPECT_EQ(list[2].Value, Variant(u""));
  EXPECT_EQ(list[3].Value, Variant(u"x"));
  for (const TParamEntry& entry : list) {
    EXPECT_EQ(entry.DataType, ftWideString);
    EXPECT_FALSE(entry.Existing);
  }
}

struct QueryWithTwoParameters : ::testing::Test {
  db::TMVADOCommand query;
  void SetUp() override {
    query.SetCommandText(u"select * from Inbox where Kind = :kind and Owner = :owner");
    query.Parameters()[0].DataType = ftInteger;
    query.Parameters()[0].Value = Variant(7);
    query.SetUnicodeParamValue(1, u"\x02王\x02", false);
  }
};

TEST_F(QueryWithTwoParameters, NewParametersFollowTheOldOnes) {
  AddWildCard(query, "MsgRef", u"A..M", false, false, "");
  EXPECT_EQ(query.CommandText(),
            u"select * from Inbox where Kind = :kind and Owner = :owner and "
            u"((MsgRef >= :pTmp3) and (MsgRef <= :pTmp4))");
  ASSERT_EQ(query.Parameters().Count(), 4);
  EXPECT_EQ(query.Parameters()[0].DataType, ftInteger);
  EXPECT_EQ(query.Parameters()[0].Value, Variant(7));
  EXPECT_EQ(query.Parameters()[1].Value, Variant(u"\x02王\x02"));  // kept, marks and all
  EXPECT_EQ(query.Parameters()[2].Value, Variant(u"A"));
  EXPECT_EQ(query.Parameters()[3].Value, Variant(u"M"));
}

TEST_F(QueryWithTwoParameters, EmptyConditionLeavesTheQuery) {
  const std::u16string before = query.CommandText();
  query.SetParamCheck(false);
  for (const char16_t* pattern : {u"", u"..", u"|"})
    AddWildCard(query, "MsgRef", pattern, true, false, "");
  EXPECT_EQ(query.CommandText(), before);
  EXPECT_FALSE(query.ParamCheck());
  EXPECT_EQ(query.Parameters().Count(), 2);
}

TEST(AddWildCard, ConnectingWords) {
  struct Case {
    bool addWhere, useOr;
    const char* joiner;
    const char16_t* text;
  };
  for (const Case& c : {Case{true, true, "and not", u"T Where (F = :pTmp1)"},
                        Case{false, true, "and not", u"T or (F = :pTmp1)"},
                        Case{false, false, "and not", u"T and not (F = :pTmp1)"},
                        Case{false, false, "", u"T and (F = :pTmp1)"}}) {
    db::TMVADOCommand query;
    query.SetCommandText(u"T");
    AddWildCard(query, "F", u"O'N", c.addWhere, c.useOr, c.joiner);
    EXPECT_EQ(query.CommandText(), c.text);
    EXPECT_EQ(query.Parameters()[0].Value, Variant(u"O'N"));
  }
}

TEST(AddWildCard, ArraysAndReadyConditions) {
  db::TMVADOCommand query;
  query.SetCommandText(u"S where 1=1");
  const std::string fields[] = {"A", "B", "C"};
  const std::u16string none[] = {u"", u"..", u"|"};
  AddWildCard(query, fields, none, std::span<const std::string>());
  EXPECT_EQ(query.CommandText(), u"S where 1=1 ");

  const std::u16string patterns[] = {u"x*", u"", u"50%"};
  const std::string joiners[] = {"and", "or", "or"};
  AddWildCard(query, fields, patterns, joiners);
  EXPECT_EQ(query.CommandText(),
            u"S where 1=1  and (A like :pTmp1) or (C like :pTmp2 Escape '!') ");

  EXPECT_EQ(AddWildCard("D", u"..", "and"), u"");
  AddWildCard(query, AddWildCard("D", u"y|z", "and"));
  EXPECT_EQ(query.CommandText(),
            u"S where 1=1  and (A like :pTmp1) or (C like :pTmp2 Escape '!')  and "
            u"((D = :pTmp3) or (D = :pTmp4)) ");
  ASSERT_EQ(query.Parameters().Count(), 4);
  EXPECT_EQ(query.Parameters()[1].Value, Variant(u"50!%"));
  EXPECT_EQ(query.Parameters()[3].Value, Variant(u"z"));
}

// A value of a new parameter comes as a carrier; its marks are taken off.
TEST(SetParamListValue, NewValuesLeaveTheCarrierAndTheListEmpties) {
  db::TMVADOCommand query;
  query.SetCommandText(u"T = :a");
  TParamList list{{ftWideString, false,
                   Variant(u"\x02"
                           u"carrier\x02")}};
  SetParamListValue(query, list);
  EXPECT_TRUE(list.empty());
  EXPECT_EQ(query.Parameters()[0].Value, Variant(u"carrier"));
}

}  // namespace
}  // namespace mv::test
