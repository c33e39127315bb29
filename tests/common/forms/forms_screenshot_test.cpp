// The two shared forms as a user sees them, checked for text that does not fit: a list window with
// its record count in a label and the status bar over the demo inbox, and an open pick form under
// its edit. With MV_SCREENSHOT_DIR set, the scenes are saved there as record_count.png and
// popup_form.png (the pictures of the README).
#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPainter>
#include <QStatusBar>
#include <QTest>
#include <QToolButton>
#include <QVBoxLayout>
#include <cstdlib>

#include "common/forms/pop_list_form.h"
#include "common/forms/records_taker_factory.h"
#include "common/forms/show_panel_holder.h"
#include "common/text/lang_changer.h"
#include "platform/db/connections.h"
#include "platform/qt/data_grid.h"
#include "platform/qt/qt_text_controls.h"
#include "tests/support/demo_database.h"

namespace mv::test {
namespace {

void SaveScreenshot(const QPixmap& picture, const char* name) {
  if (const char* dir = std::getenv("MV_SCREENSHOT_DIR")) {
    EXPECT_TRUE(picture.save(QString::fromUtf8(dir) + "/" + name));
  }
}

// Whether `label` shows its whole text.
bool Fits(const QLabel& label) {
  return label.fontMetrics().horizontalAdvance(label.text()) <= label.contentsRect().width();
}

TEST(FormsScreenshot, ListWindowShowsItsCountInTheLabelAndTheStatusBar) {
  LangChanger().SetLanguage(kLangEnglish);
  TempDir dir;
  db::OpenConnection("DBMAIN", CopyDemoDatabase(dir));
  {
    QMainWindow window;
    window.setWindowTitle("Inbox");
    auto* central = new QWidget(&window);
    auto* layout = new QVBoxLayout(central);
    auto* label = new QLabel("Inbox", central);
    auto* grid = new qt::DataGrid(central);
    layout->addWidget(label);
    layout->addWidget(grid);
    window.setCentralWidget(central);
    TShowPanelHolder::GetInstance().SetPanel(qt::AddStatusPanel(*window.statusBar(), "count"));

    db::TMVADODataSet dataSet;
    dataSet.SetCommandText("select RefNo, Sender, MType, Subject, Status from Inbox");
    const auto taker = TRecordsTakerFactory::CreateOfDefaultShowLabel(
        &dataSet, std::make_shared<qt::QtLabelText>(label));
    grid->SetDataSet(&dataSet);
    dataSet.Open();
    grid->resizeColumnsToContents();
    window.resize(640, 260);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));

    EXPECT_EQ(label->text(), "Inbox - (4 records)");
    const auto* panel = window.statusBar()->findChild<QLabel*>("count");
    ASSERT_NE(panel, nullptr);
    EXPECT_EQ(panel->text(), "4 records");
    EXPECT_TRUE(Fits(*label));
    EXPECT_TRUE(Fits(*panel));
    EXPECT_TRUE(panel->isVisible());
    SaveScreenshot(window.grab(), "record_count.png");
    dataSet.Close();
  }
  db::CloseConnection("DBMAIN");
  LangChanger().SetLanguage(kLangChinese);
}

TEST(FormsScreenshot, OpenPickFormListsWholeItemsInsideTheMainWindow) {
  LangChanger().SetLanguage(kLangEnglish);
  QWidget main;
  main.setWindowTitle("Trade declaration");
  auto* caption = new QLabel("Currency", &main);
  caption->setGeometry(12, 16, 70, 24);
  auto* edit = new QLineEdit("USD", &main);
  edit->setGeometry(84, 16, 120, 24);
  auto* button = new QToolButton(&main);
  button->setArrowType(Qt::DownArrow);
  button->setGeometry(204, 16, 24, 24);
  main.resize(300, 160);
  main.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&main));

  TPopListForm form(edit);
  form.SetItems({u"HKD|Hong Kong Dollar", u"USD|US Dollar", u"EUR|Euro", u"JPY|Japanese Yen",
                 u"CNY|Chinese Yuan Renminbi"});
  const QListWidget& rows = form.List();
  form.resize(220, rows.sizeHintForRow(0) * rows.count() + 2 * rows.frameWidth() + 2);
  form.SetSourceControl(edit);
  form.SetSpeedButton(button);
  QTest::mouseClick(button, Qt::LeftButton);
  ASSERT_TRUE(form.isVisible());
  EXPECT_TRUE(button->isChecked());
  EXPECT_EQ(form.List().currentRow(), 1);

  const QRect inMain(main.mapFromGlobal(form.pos()), form.size());
  EXPECT_TRUE(main.rect().contains(inMain));
  const QListWidget& list = form.List();
  for (int row = 0; row < list.count(); ++row) {
    EXPECT_LE(list.visualItemRect(list.item(row)).right(), list.viewport()->width())
        << list.item(row)->text().toStdString();
    EXPECT_LE(list.fontMetrics().horizontalAdvance(list.item(row)->text()),
              list.viewport()->width() - 4)
        << list.item(row)->text().toStdString();
  }

  QPixmap scene = main.grab();
  QPainter painter(&scene);
  painter.drawPixmap(inMain.topLeft(), form.grab());
  painter.end();
  SaveScreenshot(scene, "popup_form.png");
  form.Close();
  LangChanger().SetLanguage(kLangChinese);
}

}  // namespace
}  // namespace mv::test
