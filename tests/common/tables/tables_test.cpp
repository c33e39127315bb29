// Table copy and archives on real SQLite files, directly and through the SQLite ODBC driver:
// every value compared after a copy and after an export and import, the rows a condition or a
// key list chooses, refused rows, cancels, a full disk and damaged archives leaving nothing.
#include <gtest/gtest.h>

#include <filesystem>

#include "common/tables/row_inserter.h"
#include "common/tables/table_archive.h"
#include "common/tables/table_copy.h"
#include "common/tables/table_def.h"
#include "platform/archive/zip_archive.h"
#include "platform/db/connections.h"
#include "platform/db/db_error.h"
#include "tests/common/tables/tables_fixture.h"

namespace mv::tables {
namespace {

namespace fs = std::filesystem;
using test::AllRows;

template <typename Backend>
class TablesTest : public testing::Test {
 protected:
  TablesTest() {
    test::MakeGoods("DBMAIN", 40);
    test::OpenOther<Backend>(dir_, "other.db");
  }
  ~TablesTest() override { db::CloseConnection("OTHER"); }

  // The files of the test's folder other than the databases.
  std::vector<std::string> Leftovers() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(dir_.path())) {
      const std::string name = entry.path().filename().string();
      if (!name.ends_with(".db") && !name.ends_with(".ini")) names.push_back(name);
    }
    return names;
  }

  test::ScopedEnv codePage_{"MV_CODEPAGE", "950"};
  test::TempDir dir_;
  Backend backend_{dir_};
  std::string archive_ = dir_.File("goods.zip");
};

using Backends = testing::Types<test::SqliteBackend, test::OdbcBackend>;
TYPED_TEST_SUITE(TablesTest, Backends);

TYPED_TEST(TablesTest, StructureAndEveryValueSurviveACopyBetweenConnections) {
  CopyTableStructure("DBMAIN", "Goods", "OTHER", "Goods2");
  const TTableDef copied = ReadTableDef("OTHER", "Goods2");
  const TTableDef source = ReadTableDef("DBMAIN", "Goods");
  ASSERT_EQ(copied.Columns.size(), 8u);
  for (size_t i = 0; i < copied.Columns.size(); ++i) {
    EXPECT_EQ(copied.Columns[i].Name, source.Columns[i].Name);
    EXPECT_EQ(copied.Columns[i].Type, source.Columns[i].Type);
    EXPECT_EQ(copied.Columns[i].KeyOrder, i < 2 ? static_cast<int>(i) + 1 : 0);
    EXPECT_EQ(copied.Columns[i].NotNull, i < 2) << i;
  }
  EXPECT_EQ(CopyRows("DBMAIN", "Goods", "OTHER", "Goods2", TRowChoice::All()), 40);
  const auto rows = AllRows("DBMAIN", "Goods");
  EXPECT_EQ(AllRows("OTHER", "Goods2"), rows);
  // The values are what was written, not only equal on both sides.
  EXPECT_EQ(rows[0][2], db::Variant(u"貨品 😀 \x02mark\x02 it's #0"));
  EXPECT_TRUE(rows[0][3].IsNull());
  EXPECT_EQ(rows[1][3].AsWideString(), u"報關 note d");
  EXPECT_EQ(rows[1][4].AsDateTime().Days, 45331.75 + 3 / 8.0);
  EXPECT_EQ(rows[1][7].AsBytes().size(), 256u);
  // A second copy of the same rows is refused whole, naming the first row.
  try {
    CopyRows("DBMAIN", "Goods", "OTHER", "Goods2", TRowChoice::All());
    FAIL() << "a key already there was taken";
  } catch (const ERowRefused& refused) {
    EXPECT_EQ(refused.RowNumber(), 1);
  }
  EXPECT_EQ(AllRows("OTHER", "Goods2").size(), 40u);
  EXPECT_THROW(CopyTableStructure("DBMAIN", "Goods", "OTHER", "Goods2"), db::EDatabaseError);
  EXPECT_THROW(CopyTableStructure("DBMAIN", "Missing", "OTHER", "X"), db::EDatabaseError);
}

TYPED_TEST(TablesTest, RowsChosenByConditionOrKeysInOneConnection) {
  CopyTableStructure("DBMAIN", "Goods", "DBMAIN", "Chosen");
  EXPECT_EQ(
      CopyRows("DBMAIN", "Goods", "DBMAIN", "Chosen", TRowChoice::Where(u"Lot = 1 and Paid = 1")),
      6);
  for (const auto& row : AllRows("DBMAIN", "Chosen")) EXPECT_EQ(row[0].AsInteger(), 1);
  // Keys: two of Goods, one without a row; the values are bound, so a quote is only a value.
  std::vector<std::vector<db::Variant>> keys{
      {0, int64_t{0}}, {2, int64_t{5} * 1000003}, {2, int64_t{77}}, {u"1' or 1=1 --", int64_t{1}}};
  CopyTableStructure("DBMAIN", "Goods", "OTHER", "ByKey");
  EXPECT_EQ(CopyRows("DBMAIN", "Goods", "OTHER", "ByKey", TRowChoice::ByKeys(keys)), 2);
  const auto rows = AllRows("OTHER", "ByKey");
  ASSERT_EQ(rows.size(), 2u);
  EXPECT_EQ(rows[1][1].AsInteger(), 5 * 1000003);
  EXPECT_THROW(CopyRows("DBMAIN", "Goods", "OTHER", "ByKey", TRowChoice::ByKeys({{1}})),
               db::EDatabaseError);
}

TYPED_TEST(TablesTest, ExportThenImportGivesTheSameRows) {
  test::MakeGoods("OTHER", 0);  // an empty table of the same name beside the copy
  std::vector<TArchiveProgress> seen;
  TExportOptions options;
  options.BatchRows = 16;
  options.Progress = [&](const TArchiveProgress& p) {
    seen.push_back(p);
    return true;
  };
  const auto written = ExportTables("DBMAIN", this->archive_, {"Goods"}, options);
  ASSERT_EQ(written.size(), 1u);
  EXPECT_EQ(written[0].Rows, 40);
  ASSERT_EQ(seen.size(), 4u);  // the start, two batches, the end
  EXPECT_EQ(seen[1].Rows, 16);
  EXPECT_EQ(seen[3].Rows, 40);
  EXPECT_EQ(seen[3].TableRows, 40);
  EXPECT_EQ(this->Leftovers(), std::vector<std::string>{"goods.zip"});

  const auto read = ImportTables("OTHER", this->archive_, {});
  ASSERT_EQ(read.size(), 1u);
  EXPECT_EQ(read[0].Table + " " + std::to_string(read[0].Rows), "Goods 40");
  EXPECT_EQ(AllRows("OTHER", "Goods"), AllRows("DBMAIN", "Goods"));
  // Again: every key is there, so nothing more is added; with Replace the rows are replaced.
  EXPECT_THROW(ImportTables("OTHER", this->archive_, {"goods"}), ETablesError);
  TImportOptions replace;
  replace.Replace = true;
  EXPECT_EQ(ImportTables("OTHER", this->archive_, {"GOODS"}, replace)[0].Rows, 40);
  EXPECT_EQ(AllRows("OTHER", "Goods").size(), 40u);
  // Into a connection without the table: it is made from the archive's structure.
  db::CloseConnection("OTHER");
  test::OpenOther<TypeParam>(this->dir_, "fresh.db");
  ImportTables("OTHER", this->archive_, {});
  EXPECT_EQ(AllRows("OTHER", "Goods"), AllRows("DBMAIN", "Goods"));
  EXPECT_EQ(ReadTableDef("OTHER", "Goods").Columns[1].KeyOrder, 2);
}

TYPED_TEST(TablesTest, CancelFailureAndFullDiskLeaveNoArchive) {
  this->dir_.Write("goods.zip", "the old archive");
  TExportOptions cancel;
  cancel.BatchRows = 10;
  cancel.Progress = [](const TArchiveProgress& p) { return p.Rows < 20; };
  EXPECT_THROW(ExportTables("DBMAIN", this->archive_, {"Goods"}, cancel), ETablesCancelled);
  EXPECT_EQ(this->dir_.Read("goods.zip"), "the old archive");
  EXPECT_EQ(this->Leftovers(), std::vector<std::string>{"goods.zip"});
  // A missing second table fails the export before anything is written.
  EXPECT_THROW(ExportTables("DBMAIN", this->archive_, {"Goods", "Nope"}), ETablesError);
  TExportOptions full;
  uint64_t asked = 0;
  std::string folder;
  full.FreeSpace = [&](const std::string& f) -> std::optional<uint64_t> {
    folder = f;
    asked = EstimateExportSize("DBMAIN", {"Goods"});
    return asked - 1;
  };
  try {
    ExportTables("DBMAIN", this->archive_, {"Goods"}, full);
    FAIL() << "the export went ahead";
  } catch (const ETablesError& error) {
    EXPECT_NE(error.English().find("Not enough free space"), std::string::npos);
    EXPECT_NE(error.Chinese().find("可用空間不足"), std::string::npos);
  }
  EXPECT_EQ(folder, this->dir_.path() + "/");
  EXPECT_GT(asked, 40u * 256 * 2);  // the bytes alone take this much
  EXPECT_EQ(this->Leftovers(), std::vector<std::string>{"goods.zip"});
}

TYPED_TEST(TablesTest, DamagedTableFileImportsNothingOfItsTable) {
  CopyTableStructure("DBMAIN", "Goods", "DBMAIN", "Second");
  CopyRows("DBMAIN", "Goods", "DBMAIN", "Second", TRowChoice::All());
  ExportTables("DBMAIN", this->archive_, {"Goods", "Second"});
  // The same archive with the second table's third row damaged.
  std::string second;
  {
    archive::TZipReader zip(this->archive_);
    std::string name, goods;
    char buffer[4096];
    for (int entry = 0; zip.NextEntry(name); ++entry) {
      std::string& text = entry == 0 ? goods : second;
      for (size_t n; (n = zip.Read(buffer, sizeof buffer)) > 0;) text.append(buffer, n);
    }
    size_t line = 0;
    for (int i = 0; i < 13; ++i) line = second.find('\n', line) + 1;  // 11 header lines, 2 rows
    second.replace(second.find('\t', line), 1, "\tnot-a-number\t");
    archive::TZipWriter damaged(this->dir_.File("damaged.zip"));
    damaged.BeginEntry("Goods.mvt");
    damaged.Write(goods);
    damaged.BeginEntry("Second.mvt");
    damaged.Write(second);
    damaged.Close();
  }
  try {
    ImportTables("OTHER", this->dir_.File("damaged.zip"), {});
    FAIL() << "a damaged table file was imported";
  } catch (const ETablesError& error) {
    EXPECT_NE(error.English().find("Second.mvt"), std::string::npos) << error.what();
    EXPECT_NE(error.English().find("row 3"), std::string::npos) << error.what();
  }
  EXPECT_EQ(AllRows("OTHER", "Goods").size(), 40u);  // the table before it is in
  EXPECT_THROW(ReadTableDef("OTHER", "Second"), db::EDatabaseError);
  // Cut short: the zip's own check fails, and nothing of the table goes in.
  const std::string whole = this->dir_.Read("goods.zip");
  this->dir_.Write("cut.zip", whole.substr(0, whole.size() / 2));
  EXPECT_THROW(ImportTables("OTHER", this->dir_.File("cut.zip"), {"Second"}), ETablesError);
  EXPECT_THROW(ReadTableDef("OTHER", "Second"), db::EDatabaseError);
  EXPECT_THROW(ImportTables("OTHER", this->archive_, {"Third"}), ETablesError);
}

}  // namespace
}  // namespace mv::tables
