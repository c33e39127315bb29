// Command texts and bound texts on both ways to the database: what a literal, a marked literal
// and a bound value hold arrives whole, NULs and lone surrogates included.
#include <gtest/gtest.h>

#include <cstdio>

#include "platform/codepage/codepage.h"
#include "platform/db/dataset.h"
#include "tests/platform/db/db_fixture.h"

namespace mv::db {
namespace {

using namespace std::string_literals;

template <typename Backend>
class SqlTextOnDatabase : public testing::Test {
 protected:
  // Rows 1 to 4 holding texts that end a literal or a C string early.
  SqlTextOnDatabase() {
    test::Exec("create table T (Id int, V nvarchar(40))");
    TMVADOCommand insert;
    insert.SetCommandText("insert into T (Id, V) values (:id, :v)");
    const std::u16string values[] = {u"x\0y"s, u"\xD800'z", u"\"a:b\"", u"it's \x02"};
    for (int i = 0; i < 4; ++i) {
      insert.Parameters()[0].Value = i + 1;
      insert.SetUnicodeParamValue(1, values[i], false);
      insert.Execute();
    }
  }
  // The ids of the rows `where` selects.
  static std::vector<int64_t> Ids(const std::u16string& where) {
    TMVADODataSet ds;
    ds.SetCommandText(u"select Id from T where " + where + u" order by Id");
    std::vector<int64_t> ids;
    for (ds.Open(); !ds.Eof(); ds.Next()) ids.push_back(ds.Fields(0).AsInteger());
    return ids;
  }

  test::TempDir dir_;
  Backend backend_{dir_};
};

using Backends = testing::Types<test::SqliteBackend, test::OdbcBackend>;
TYPED_TEST_SUITE(SqlTextOnDatabase, Backends);

TYPED_TEST(SqlTextOnDatabase, LiteralsAndBoundTextsArriveWhole) {
  using V = std::vector<int64_t>;
  // the SQLite ODBC driver keeps texts as C strings: there a NUL is U+FFFD on both sides
  EXPECT_EQ(this->Ids(u"V = 'x\0y'"s), V{1});
  EXPECT_EQ(this->Ids(u"V = '\xFFFD''z' and '報' = '\xD842\xDFB7' || '' and ''''='\u0A27'"), V{});
  EXPECT_EQ(this->Ids(u"V = '\xFFFD''z' and '報' = '報' || ''"), V{2});
  EXPECT_EQ(this->Ids(u"V = '\xD800''z' or V = \x02\xDC00'z\x02"), V{2});
  EXPECT_EQ(this->Ids(u"V = '\"a::b\"' and '::' = ':' || ':'"), V{3});
  EXPECT_EQ(this->Ids(u"V <> \x02it's \x02 and V = 'it''s \x02' and 1 = 1\x02"), V{4});
  EXPECT_EQ(this->Ids(u"V = 'it''s \x02' -- \x02\n or V = \x02x\x02"), V{4});
  TMVADODataSet ds;
  ds.SetCommandText("select V from T where Id = 2");
  ds.Open();
  EXPECT_EQ(ds.Fields(0).AsWideString(), u"\xFFFD'z");
}

// SQLite takes a leading U+FEFF or U+FFFE of a UTF-16 text for a byte-order mark; stored, each
// text reads back as its own UTF-8 bytes. (Qt's ODBC driver drops such a mark when it reads.)
TYPED_TEST(SqlTextOnDatabase, LeadingByteOrderMarksAreKept) {
  const std::u16string values[] = {
      u"\xFEFF"
      u"ab",
      u"\xFFFE"
      u"ab",
      u"\xFEFF\xFFFE\xFEFF", u"a\xFFFE"};
  TMVADOCommand insert;
  insert.SetCommandText("insert into T (Id, V) values (:id, :v)");
  for (int i = 0; i < 4; ++i) {
    insert.Parameters()[0].Value = 10 + i;
    insert.SetUnicodeParamValue(1, values[i], false);
    insert.Execute();
  }
  TMVADODataSet ds;
  ds.SetCommandText("select hex(V), V from T where Id >= 10 order by Id");
  ds.Open();
  for (const std::u16string& value : values) {
    std::string hex;
    for (unsigned char c : codepage::FromWide(value, 65001)) {
      char digits[3];
      std::snprintf(digits, sizeof digits, "%02X", c);
      hex += digits;
    }
    EXPECT_EQ(ds.Fields(0).AsString(), hex);
    ds.Next();
  }
  if (!std::is_same_v<TypeParam, test::SqliteBackend>) return;
  ds.First();
  EXPECT_EQ(ds.Fields(1).AsWideString(), values[0]);
}

}  // namespace
}  // namespace mv::db
