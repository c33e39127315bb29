// The picture of the grid in the docs: the demo inbox with its column menu open, drawn offscreen.
// With MV_SCREENSHOT_DIR set it is written there as grid.png.
#include <gtest/gtest.h>

#include <QApplication>
#include <QHeaderView>
#include <QPainter>
#include <QTest>
#include <cstdlib>

#include "platform/db/connections.h"
#include "platform/db/dataset.h"
#include "platform/qt/column_menu.h"
#include "platform/qt/data_grid.h"
#include "tests/support/demo_database.h"

namespace mv::qt {
namespace {

// The grid and, over it where it shows, its open column menu, in one picture.
QImage GridWithMenu(DataGrid& grid) {
  QImage picture = grid.grab().toImage();
  QPainter painter(&picture);
  QMenu* menu = grid.Columns();
  painter.drawPixmap(grid.mapFromGlobal(menu->pos()), menu->grab());
  return picture;
}

TEST(GridScreenshotTest, TheDemoInboxWithItsColumnMenuOpen) {
  test::TempDir dir;
  db::OpenConnection("DBMAIN", test::CopyDemoDatabase(dir));
  {
    db::TMVADODataSet inbox;
    inbox.SetCommandText(
        "select RefNo, DateTime, Sender, MType, Subject, Status, MsgSize, FileName from Inbox "
        "order by DateTime");
    inbox.Open();
    inbox.FieldByName("DateTime").SetDisplayLabel("Received");
    inbox.FieldByName("MType").SetDisplayLabel("Type");
    inbox.FieldByName("MsgSize").SetDisplayLabel("Size");
    inbox.FieldByName("FileName").SetVisible(false);
    DataGrid grid;
    grid.resize(840, 240);
    grid.SetDataSet(&inbox);
    grid.SetColumnWidth("Subject", 250);
    grid.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&grid));
    inbox.SetRecNo(3);
    grid.ShowColumnMenu(grid.mapToGlobal(
        QPoint(grid.columnViewportPosition(4) + 40, grid.horizontalHeader()->height())));
    ASSERT_TRUE(QTest::qWaitFor([&] { return grid.Columns()->isVisible(); }));
    const QImage picture = GridWithMenu(grid);
    // The menu shows in the picture, its first item highlighted for the keyboard.
    QMenu* menu = grid.Columns();
    const QPoint inFirstItem = grid.mapFromGlobal(menu->pos()) +
                               menu->actionGeometry(menu->actions().first()).topRight() +
                               QPoint(-4, 4);
    ASSERT_TRUE(picture.rect().contains(inFirstItem));
    EXPECT_EQ(picture.pixel(inFirstItem), menu->palette().color(QPalette::Highlight).rgb());
    if (const char* folder = std::getenv("MV_SCREENSHOT_DIR")) {
      EXPECT_TRUE(picture.save(QString::fromLocal8Bit(folder) + "/grid.png"));
    }
    grid.Columns()->close();
  }
  db::CloseConnection("DBMAIN");
}

}  // namespace
}  // namespace mv::qt
