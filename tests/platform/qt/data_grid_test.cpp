// The data-aware grid and its column menu over a real SQLite dataset, as real widgets under the
// offscreen platform, driven by keyboard and mouse as a user drives them.
#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QHeaderView>
#include <QMenu>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <optional>

#include "platform/db/dataset.h"
#include "platform/qt/column_menu.h"
#include "platform/qt/data_grid.h"
#include "platform/qt/dataset_model.h"
#include "tests/platform/db/db_fixture.h"

namespace mv::qt {
namespace {

class DataGridTest : public testing::Test {
 protected:
  // An inbox of `rows` messages R0001 ... with a Big5 subject.
  explicit DataGridTest(int rows = 30) {
    test::Exec(
        "create table Inbox (RefNo varchar(10) primary key, Sender varchar(20), "
        "Subject nvarchar(40), Amount float)");
    const std::u16string count = QString::number(rows).toStdU16String();
    test::Exec(u"with recursive n(i) as (select 1 union all select i + 1 from n where i < " +
               count +
               u") insert into Inbox select printf('R%04d', i), 'S' || i, '發票 ' || i, i * 1.5 "
               u"from n");
    ds_.emplace();
    ds_->SetCommandText("select RefNo, Sender, Subject, Amount from Inbox order by RefNo");
    grid_.resize(420, 300);
  }
  void Open(db::TCursorLocation location = db::clUseClient) {
    ds_->SetCursorLocation(location);
    ds_->Open();
    grid_.SetDataSet(&*ds_);
    grid_.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&grid_));
  }
  QString Header(int column) const {
    return grid_.model()->headerData(column, Qt::Horizontal).toString();
  }
  QString Cell(int row, int column) const {
    return grid_.model()->index(row, column).data().toString();
  }
  // The column menu once it shows.
  QMenu* OpenMenu() {
    EXPECT_TRUE(QTest::qWaitFor([this] { return grid_.Columns()->isVisible(); }));
    return grid_.Columns();
  }

  test::TempDir dir_;
  test::ScopedEnv codePage_{"MV_CODEPAGE", "950"};
  test::SqliteBackend backend_{dir_};
  std::optional<db::TMVADODataSet> ds_;
  DataGrid grid_;
};

TEST_F(DataGridTest, ColumnsCaptionsAndOrderFollowTheFieldsLive) {
  Open();
  QAbstractItemModelTester tester(grid_.model(),
                                  QAbstractItemModelTester::FailureReportingMode::Fatal);
  EXPECT_EQ(grid_.accessibleName(), "Data grid");
  ASSERT_EQ(grid_.ColumnCount(), 4);
  EXPECT_EQ(Header(0), "RefNo");
  EXPECT_EQ(Cell(1, 2), QString::fromUtf8("發票 2"));
  EXPECT_EQ(grid_.model()->index(0, 3).data(Qt::TextAlignmentRole).toInt() & Qt::AlignRight,
            Qt::AlignRight);
  ds_->FieldByName("Subject").SetDisplayLabel("\xA5\x44\xA6\xAE");  // Big5 主旨
  EXPECT_EQ(Header(2), QString::fromUtf8("主旨"));
  ds_->FieldByName("Sender").SetVisible(false);
  EXPECT_EQ(grid_.ColumnCount(), 3);
  EXPECT_EQ(grid_.FindColumn("SENDER"), -1);
  EXPECT_EQ(grid_.FindColumn("subject"), 1);
  ds_->FieldByName("Amount").SetIndex(0);
  EXPECT_EQ(grid_.ColumnFieldName(0), "Amount");
  EXPECT_EQ(grid_.ColumnFieldName(3), "");
  EXPECT_EQ(Cell(0, 0), "1.5");
  ds_->Close();
  EXPECT_EQ(grid_.ColumnCount(), 0);
  EXPECT_EQ(grid_.model()->rowCount(), 0);
  ds_->Open();
  EXPECT_EQ(grid_.ColumnCount(), 4);  // a new open: every field visible again
  EXPECT_EQ(grid_.model()->rowCount(), 30);
}

TEST_F(DataGridTest, AWidthBelongsToItsFieldThroughMovesHidingAndRefresh) {
  Open();
  EXPECT_TRUE(grid_.SetColumnWidth("refno", 150));
  EXPECT_FALSE(grid_.SetColumnWidth("Nope", 80));
  ds_->FieldByName("RefNo").SetVisible(false);
  EXPECT_EQ(grid_.ColumnWidth("RefNo"), 0);
  EXPECT_TRUE(grid_.SetColumnWidth("Sender", 0));  // ignored: a column stays usable
  EXPECT_GT(grid_.ColumnWidth("Sender"), 20);
  ds_->FieldByName("RefNo").SetIndex(3);
  ds_->FieldByName("RefNo").SetVisible(true);
  EXPECT_EQ(grid_.FindColumn("RefNo"), 3);
  EXPECT_EQ(grid_.ColumnWidth("RefNo"), 150);
  grid_.horizontalHeader()->resizeSection(0, 77);  // the user drags Sender's edge
  ds_->Refresh();
  EXPECT_EQ(grid_.ColumnWidth("sender"), 77);
  // A field hidden before it was ever sized comes back wide enough for its caption.
  ds_->FieldByName("Subject").SetVisible(false);
  grid_.setColumnHidden(0, true);  // what Qt does to a hidden column: width 0
  ds_->FieldByName("Subject").SetVisible(true);
  EXPECT_GE(grid_.ColumnWidth("Subject"), grid_.horizontalHeader()->sectionSizeHint(1));
  EXPECT_GT(grid_.columnWidth(grid_.FindColumn("Sender")), 0);
}

TEST_F(DataGridTest, DisabledControlsFreezeTheGridUntilOneCatchUp) {
  Open();
  QSignalSpy resets(grid_.model(), &QAbstractItemModel::modelReset);
  ds_->DisableControls();
  ds_->DisableControls();
  ds_->FieldByName("Sender").SetVisible(false);
  test::Exec("insert into Inbox (RefNo) values ('R9999')");
  ds_->Refresh();  // the fields the columns showed are gone: nothing of them is painted
  ds_->SetRecNo(31);
  grid_.grab();
  EXPECT_EQ(grid_.ColumnFieldName(0), "");
  EXPECT_FALSE(grid_.model()->headerData(0, Qt::Horizontal).isValid());
  ds_->EnableControls();
  EXPECT_EQ(grid_.ColumnCount(), 4);
  EXPECT_EQ(grid_.model()->rowCount(), 30);
  EXPECT_EQ(resets.count(), 0);
  ds_->EnableControls();
  EXPECT_EQ(resets.count(), 1);
  EXPECT_EQ(grid_.ColumnCount(), 3);
  EXPECT_EQ(grid_.model()->rowCount(), 31);
  EXPECT_EQ(grid_.currentIndex().row(), 30);
  // A grid given a dataset whose controls are disabled waits for them too.
  DataGrid late;
  ds_->DisableControls();
  late.SetDataSet(&*ds_);
  EXPECT_EQ(late.ColumnFieldName(0), "");
  ds_->EnableControls();
  EXPECT_EQ(late.ColumnFieldName(0), "RefNo");
}

TEST_F(DataGridTest, TheKeyboardAndSelectionMoveTheDataSetAndItsMovesMoveTheSelection) {
  Open();
  grid_.setFocus();
  EXPECT_EQ(grid_.currentIndex().row(), 0);
  QTest::keyClick(&grid_, Qt::Key_Down);
  EXPECT_EQ(ds_->RecNo(), 2);
  QTest::keyClick(&grid_, Qt::Key_End);
  EXPECT_EQ(ds_->RecNo(), 30);
  QTest::keyClick(&grid_, Qt::Key_PageUp);
  EXPECT_LT(ds_->RecNo(), 30);
  EXPECT_GT(ds_->RecNo(), 1);
  QTest::keyClick(&grid_, Qt::Key_Home);
  EXPECT_EQ(ds_->RecNo(), 1);
  grid_.selectRow(4);
  EXPECT_EQ(ds_->RecNo(), 5);
  ds_->SetRecNo(17);
  EXPECT_EQ(grid_.currentIndex().row(), 16);
  EXPECT_TRUE(ds_->Locate("RefNo", db::Variant("R0003")));
  EXPECT_EQ(grid_.selectionModel()->selectedRows().value(0).row(), 2);
  // Edits show at once; an insert and a delete move the rows below.
  ds_->Edit();
  ds_->FieldByName("Sender").SetAsString("edited");
  EXPECT_EQ(Cell(2, 1), "edited");
  ds_->Post();
  ds_->Insert();
  ds_->FieldByName("RefNo").SetAsString("R0002a");
  ds_->Post();
  EXPECT_EQ(grid_.model()->rowCount(), 31);
  EXPECT_EQ(Cell(2, 0), "R0002a");
  EXPECT_EQ(grid_.currentIndex().row(), 2);
  ds_->Delete();
  EXPECT_EQ(grid_.model()->rowCount(), 30);
  EXPECT_EQ(Cell(2, 1), "edited");
  EXPECT_EQ(grid_.currentIndex().row(), 2);
}

TEST_F(DataGridTest, DestroyingTheDataSetFirstLeavesAnEmptyGrid) {
  Open();
  ds_.reset();
  EXPECT_EQ(grid_.DataSet(), nullptr);
  EXPECT_EQ(grid_.ColumnCount(), 0);
  EXPECT_TRUE(grid_.Columns()->actions().isEmpty());
  grid_.repaint();
}

class ServerGridTest : public DataGridTest {
 protected:
  ServerGridTest() : DataGridTest(1000) {}
};

TEST_F(ServerGridTest, AServerCursorIsReadInBlocksAsTheUserScrolls) {
  grid_.Model()->SetFetchBlock(40);
  Open(db::clUseServer);
  const int first = grid_.model()->rowCount();
  EXPECT_GE(first, 1);
  EXPECT_LE(first, 80);
  EXPECT_EQ(ds_->RecNo(), first);  // the cursor went no further than the rows shown
  EXPECT_EQ(Cell(first - 1, 0), QString::asprintf("R%04d", first));
  QScrollBar* bar = grid_.verticalScrollBar();
  bar->setValue(bar->maximum());
  EXPECT_TRUE(QTest::qWaitFor([&] { return grid_.model()->rowCount() > first; }));
  EXPECT_LT(grid_.model()->rowCount(), 1000);
  EXPECT_EQ(ds_->RecNo(), grid_.model()->rowCount());
  grid_.setFocus();
  const int read = grid_.model()->rowCount();
  QTest::keyClick(&grid_, Qt::Key_End);  // the last row read: the next block comes
  EXPECT_GE(grid_.model()->rowCount(), read + 40);
  EXPECT_LT(grid_.model()->rowCount(), 1000);
  EXPECT_EQ(grid_.currentIndex().row(), read - 1);
  EXPECT_EQ(Cell(read, 0), QString::asprintf("R%04d", read + 1));
  EXPECT_EQ(ds_->RecNo(), grid_.model()->rowCount());
  ds_->Refresh();
  EXPECT_LE(grid_.model()->rowCount(), 80);
  // Refreshed and moved on while frozen: the rows read before belong to the old fields.
  ds_->DisableControls();
  ds_->Refresh();
  for (int i = 0; i < 200; ++i) ds_->Next();
  ds_->EnableControls();
  EXPECT_EQ(Cell(200, 0), "R0201");
  EXPECT_EQ(Cell(0, 0), "");  // gone by unseen
}

TEST_F(ServerGridTest, APaintAsksOnlyForTheVisibleCells) {
  Open();
  grid_.Model()->ResetCellRequests();
  grid_.grab();
  const int visibleRows =
      grid_.viewport()->height() / grid_.verticalHeader()->defaultSectionSize() + 1;
  EXPECT_GT(grid_.Model()->CellRequests(), 0);
  EXPECT_LE(grid_.Model()->CellRequests(), visibleRows * grid_.ColumnCount());
}

TEST_F(DataGridTest, TheColumnMenuNamesItsItemsByFieldAndSwitchesThemFromTheKeyboard) {
  Open();
  QList<QAction*> items = grid_.Columns()->actions();
  ASSERT_EQ(items.size(), 4);
  EXPECT_EQ(items[0]->objectName(), "miRefNo");
  EXPECT_EQ(items[3]->objectName(), "miAmount");
  EXPECT_TRUE(items[1]->isChecked());
  ds_->FieldByName("Amount").SetDisplayLabel("Tax & Duty");
  EXPECT_EQ(grid_.Columns()->ItemOfField("AMOUNT")->text(), "Tax && Duty");
  ds_->FieldByName("Amount").SetIndex(0);
  ds_->FieldByName("Sender").SetVisible(false);
  EXPECT_FALSE(grid_.Columns()->ItemOfField("Sender")->isChecked());
  grid_.setFocus();
  QTest::keyClick(&grid_, Qt::Key_Menu);
  QMenu* menu = OpenMenu();
  EXPECT_EQ(menu->actions().first()->objectName(), "miAmount");  // in field order when shown
  QTest::keyClick(menu, Qt::Key_Down);                           // RefNo
  QTest::keyClick(menu, Qt::Key_Down);                           // Sender
  QTest::keyClick(menu, Qt::Key_Return);
  EXPECT_TRUE(QTest::qWaitFor([&] { return !menu->isVisible(); }));
  EXPECT_TRUE(ds_->FieldByName("Sender").Visible());
  EXPECT_EQ(grid_.ColumnCount(), 4);
  QTest::keyClick(&grid_, Qt::Key_F10, Qt::ShiftModifier);
  menu = OpenMenu();
  QTest::keyClick(menu, Qt::Key_Space);  // the first item: Amount; the menu stays
  QTest::keyClick(menu, Qt::Key_Down);
  QTest::keyClick(menu, Qt::Key_Space);  // RefNo
  EXPECT_TRUE(menu->isVisible());
  EXPECT_FALSE(ds_->FieldByName("Amount").Visible());
  EXPECT_FALSE(ds_->FieldByName("RefNo").Visible());
  EXPECT_EQ(grid_.FindColumn("Amount"), -1);
  EXPECT_EQ(grid_.ColumnCount(), 2);
  QTest::keyClick(menu, Qt::Key_Escape);
  EXPECT_TRUE(QTest::qWaitFor([&] { return !menu->isVisible(); }));
  emit grid_.horizontalHeader()->customContextMenuRequested(QPoint(5, 5));
  menu = OpenMenu();
  menu->close();
  ds_->Close();
  EXPECT_TRUE(grid_.Columns()->actions().isEmpty());
}

}  // namespace
}  // namespace mv::qt
