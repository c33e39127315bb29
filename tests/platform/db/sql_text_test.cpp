// Command texts on their way to the driver: parameter places, the SQLite rewrite, the table of
// a single-table select.
#include <gtest/gtest.h>

#include "platform/db/parameters.h"
#include "platform/db/sql_text_p.h"

namespace mv::db {
namespace {

using P = std::vector<TSqlPlace>;
using namespace std::string_literals;

TEST(PrepareSql, ParametersAndMarkedLiteralsBecomePlacesOutsideQuotedFormsAndComments) {
  const TPreparedSql p = PrepareSql(
      u"select * from T where A=:pA and B=':no' and C=\x02:m'k\x02 and D=\"x::y\" and [e:f]=1"
      u" -- :c \x02\n and E=:pTmp1 /* :d */ and F=a::b");
  EXPECT_EQ(p.Sql,
            u"select * from T where A=? and B=':no' and C=? and D=\"x::y\" and [e:f]=1"
            u" -- :c \x02\n and E=? /* :d */ and F=a:b");
  EXPECT_EQ(p.Places, (P{{"pA", u""}, {"", u":m'k"}, {"pTmp1", u""}}));
}

TEST(PrepareSql, MarksInsideLiteralsAreCharactersAndNeverEndTheLiteral) {
  // a value searched with StrSQLCond: the marks stay inside the literal
  const std::u16string_view exact = u"(MsgRef = '\x02) OR (1=1) --\x02')";
  EXPECT_EQ(PrepareSql(exact).Sql, exact);
  EXPECT_TRUE(PrepareSql(exact).Places.empty());
  EXPECT_EQ(PrepareSql(u"a=N'\x02' or b=\x02x").Sql, u"a=N'\x02' or b=x");  // a stray mark goes
}

TEST(PrepareSql, LiteralsReadColonsAfterOddDoubleQuotesOnceAndBindNuls) {
  EXPECT_EQ(PrepareSql(u"a='\"a::b\"' or b=N'\"x\"::y' or c='::'").Sql,
            u"a='\"a:b\"' or b=N'\"x\"::y' or c='::'");
  EXPECT_EQ(PrepareSql(u"a='it''s \"t::'").Sql, u"a='it''s \"t:'");
  const TPreparedSql nul = PrepareSql(u"a='x\0y' or b=N'it''s\0' or c='\0"s);
  EXPECT_EQ(nul.Sql, u"a=? or b=? or c='\0"s);  // the unclosed one is left
  EXPECT_EQ(nul.Places, (P{{"", u"x\0y"s}, {"", u"it's\0"s}}));
}

TEST(PrepareSql, LoneSurrogatesBecomeReplacementCharacters) {
  const TPreparedSql p =
      PrepareSql(u"a='\xD800' or b=\x02\xDC00x\x02 or c='\xD83D\xDE00' or d=\xD800");
  EXPECT_EQ(p.Sql, u"a='\xFFFD' or b=? or c='\xD83D\xDE00' or d=\xFFFD");
  EXPECT_EQ(p.Places, (P{{"", u"\xFFFDx"}}));
  EXPECT_EQ(PrepareSql(u"a='報' or b=N'x' or c=[報]", true).Places, (P{{"", u"報"}}));
  EXPECT_EQ(WellFormedText(u"\xDBFF\xDFFF\xDFFF\xDBFF"), u"\xDBFF\xDFFF\xFFFD\xFFFD");
}

TEST(PrepareSql, EdgesOfTheText) {
  EXPECT_EQ(PrepareSql(u"a=:").Sql, u"a=:");
  EXPECT_EQ(PrepareSql(u":x").Places, (P{{"x", u""}}));
  // an unclosed literal, name or comment runs to the end and hides what follows
  for (const char16_t* open : {u"a='it:x", u"a=[it:x", u"a=\"it:x", u"a /* :x"})
    EXPECT_TRUE(PrepareSql(open).Places.empty());
  EXPECT_EQ(PrepareSql(u"a='it''s :x' or b=:y").Places, (P{{"y", u""}}));
  EXPECT_EQ(PrepareSql(u"ColN':x'").Sql, u"ColN':x'");
}

TEST(ParameterNames, OnePerNameInFirstOrderRegardlessOfCase) {
  EXPECT_EQ(ParameterNames(u"a=:B or c=:a or d=:b"), (std::vector<std::string>{"B", "a"}));
}

TEST(TParameters, RebuildKeepsTypeAndValueOfNamesStillThere) {
  TParameters params;
  params.AddParameter("old", ftWideString).Value = u"值";
  params.AddParameter("gone", ftInteger).Value = 5;
  params.Rebuild({"new", "OLD"});
  ASSERT_EQ(params.Count(), 2);
  EXPECT_EQ(params[0].DataType, ftUnknown);
  EXPECT_EQ(params[1].Name, "OLD");
  EXPECT_EQ(params[1].DataType, ftWideString);
  EXPECT_EQ(params.ParamByName("old").Value, Variant(u"值"));
  EXPECT_EQ(params.FindParam("gone"), nullptr);
  EXPECT_ANY_THROW(params[2]);
}

TEST(SqliteDialect, NationalLiteralsLoseTheirPrefixAndConvertTypeNamesBecomeTexts) {
  EXPECT_EQ(SqliteDialect(u"x=N'a' or y=n'b' or ColN='c' or z='N''d'"),
            u"x='a' or y='b' or ColN='c' or z='N''d'");
  EXPECT_EQ(SqliteDialect(u"convert ( varchar(20) ,x)"), u"convert ( 'varchar(20)' ,x)");
  EXPECT_EQ(SqliteDialect(u"Convert('int', x)"), u"Convert('int', x)");
  EXPECT_EQ(SqliteDialect(u"MyConvert(int, x)"), u"MyConvert(int, x)");
  EXPECT_EQ(SqliteDialect(u"convert(int"), u"convert(int");
  EXPECT_EQ(SqliteDialect(u"-- N'a' convert(int, x)\nb='convert(int, x)'"),
            u"-- N'a' convert(int, x)\nb='convert(int, x)'");
}

TEST(SingleTableOf, OnlySelectsFromOneTable) {
  EXPECT_EQ(SingleTableOf(u"Select * from Systemlg where (LogNo IS NULL)"), u"Systemlg");
  EXPECT_EQ(SingleTableOf(u"select a from dbo.[My Tab]"), u"");  // a blank in brackets
  EXPECT_EQ(SingleTableOf(u"select a from dbo.T order by a"), u"dbo.T");
  EXPECT_EQ(SingleTableOf(u"select (select 1 from X) from T"), u"T");
  EXPECT_EQ(SingleTableOf(u"select a from T, U"), u"");
  EXPECT_EQ(SingleTableOf(u"select a from T join U on 1=1"), u"");
  EXPECT_EQ(SingleTableOf(u"select 1"), u"");
  EXPECT_EQ(SingleTableOf(u"select 'from' as [from] from T"), u"T");
}

}  // namespace
}  // namespace mv::db
