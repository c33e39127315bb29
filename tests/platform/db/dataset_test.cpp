// One suite over both ways to the database: SQLite directly and SQLite through unixODBC.
#include <gtest/gtest.h>

#include <type_traits>

#include "platform/db/dataset.h"
#include "platform/db/db_error.h"
#include "tests/platform/db/db_fixture.h"

namespace mv::db {
namespace {

constexpr double kLunarNewYear = 45331.75;  // 2024-02-09 18:00

template <typename Backend>
class DataSetTest : public testing::Test {
 protected:
  // Three messages, written through one command whose parameters take new values each time.
  DataSetTest() {
    test::Exec(
        "create table Msg (RefNo varchar(20), Subject nvarchar(50), Amount float, Qty int, "
        "SentAt datetime, Flag char(1))");
    TMVADOCommand c;
    c.SetCommandText(
        "insert into Msg (RefNo, Subject, Amount, Qty, SentAt) values (:r, :s, :a, :q, :d)");
    const std::pair<const char*, const char16_t*> rows[] = {
        {"R1", u"Invoice"}, {"R2", u"發票 台北"}, {"R3", u"Packing list"}};
    for (int i = 0; i < 3; ++i) {
      c.Parameters()[0].Value = rows[i].first;
      c.SetUnicodeParamValue(1, rows[i].second, false);
      c.Parameters()[2].Value = 10.5 * (i + 1);
      c.Parameters()[3].Value = i + 1;
      c.Parameters()[4].Value = TDateTime{kLunarNewYear + i};
      EXPECT_EQ(c.Execute(), 1);
    }
  }
  void OpenAll(TCursorLocation location = clUseClient) {
    ds_.SetCursorLocation(location);
    ds_.SetCommandText("select RefNo, Subject, Amount, Qty, SentAt, Flag from Msg order by RefNo");
    ds_.Open();
  }

  test::TempDir dir_;
  Backend backend_{dir_};
  TMVADODataSet ds_;
};

using Backends = testing::Types<test::SqliteBackend, test::OdbcBackend>;
TYPED_TEST_SUITE(DataSetTest, Backends);

TYPED_TEST(DataSetTest, WideTextAndDatesMakeTheRoundTripThroughParameters) {
  auto& ds = this->ds_;
  ds.SetCommandText(u"select Subject, SentAt from Msg where Subject = :s and SentAt >= :d");
  ASSERT_EQ(ds.Parameters().Count(), 2);
  ds.SetUnicodeParamValue(0, u"\x02發票 台北\x02", true);
  ds.Parameters().ParamByName("D").Value = TDateTime{kLunarNewYear + 1};
  ds.Open();
  ASSERT_EQ(ds.RecordCount(), 1);
  EXPECT_EQ(ds.FieldByName("subject").AsWideString(), u"發票 台北");
  EXPECT_EQ(ds.FieldByName("SentAt").AsDateTime().Days, kLunarNewYear + 1);
  EXPECT_EQ(ds.FieldByName("SentAt").DataType(), ftDateTime);
}

TYPED_TEST(DataSetTest, ClientCursorCountsAndWalksServerCursorOnlyForward) {
  auto& ds = this->ds_;
  this->OpenAll(clUseClient);
  EXPECT_EQ(ds.RecordCount(), 3);
  int seen = 0;
  for (; !ds.Eof(); ds.Next()) ++seen;
  EXPECT_EQ(seen, 3);
  ds.First();
  EXPECT_EQ(ds.RecNo(), 1);
  ds.Close();
  this->OpenAll(clUseServer);
  EXPECT_EQ(ds.RecordCount(), -1);
  ds.First();  // still on the first row: allowed
  ds.Next();
  EXPECT_EQ(ds.FieldByName("RefNo").AsString(), "R2");
  EXPECT_THROW(ds.First(), EDatabaseError);
  ds.Next();
  ds.Next();
  EXPECT_TRUE(ds.Eof());
  EXPECT_TRUE(ds.FieldByName("RefNo").IsNull());
}

TYPED_TEST(DataSetTest, LocateFindsByTextAndNumberAndStaysWhenAbsent) {
  auto& ds = this->ds_;
  this->OpenAll();
  ds.Next();
  EXPECT_TRUE(ds.Locate("Qty", 3));
  EXPECT_EQ(ds.RecNo(), 3);
  EXPECT_TRUE(ds.Locate("Subject", u"Invoice"));
  EXPECT_EQ(ds.RecNo(), 1);
  EXPECT_FALSE(ds.Locate("Subject", u"invoice"));
  EXPECT_EQ(ds.RecNo(), 1);
  EXPECT_TRUE(ds.Locate("SentAt", TDateTime{kLunarNewYear + 2}));
  EXPECT_THROW(ds.Locate("Nope", 1), EDatabaseError);
}

TYPED_TEST(DataSetTest, FieldsKeepTheirSettingsAndMoveAcrossRefresh) {
  auto& ds = this->ds_;
  int opened = 0, refreshed = 0;
  ds.SetAfterOpen([&](TMVADODataSet& d) { opened += d.RecordCount(); });
  ds.SetAfterRefresh([&](TMVADODataSet&) { ++refreshed; });
  this->OpenAll();
  EXPECT_EQ(opened, 3);
  ASSERT_EQ(ds.FieldCount(), 6);
  EXPECT_EQ(ds.Fields(0).DataType(), ftString);
  EXPECT_EQ(ds.Fields(3).DataType(), ftInteger);
  EXPECT_EQ(ds.FieldByName("Amount").DataType(), ftFloat);
  EXPECT_EQ(ds.FieldByName("Subject").DataType(), ftWideString);
  EXPECT_EQ(ds.FieldByName("Flag").DataType(), ftFixedChar);
  ds.FieldByName("Qty").SetIndex(0);
  ds.FieldByName("Subject").SetDisplayLabel("主旨");
  ds.FieldByName("Flag").SetVisible(false);
  ds.FieldByName("Amount").SetIndex(99);
  ds.AddCalculatedField("Double", ftFloat, [](TMVADODataSet& d) {
    return Variant(d.FieldByName("Amount").AsFloat() * 2);
  });
  EXPECT_EQ(ds.FieldByName("Double").AsFloat(), 21);
  test::Exec("insert into Msg (RefNo) values ('R4')");
  ds.Refresh();
  EXPECT_EQ(refreshed, 1);
  EXPECT_EQ(opened, 3);  // a refresh is not an open
  EXPECT_EQ(ds.RecordCount(), 4);
  EXPECT_EQ(ds.Fields(0).FieldName(), "Qty");
  EXPECT_EQ(ds.Fields(5).FieldName(), "Amount");
  EXPECT_EQ(ds.FieldByName("Subject").DisplayLabel(), "主旨");
  EXPECT_FALSE(ds.FieldByName("Flag").Visible());
  EXPECT_EQ(ds.Fields(6).FieldName(), "Double");
}

TYPED_TEST(DataSetTest, CancelDropsEditsAndPostWritesOnlyTheEditedRow) {
  auto& ds = this->ds_;
  this->OpenAll();
  ds.Edit();
  ds.FieldByName("RefNo").SetAsString("XX");
  ds.Cancel();
  EXPECT_EQ(ds.FieldByName("RefNo").AsString(), "R1");
  EXPECT_THROW(ds.FieldByName("RefNo").SetAsString("YY"), EDatabaseError);  // not editing
  ds.Next();
  ds.Edit();
  EXPECT_EQ(ds.State(), dsEdit);
  ds.FieldByName("Subject").SetAsWideString(u"裝箱單");
  ds.FieldByName("SentAt").SetAsDateTime(TDateTime{kLunarNewYear + 10});
  ds.Post();
  EXPECT_EQ(ds.State(), dsBrowse);
  TMVADODataSet check;
  check.SetCommandText("select RefNo, Subject, SentAt from Msg where Subject = :s");
  check.SetUnicodeParamValue(0, u"裝箱單", false);
  check.Open();
  ASSERT_EQ(check.RecordCount(), 1);
  EXPECT_EQ(check.Fields(0).AsString(), "R2");
  EXPECT_EQ(check.Fields(2).AsDateTime().Days, kLunarNewYear + 10);
}

// A row the columns read cannot tell apart from others is never written: neither through a query
// that reads only long text nor where other rows hold the same values (NULL here).
TYPED_TEST(DataSetTest, EditsThatCannotNameOneRowAreRefusedAndChangeNothing) {
  test::Exec("create table Pref (userid varchar(10), Preference ntext, Notes text)");
  test::Exec("insert into Pref values ('A', NULL, 'n'), ('B', NULL, 'n')");
  auto& ds = this->ds_;
  for (const char* sql : {"select Preference from Pref where userid = 'A'",
                          "select Notes from Pref where userid = 'A'"}) {
    ds.SetCommandText(sql);
    ds.Open();
    ds.Edit();
    ds.Fields(0).SetAsString("changed");
    EXPECT_THROW(ds.Post(), EDatabaseError) << sql;
    ds.Cancel();
    ds.Close();
  }
  TMVADODataSet check;
  check.SetCommandText(
      "select count(*) from Pref where Preference is not null or cast(Notes as varchar(9)) <> 'n'");
  check.Open();
  EXPECT_EQ(check.Fields(0).AsInteger(), 0);
}

// A table with a primary key has its rows written by the key alone, also when the select does not
// read it: a text that does not read back as stored (raw Big5 bytes), a row changed elsewhere since
// it was read (the last writer wins) and a key changed by the edit itself are no obstacle.
TYPED_TEST(DataSetTest, RowsOfATableWithAKeyAreWrittenByTheKey) {
  test::Exec("create table Usr (userid nvarchar(20) primary key, Preference nvarchar(4000))");
  test::Exec("insert into Usr values ('A', cast(X'A4A4A4E5' as text)), ('B', 'b')");
  auto& ds = this->ds_;
  ds.SetCommandText("select Preference from Usr where userid = 'A'");
  ds.Open();
  ASSERT_EQ(ds.FieldCount(), 1);  // the key is read for the writes only
  test::Exec("update Usr set Preference = 'elsewhere' where userid = 'A'");
  ds.Edit();
  ds.Fields(0).SetAsWideString(u"中文=1");
  ds.Post();
  ds.Close();
  ds.SetCommandText("select userid, Preference from Usr order by userid");
  ds.Open();
  EXPECT_EQ(ds.Fields(1).AsWideString(), u"中文=1");
  ds.Edit();
  ds.Fields(0).SetAsString("C");
  ds.Post();
  ds.Edit();
  ds.Fields(1).SetAsString("c");
  ds.Post();
  ds.Refresh();
  EXPECT_EQ(ds.Fields(0).AsString() + ds.Fields(1).AsString(), "Bb");
  ds.Next();
  EXPECT_EQ(ds.Fields(0).AsString() + ds.Fields(1).AsString(), "Cc");
  test::Exec("delete from Usr where userid = 'C'");
  ds.Edit();
  ds.Fields(1).SetAsString("gone");
  EXPECT_THROW(ds.Post(), EDatabaseError);
}

// A new row's key given by the database is known for the next edit of that row where the driver
// tells it (SQLite's own); through ODBC the row is named by its columns, which here match two rows.
TYPED_TEST(DataSetTest, ARowAppendedUnderANumberedKeyIsEditedByThatKey) {
  test::Exec("create table Lg (LogNo integer primary key, Ev varchar(9))");
  test::Exec("insert into Lg (Ev) values ('x')");
  auto& ds = this->ds_;
  ds.SetCommandText("select Ev from Lg where LogNo is null");
  ds.Open();
  ds.Append();
  ds.Fields(0).SetAsString("x");
  ds.Post();
  ds.Edit();
  ds.Fields(0).SetAsString("y");
  if constexpr (std::is_same_v<TypeParam, test::OdbcBackend>) {
    EXPECT_THROW(ds.Post(), EDatabaseError);
    return;
  }
  ds.Post();
  ds.Close();
  ds.SetCommandText("select Ev from Lg order by LogNo");
  ds.Open();
  EXPECT_EQ(ds.Fields(0).AsString(), "x");
  ds.Next();
  EXPECT_EQ(ds.Fields(0).AsString(), "y");
}

// A delete names its row as an update does: by the key where the table has one, else by every
// column read, refused (and undone) where those match several rows or none.
TYPED_TEST(DataSetTest, DeleteRemovesTheCurrentRowOnlyWhenItCanBeNamed) {
  test::Exec("create table Usr (userid varchar(9) primary key, Note varchar(9))");
  test::Exec("insert into Usr values ('A', 'same'), ('B', 'same'), ('C', 'same')");
  auto& ds = this->ds_;
  ds.SetCommandText("select Note from Usr order by userid");
  ds.Open();
  ds.Next();
  ds.Delete();
  EXPECT_EQ(ds.RecordCount(), 2);
  EXPECT_EQ(ds.RecNo(), 2);  // C, after the deleted B
  test::Exec("delete from Usr where userid = 'C'");
  EXPECT_THROW(ds.Delete(), EDatabaseError);
  EXPECT_EQ(ds.RecordCount(), 2);
  ds.Close();
  test::Exec("insert into Msg select * from Msg");  // every message twice
  this->OpenAll();
  EXPECT_THROW(ds.Delete(), EDatabaseError);
  ds.Close();
  ds.SetCommandText("select count(*) from Msg");
  ds.Open();
  EXPECT_EQ(ds.Fields(0).AsInteger(), 6);
}

TYPED_TEST(DataSetTest, AppendPostsANewRow) {
  auto& ds = this->ds_;
  this->OpenAll();
  ds.Append();
  EXPECT_EQ(ds.State(), dsInsert);
  EXPECT_TRUE(ds.FieldByName("RefNo").IsNull());
  ds.FieldByName("RefNo").SetAsString("R9");
  ds.FieldByName("Qty").SetAsInteger(9);
  ds.Post();
  EXPECT_EQ(ds.RecordCount(), 4);
  EXPECT_EQ(ds.RecNo(), 4);
  ds.Refresh();
  EXPECT_TRUE(ds.Locate("RefNo", "R9"));
  EXPECT_EQ(ds.FieldByName("Qty").AsInteger(), 9);
}

TYPED_TEST(DataSetTest, ReadOnlyAndJoinedSelectsRefuseEdits) {
  auto& ds = this->ds_;
  ds.SetReadOnly(true);
  this->OpenAll();
  EXPECT_THROW(ds.Edit(), EDatabaseError);
  ds.Close();
  ds.SetReadOnly(false);
  ds.SetCommandText("select a.RefNo from Msg a, Msg b where a.RefNo = b.RefNo");
  ds.Open();
  EXPECT_THROW(ds.Insert(), EDatabaseError);
  EXPECT_EQ(ds.State(), dsBrowse);
}

TYPED_TEST(DataSetTest, CommandsCountChangedRowsAndNeedEveryParameter) {
  TMVADOCommand c;
  c.SetCommandText("update Msg set Qty = :q where Qty >= :min or RefNo = ':min'");
  ASSERT_EQ(c.Parameters().Count(), 2);
  c.Parameters()[0].Value = 7;
  c.Parameters()[1].Value = 2;
  EXPECT_EQ(c.Execute(), 2);
  c.SetParamCheck(false);
  c.SetCommandText("delete from Msg where Qty = :q or Qty = :other");
  EXPECT_EQ(c.Parameters().Count(), 2);  // the old list stays
  EXPECT_THROW(c.Execute(), EDatabaseError);
  c.Parameters()[1].Name = "other";
  EXPECT_EQ(c.Execute(), 2);
}

TYPED_TEST(DataSetTest, BadSqlRaisesTheDriverMessageAndLeavesTheDatasetClosed) {
  auto& ds = this->ds_;
  ds.SetCommandText("select Nope from Msg");
  try {
    ds.Open();
    FAIL() << "no error";
  } catch (const EDatabaseError& e) {
    EXPECT_NE(std::string(e.what()).find("Nope"), std::string::npos) << e.what();
  }
  EXPECT_FALSE(ds.Active());
  EXPECT_EQ(ds.RecordCount(), 0);
}

// Narrow columns come in the user's code page as the dataset opened: ASCII as it stands, the rest
// converted; a change of code page takes effect at the next open.
TYPED_TEST(DataSetTest, NarrowColumnsAreReadInTheCodePageOfTheOpen) {
  auto& ds = this->ds_;
  TMVADOCommand c;
  c.SetCommandText("insert into Msg (RefNo, Flag) values (:r, 'x')");
  c.SetUnicodeParamValue(0, u"台北 A1", false);
  ASSERT_EQ(c.Execute(), 1);
  ds.SetCommandText("select RefNo from Msg order by Flag desc, RefNo");
  {
    const test::ScopedEnv big5("MV_CODEPAGE", "950");
    ds.Open();
  }
  EXPECT_EQ(ds.Fields(0).AsString(), "\xA5\x78\xA5\x5F A1");
  ds.Next();
  EXPECT_EQ(ds.Fields(0).AsString(), "R1");
  ds.Close();
  {
    const test::ScopedEnv utf8("MV_CODEPAGE", "65001");
    ds.Open();
  }
  EXPECT_EQ(ds.Fields(0).AsString(), "台北 A1");
}

}  // namespace
}  // namespace mv::db
