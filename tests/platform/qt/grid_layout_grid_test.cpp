// Grid layouts and colours restored onto the data-aware grid and its column menu over a real
// SQLite dataset, as a list form uses them: saved, the form closed and opened again, restored.
#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <fstream>
#include <sstream>

#include "common/frame/shared_state.h"
#include "common/settings/grid_layout.h"
#include "common/settings/user_grid_color.h"
#include "common/settings/user_preference.h"
#include "common/text/lang_changer.h"
#include "platform/db/dataset.h"
#include "platform/qt/column_menu.h"
#include "platform/qt/qt_grid_columns.h"
#include "platform/qt/qt_menu_items.h"
#include "tests/common/text/text_fixture.h"
#include "tests/platform/db/db_fixture.h"

namespace mv::qt {
namespace {

using namespace mv::test;

// What a list form holds while it is open: the dataset, its grid and the grid's column menu.
struct ListForm {
  ListForm() {
    inbox.SetCommandText("select RefNo, Sender, Subject, Size from inbox");
    inbox.Open();
    grid.SetDataSet(&inbox);
    grid.resize(520, 160);
  }
  // Every field in dataset order: name, "+" visible or "-" hidden, the grid's width, "v" when
  // its menu item is checked; then the grid's columns.
  std::string Layout() {
    std::string text;
    for (int i = 0; i < inbox.FieldCount(); ++i) {
      const db::TField& field = inbox.Fields(i);
      text += field.FieldName() + (field.Visible() ? "+" : "-") +
              std::to_string(grid.ColumnWidth(field.FieldName())) +
              (grid.Columns()->ItemOfField(field.FieldName())->isChecked() ? "v " : " ");
    }
    for (int column = 0; column < grid.ColumnCount(); ++column)
      text += "|" + grid.ColumnFieldName(column);
    return text;
  }

  db::TMVADODataSet inbox;
  DataGrid grid;
  QtGridColumns columns{&grid};
  QtMenuItems menu{grid.Columns()};
};

class GridLayoutOnGridTest : public TextFixture {
 protected:
  GridLayoutOnGridTest() {
    std::stringstream schema;
    schema << std::ifstream(MV_SYSUSER_SQL).rdbuf();
    Exec(schema.str());
    Exec("insert into sysuser (userid) values ('DEMO')");
    Exec("create table inbox (RefNo text, Sender text, Subject text, Size int)");
    Exec(
        "insert into inbox values ('R1', 'ACME', 'Hello', 10), ('R2', 'Bolt', 'Bye', 20), "
        "('R3', 'Cove', 'Hi', 30)");
    UserRecord.UserID = "DEMO";
    LangChanger().SetLanguage(kLangEnglish);
  }
  ~GridLayoutOnGridTest() override {
    EXPECT_TRUE(dialogs_.Requests().empty());
    LangChanger().SetLanguage(kLangChinese);
  }

  SqliteBackend db_{installation_.Dir()};
};

TEST_F(GridLayoutOnGridTest, ALayoutSavedComesBackWhenTheFormOpensAgain) {
  std::string saved;
  {
    ListForm form;
    form.grid.Columns()->ItemOfField("Sender")->trigger();  // the user hides a column
    form.inbox.FieldByName("Size").SetIndex(0);
    form.grid.SetColumnWidth("RefNo", 150);
    form.grid.SetColumnWidth("subject", 33);
    saved = form.Layout();
    EXPECT_EQ(saved, "Size+" + std::to_string(form.grid.ColumnWidth("Size")) +
                         "v RefNo+150v Sender-0 Subject+33v |Size|RefNo|Subject");
    SaveDlgSetting("InboxGrid", form.inbox, form.columns, 3);
  }
  ListForm form;
  EXPECT_NE(form.Layout(), saved);
  GetDlgSetting(u"InboxGrid", form.inbox, form.menu, form.columns);
  EXPECT_EQ(form.Layout(), saved);
  EXPECT_EQ(GetQuickSortOrder("InboxGrid"), 3);
  // Shown again, the column the layout stored as hidden has a usable width.
  form.grid.Columns()->ItemOfField("Sender")->trigger();
  EXPECT_GT(form.grid.ColumnWidth("Sender"), 10);
}

// A layout an older form stored: a field it named is gone, the sort item sits in the middle,
// "yes" is no "1", "abc" no width, and the last triple has no final ",". Every triple read takes
// its position.
TEST_F(GridLayoutOnGridTest, ALayoutFromAnOlderFormSkipsLostFieldsButKeepsTheirPlaces) {
  SaveUserPreference("InboxGrid", "Gone,1,50,Subject,1,60,QOrder,,2,RefNo,yes,70,Size,1,abc");
  ListForm form;
  QMenu menu;  // a form's own menu: items named by a two-character prefix and the field name
  for (const char* name : {"miRefNo", "xxsender", "miGone", "m"}) {
    QAction* item = menu.addAction(QString::fromUtf8(name));
    item->setObjectName(QString::fromUtf8(name));
    item->setCheckable(true);
  }
  QtMenuItems items(&menu);
  GetDlgSetting("InboxGrid", form.inbox, items, form.columns);
  EXPECT_EQ(form.Layout(), "Subject+60v Sender+100v RefNo-0 Size+100v |Subject|Sender|Size");
  std::string checks;
  for (int item = 0; item < items.Count(); ++item) checks += items.Checked(item) ? "1" : "0";
  EXPECT_EQ(checks, "0100");
  // A lone name after the last "," is not applied.
  SetColumnSetting(form.inbox, "Size,1,30,RefNo", items, form.columns);
  EXPECT_EQ(form.Layout(), "Size+30v Subject+60v Sender+100v RefNo-0 |Size|Subject|Sender");
}

// The grid shows no columns while the dataset's controls are disabled, so it takes the widths of
// a layout only because the controls are enabled while the layout is applied.
TEST_F(GridLayoutOnGridTest, DisabledControlsAreEnabledWhileTheColumnsAreSet) {
  ListForm form;
  form.inbox.DisableControls();
  SetColumnSetting(form.inbox, "Size,1,44,Subject,0,9,", form.menu, form.columns);
  EXPECT_TRUE(form.inbox.ControlsDisabled());
  form.inbox.EnableControls();
  EXPECT_EQ(form.Layout(), "Size+44v Subject-0 RefNo+100v Sender+100v |Size|RefNo|Sender");
}

TEST_F(GridLayoutOnGridTest, TheUsersColoursPaintTheRows) {
  SaveUserPreference("InboxColor", "15323849,-16777211,255,");
  TUserGridColor inbox{}, outbox{}, sentbox{}, search{};
  GetUserColor(inbox, outbox, sentbox, search);
  ListForm form;
  SetGridColors(form.columns, inbox);
  form.grid.selectRow(0);
  if (const char* dir = std::getenv("MV_SCREENSHOT_DIR"))
    form.grid.grab().save(QString::fromUtf8(dir) + QStringLiteral("/grid-colours.png"));
  // Inside the first column, right of its short text: selected row, plain row, alternate row.
  const QImage rows = form.grid.viewport()->grab().toImage();
  const auto inRow = [&](int row) {
    return rows.pixelColor(form.grid.columnWidth(0) - 4, form.grid.rowViewportPosition(row) + 3);
  };
  EXPECT_EQ(inRow(0), QColor(0xC9, 0xD2, 0xE9));
  EXPECT_EQ(inRow(1), QColor(Qt::red));
  EXPECT_EQ(inRow(2), QApplication::palette(&form.grid).color(QPalette::Base));  // the window
}

}  // namespace
}  // namespace mv::qt
