#include "tests/common/tables/tables_fixture.h"

#include "common/tables/transaction.h"
#include "platform/db/command.h"
#include "platform/db/connections.h"
#include "platform/db/dataset.h"

namespace mv::test {

template <>
void OpenOther<SqliteBackend>(const TempDir& dir, const std::string& name) {
  dir.Write(name, "");
  db::OpenConnection("OTHER", "sqlite:" + dir.File(name));
}

template <>
void OpenOther<OdbcBackend>(const TempDir& dir, const std::string& name) {
  db::OpenConnection("OTHER", "odbc:Driver=SQLite3;Database=" + dir.File(name) + ";");
}

namespace {

std::vector<uint8_t> AllBytes(int shift) {
  std::vector<uint8_t> bytes;
  for (int b = 0; b < 256; ++b) bytes.push_back(static_cast<uint8_t>(b + shift));
  return bytes;
}

}  // namespace

void MakeGoods(const std::string& connection, int rows) {
  db::TMVADOCommand c;
  c.SetConnectionName(connection);
  c.SetCommandText(
      "create table Goods (Lot int not null, Seq bigint not null, Name nvarchar(80), "
      "Note varchar(40) null, Shipped datetime, Price float, Paid bit, Scan varbinary(300), "
      "primary key (Lot, Seq))");
  c.Execute();
  c.SetCommandText(
      "insert into Goods (Lot, Seq, Name, Note, Shipped, Price, Paid, Scan) "
      "values (:l, :s, :n, :o, :d, :p, :b, :x)");
  tables::TTransaction transaction(connection);
  const std::u16string names[] = {u"貨品 😀 \x02mark\x02 it's", u"tab\there\nline\\slash",
                                  u"Ünïcödé ß 𠀀", u"", u"\U0001F600\x01"};
  for (int i = 0; i < rows; ++i) {
    c.Parameters()[0].Value = i % 3;
    c.Parameters()[1].Value = int64_t{i} * 1000003;
    c.SetUnicodeParamValue(2, names[i % 5] + u" #" + std::u16string(1, u'0' + i % 10), false);
    c.Parameters()[3].Value =
        i % 4 == 0 ? db::Variant() : db::Variant(u"報關 note " + std::u16string(1, u'a' + i % 26));
    c.Parameters()[4].DataType = db::ftDateTime;
    c.Parameters()[4].Value =
        i % 7 == 0 ? db::Variant() : db::Variant(db::TDateTime{45331.75 + i / 8.0});
    c.Parameters()[5].Value = i % 5 == 0 ? db::Variant(-0.1 * i) : db::Variant(1e300 / (i + 1));
    c.Parameters()[6].Value = i % 2 == 0;
    c.Parameters()[7].Value = i % 6 == 0 ? db::Variant() : db::Variant(AllBytes(i));
    c.Execute();
  }
  transaction.Commit();
}

std::vector<std::vector<db::Variant>> AllRows(const std::string& connection,
                                              const std::string& table) {
  db::TMVADODataSet ds;
  ds.SetConnectionName(connection);
  ds.SetCommandText("select * from [" + table + "] order by 1, 2");
  ds.Open();
  std::vector<std::vector<db::Variant>> rows;
  for (; !ds.Eof(); ds.Next()) {
    rows.emplace_back();
    for (int i = 0; i < ds.FieldCount(); ++i) rows.back().push_back(ds.Fields(i).Value());
  }
  return rows;
}

}  // namespace mv::test
