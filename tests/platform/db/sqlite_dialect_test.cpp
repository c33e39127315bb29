// The SQL Server dialect on a SQLite file: national literals, GetDate, CONVERT, date arithmetic,
// LIKE with ESCAPE.
#include <gtest/gtest.h>

#include <cmath>

#include "platform/db/dataset.h"
#include "platform/db/db_error.h"
#include "tests/platform/db/db_fixture.h"

namespace mv::db {
namespace {

class SqliteDialect : public testing::Test {
 protected:
  template <typename Text>
  static Variant Scalar(const Text& sql) {
    TMVADODataSet ds;
    ds.SetCommandText(sql);
    ds.Open();
    return ds.Fields(0).Value();
  }

  test::TempDir dir_;
  test::SqliteBackend db_{dir_};
};

TEST_F(SqliteDialect, NationalAndMarkedLiteralsKeepChineseText) {
  EXPECT_EQ(Scalar(u"select N'中文 O''Neil'").AsWideString(), u"中文 O'Neil");
  EXPECT_EQ(Scalar(u"select \x02台北 it's\x02").AsWideString(), u"台北 it's");
}

TEST_F(SqliteDialect, StrayMarksInDataNeverOpenALiteralOfTheCarrier) {
  TMVADODataSet ds;
  ds.SetCommandText("select 'a' || char(2) || 'b'");
  ds.Open();
  EXPECT_EQ(ds.GetUnicodeFieldValue(0, false),
            u"a\x02"
            u"b");
  EXPECT_EQ(ds.GetUnicodeFieldValue(0, true), u"ab");
  EXPECT_THROW(ds.GetUnicodeFieldValue(1, true), EDatabaseError);
}

TEST_F(SqliteDialect, GetDateIsLocalNowAsDayNumber) {
  const double before = std::floor(Scalar("select GetDate()").AsFloat());
  EXPECT_GT(before, 45000);  // after 2023
  const double diff = Scalar("select GetDate() - GetDate()").AsFloat();
  EXPECT_LT(std::fabs(diff), 1.0 / 86400);
}

TEST_F(SqliteDialect, ConvertDatetimeStylesTextAndNumbers) {
  // 2024-02-29 is day 45351
  EXPECT_EQ(Scalar("select CONVERT(datetime, '2024.02.29',102)").AsFloat(), 45351);
  EXPECT_EQ(Scalar("select convert( DateTime , '2024/02/29', 111)").AsFloat(), 45351);
  EXPECT_EQ(Scalar("select CONVERT(datetime, '20240229', 112)").AsFloat(), 45351);
  EXPECT_EQ(Scalar("select CONVERT(datetime, '2024-02-29 12:00')").AsFloat(), 45351.5);
  EXPECT_TRUE(Scalar("select CONVERT(datetime, NULL, 102)").IsNull());
  EXPECT_THROW(Scalar("select CONVERT(datetime, '2023.02.29',102)"), EDatabaseError);
  EXPECT_EQ(Scalar("select CONVERT(varchar(10), 45351, 102)").AsString(), "2024.02.29");
  EXPECT_EQ(Scalar("select CONVERT(varchar(3), 'abcdef')").AsString(), "abc");
  EXPECT_EQ(Scalar("select CONVERT(int, ' 42 ')").AsInteger(), 42);
  EXPECT_EQ(Scalar("select CONVERT(int, 4.9)").AsInteger(), 4);
  EXPECT_EQ(Scalar("select CONVERT(float, '2.5')").AsFloat(), 2.5);
  EXPECT_THROW(Scalar("select CONVERT(int, 'x1')"), EDatabaseError);
  EXPECT_THROW(Scalar("select CONVERT(geometry, 'x')"), EDatabaseError);
  // the quoted literal 'convert(int, x)' is left alone
  EXPECT_EQ(Scalar("select 'convert(int, x)'").AsString(), "convert(int, x)");
}

TEST_F(SqliteDialect, DateArithmeticAndBetweenOnStoredDayNumbers) {
  test::Exec("create table Msg (RefNo varchar(10), EndDate datetime)");
  test::Exec("insert into Msg values ('A', CONVERT(datetime, '2024.02.28', 102))");
  test::Exec("insert into Msg values ('B', CONVERT(datetime, '2024.03.01 18:30', 102))");
  TMVADODataSet ds;
  ds.SetCommandText(
      "select RefNo, EndDate+1 as NextDay from Msg where EndDate BETWEEN "
      "CONVERT(datetime, '2024.02.29',102) and CONVERT(datetime, '2024.03.01',102)+1");
  ds.Open();
  ASSERT_EQ(ds.RecordCount(), 1);
  EXPECT_EQ(ds.FieldByName("RefNo").AsString(), "B");
  EXPECT_EQ(ds.FieldByName("NextDay").AsFloat(), 45353 + 18.5 / 24);
}

TEST_F(SqliteDialect, LikeWithEscapeIgnoresAsciiCase) {
  test::Exec("create table T (Name nvarchar(20))");
  for (const char16_t* name : {u"100%", u"100x", u"abc", u"ABC", u"Ābc"}) {
    test::Exec(std::u16string(u"insert into T values (N'") + name + u"')");
  }
  EXPECT_EQ(Scalar("select count(*) from T where Name like '100!%' ESCAPE '!'").AsInteger(), 1);
  EXPECT_EQ(Scalar("select count(*) from T where Name like 'abc'").AsInteger(), 2);
  EXPECT_EQ(Scalar(u"select count(*) from T where Name like N'ābc'").AsInteger(), 0);
}

}  // namespace
}  // namespace mv::db
