// The Qt side of the grid layouts: colour values as palette colours of a grid, and a menu's
// actions as the items the layout routines check.
#include <gtest/gtest.h>

#include <QApplication>
#include <QSignalSpy>
#include <QTableView>
#include <memory>

#include "platform/qt/grid_colors.h"
#include "platform/qt/qt_menu_items.h"

namespace mv::qt {
namespace {

TEST(GridColorsTest, ValuesAreRgbOrTheSystemColoursOfThePalette) {
  QPalette palette;
  palette.setColor(QPalette::Base, Qt::red);
  palette.setColor(QPalette::Highlight, Qt::green);
  palette.setColor(QPalette::Button, Qt::blue);
  palette.setColor(QPalette::Window, Qt::yellow);
  EXPECT_EQ(ColorFromValue(0xE9D2C9, palette), QColor(0xC9, 0xD2, 0xE9));
  EXPECT_EQ(ColorFromValue(0x02123456, palette), QColor(0x56, 0x34, 0x12));
  EXPECT_EQ(ColorFromValue(0xFF000005, palette), QColor(Qt::red));     // window: Base
  EXPECT_EQ(ColorFromValue(0xFF00000D, palette), QColor(Qt::green));   // selection
  EXPECT_EQ(ColorFromValue(0xFF00000F, palette), QColor(Qt::blue));    // button face
  EXPECT_EQ(ColorFromValue(0xFF00001E, palette), QColor(Qt::yellow));  // menu bar, the last
  for (controls::TColor none : {0xFF000019u, 0xFF00001Fu, 0xFFFFFFFFu}) {
    EXPECT_FALSE(ColorFromValue(none, palette).isValid()) << std::hex << none;
  }
}

TEST(GridColorsTest, TheRowsTakeTheThreeColoursAndAnUnknownOneLeavesItsPart) {
  QTableView view;
  const QPalette system = QApplication::palette(&view);
  ApplyGridColors(view, 0xE9D2C9, 0x0000FF, 0xF8F4ED);
  EXPECT_EQ(view.palette().color(QPalette::Highlight), QColor(0xC9, 0xD2, 0xE9));
  EXPECT_EQ(view.palette().color(QPalette::HighlightedText), system.color(QPalette::Text));
  EXPECT_EQ(view.palette().color(QPalette::Base), QColor(Qt::red));
  EXPECT_EQ(view.palette().color(QPalette::Inactive, QPalette::AlternateBase),
            QColor(0xED, 0xF4, 0xF8));
  EXPECT_TRUE(view.alternatingRowColors());
  // A second colouring maps the window colour by the application's palette, not the view's own.
  ApplyGridColors(view, 0xFF000063, 0x00FF00, 0xFF000005);
  EXPECT_EQ(view.palette().color(QPalette::Highlight), QColor(0xC9, 0xD2, 0xE9));
  EXPECT_EQ(view.palette().color(QPalette::Base), QColor(Qt::green));
  EXPECT_EQ(view.palette().color(QPalette::AlternateBase), system.color(QPalette::Base));
}

TEST(QtMenuItemsTest, ActionsAreItemsByObjectNameAndOnlyCheckableOnesTakeAMark) {
  auto menu = std::make_unique<QMenu>();
  QAction* refNo = menu->addAction(QStringLiteral("Ref. No."));
  refNo->setObjectName(QStringLiteral("miRefNo"));
  refNo->setCheckable(true);
  menu->addSeparator();
  QAction* plain = menu->addAction(QStringLiteral("Print"));
  plain->setObjectName(QStringLiteral("mi報關"));
  QtMenuItems items(menu.get());
  ASSERT_EQ(items.Count(), 3);
  EXPECT_EQ(items.Name(0), "miRefNo");
  EXPECT_EQ(items.Name(1), "");
  EXPECT_EQ(items.Name(2), "mi報關");
  QSignalSpy triggered(refNo, &QAction::triggered);
  items.SetChecked(0, true);
  EXPECT_TRUE(items.Checked(0));
  EXPECT_TRUE(triggered.isEmpty());  // the item's own action does not run
  items.SetChecked(2, true);
  EXPECT_FALSE(items.Checked(2));
  menu.reset();
  EXPECT_EQ(items.Count(), 0);
  items.SetChecked(0, false);  // nothing left to check, no crash
}

}  // namespace
}  // namespace mv::qt
