// Command texts on their way to the driver: parameter places, the SQLite rewrite, the table of
// a single-table select.
#include <gtest/gtest.h>

#include "platform/db/parameters.h"
#include "platform/db/sql_text.h"

namespace mv::db {
namespace {

TEST(PrepareSql, PlacesSkipQuotedAndMarkedLiteralsAndDoubleColons) {
  const TPreparedSql p = PrepareSql(
      u"select * from T where A=:pA and B=':no' and C=\x02:mark\x02 and D=\"x::y\" and E=:pTmp1");
  EXPECT_EQ(p.Sql, u"select * from T where A=? and B=':no' and C=N':mark' and D=\"x:y\" and E=?");
  EXPECT_EQ(p.Places, (std::vector<std::string>{"pA", "pTmp1"}));
}

TEST(PrepareSql, EdgesOfTheText) {
  EXPECT_EQ(PrepareSql(u"a=:").Sql, u"a=:");
  EXPECT_EQ(PrepareSql(u":x").Places, std::vector<std::string>{"x"});
  // an unclosed literal runs to the end and hides what follows
  EXPECT_TRUE(PrepareSql(u"a='it:x").Places.empty());
  EXPECT_EQ(PrepareSql(u"a='it''s :x' or b=:y").Places, std::vector<std::string>{"y"});
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
}

TEST(SingleTableOf, OnlySelectsFromOneTable) {
  EXPECT_EQ(SingleTableOf(u"Select * from Systemlg where (LogNo IS NULL)"), u"Systemlg");
  EXPECT_EQ(SingleTableOf(u"select a from dbo.[My Tab]"), u"");  // a blank in brackets
  EXPECT_EQ(SingleTableOf(u"select a from dbo.T order by a"), u"dbo.T");
  EXPECT_EQ(SingleTableOf(u"select (select 1 from X) from T"), u"T");
  EXPECT_EQ(SingleTableOf(u"select a from T, U"), u"");
  EXPECT_EQ(SingleTableOf(u"select a from T join U on 1=1"), u"");
  EXPECT_EQ(SingleTableOf(u"select 1"), u"");
}

}  // namespace
}  // namespace mv::db
