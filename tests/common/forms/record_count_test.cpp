// The record count of a list screen on real widgets over a copy of the demo database: the label,
// status panel and caption texts, client and server cursors, the dataset's own handlers, and the
// shared status panel.
#include <gtest/gtest.h>

#include <QLabel>
#include <QMainWindow>
#include <QStatusBar>
#include <vector>

#include "common/forms/records_taker_factory.h"
#include "common/forms/show_panel_holder.h"
#include "common/text/lang_changer.h"
#include "platform/db/connections.h"
#include "platform/qt/qt_text_controls.h"
#include "tests/platform/db/db_fixture.h"
#include "tests/support/demo_database.h"

namespace mv::test {
namespace {

// An inbox of 25 rows, a label "Inbox" and a main window with a status panel; English.
class RecordCount : public testing::Test {
 protected:
  RecordCount() {
    db::OpenConnection("DBMAIN", CopyDemoDatabase(dir_));
    std::string rows = "('R0',1,'S','T','D')";
    for (int i = 1; i < 25; ++i) rows += ",('R" + std::to_string(i) + "',1,'S','T','D')";
    Exec("delete from Inbox");
    Exec("insert into Inbox (RefNo, DateTime, Sender, MType, Recipient) values " + rows);
    LangChanger().SetLanguage(kLangEnglish);
    label_.setText("Inbox");
    window_.setWindowTitle("Inbox");
    dataSet_.SetCommandText("select RefNo from Inbox");
  }
  ~RecordCount() override {
    dataSet_.Close();
    db::CloseConnection("DBMAIN");
    LangChanger().SetLanguage(kLangChinese);
  }
  std::string Label() const { return label_.text().toStdString(); }

  TempDir dir_;
  QLabel label_;
  QMainWindow window_;
  std::shared_ptr<controls::TTextControl> label = std::make_shared<qt::QtLabelText>(&label_);
  std::shared_ptr<controls::TTextControl> panel = qt::AddStatusPanel(*window_.statusBar(), "n");
  db::TMVADODataSet dataSet_;
};

TEST_F(RecordCount, DisplaysFollowOpenRefreshAndTheLanguageAndUpdateTakesANewCaption) {
  TRecordsTaker taker(&dataSet_);
  taker.AddLabel(label);
  taker.AddPanel(panel);
  taker.AddForm(std::make_shared<qt::QtWindowTitle>(&window_));
  dataSet_.Open();
  EXPECT_EQ(Label(), "Inbox - (25 records)");
  EXPECT_EQ(panel->Text(), u"25 records");
  EXPECT_EQ(window_.windowTitle(), "Inbox - (25 records)");

  Exec("delete from Inbox where RefNo <> 'R0'");
  LangChanger().SetLanguage(kLangChinese);
  dataSet_.Refresh();
  EXPECT_EQ(label->Text(), u"Inbox - (1 記錄)");
  EXPECT_EQ(panel->Text(), u"1 記錄");

  LangChanger().SetLanguage(kLangEnglish);
  label_.setText("<b>Sent</b>\x02");  // shown as it stands, never as markup
  window_.setWindowTitle("Inbox");
  taker.Update();
  EXPECT_EQ(label->Text(), u"<b>Sent</b>\u0002 - (1 records)");
  EXPECT_EQ(label_.textFormat(), Qt::PlainText);
  dataSet_.Close();
  dataSet_.SetCommandText("select RefNo from Inbox where 1 = 0");
  dataSet_.Open();
  EXPECT_EQ(window_.windowTitle(), "Inbox - (0 records)");
}

TEST_F(RecordCount, ServerCursorsClosedDatasetsAndNoDatasetShowZero) {
  TRecordsTaker taker(&dataSet_);
  taker.AddLabel(label);
  dataSet_.SetCursorLocation(db::clUseServer);
  dataSet_.Open();
  EXPECT_EQ(Label(), "Inbox - (0 records)");
  dataSet_.SetCursorLocation(db::clUseClient);  // after the open: the cursor still counts -1
  taker.Show(-1);
  EXPECT_EQ(Label(), "Inbox - (0 records)");
  taker.Show(-7);
  EXPECT_EQ(Label(), "Inbox - (-7 records)");
  dataSet_.Close();
  taker.Show(-1);
  EXPECT_EQ(Label(), "Inbox - (0 records)");

  TRecordsTaker none(nullptr);
  none.AddPanel(nullptr);
  none.AddPanel(panel);
  none.Show(-1);
  EXPECT_EQ(panel->Text(), u"0 records");
}

TEST_F(RecordCount, KeptHandlersRunAfterTheCountAndAreGivenBack) {
  std::vector<std::string> seen;
  dataSet_.SetAfterOpen([&](db::TMVADODataSet&) { seen.push_back("open " + Label()); });
  dataSet_.SetAfterRefresh([&](db::TMVADODataSet&) { seen.push_back("refresh " + Label()); });
  {
    TRecordsTaker taker(&dataSet_);
    taker.AddLabel(label);
    dataSet_.Open();
    dataSet_.Refresh();
  }
  label_.setText("Inbox");
  dataSet_.Refresh();
  dataSet_.Close();
  dataSet_.Open();
  EXPECT_EQ(seen,
            (std::vector<std::string>{"open Inbox - (25 records)", "refresh Inbox - (25 records)",
                                      "refresh Inbox", "open Inbox"}));
  dataSet_.SetAfterOpen(nullptr);
  { TRecordsTaker taker(&dataSet_); }
  EXPECT_FALSE(dataSet_.AfterOpen());
  EXPECT_TRUE(dataSet_.AfterRefresh());
}

TEST_F(RecordCount, TakersFreedInTheOrderMadeAndWidgetsDestroyedFirstAreSafe) {
  int original = 0;
  dataSet_.SetAfterOpen([&](db::TMVADODataSet&) { ++original; });
  auto first = std::make_unique<TRecordsTaker>(&dataSet_);
  first->AddLabel(label);
  auto* gone = new QLabel("Gone");
  auto next = std::make_unique<TRecordsTaker>(&dataSet_);
  next->AddLabel(std::make_shared<qt::QtLabelText>(gone));
  delete gone;
  dataSet_.Open();
  EXPECT_EQ(Label(), "Inbox - (25 records)");
  EXPECT_EQ(next->ShowObjects()[0]->Control()->Text(), u"");
  first.reset();  // gives back the original handler
  next.reset();   // gives back the handler of the first taker, which is gone
  dataSet_.Close();
  dataSet_.Open();
  EXPECT_EQ(original, 2);
}

// The shared panel lives as long as the library, so its whole story is one test.
TEST_F(RecordCount, SharedPanelFirstSetWinsAndFeedsTheFactories) {
  auto& holder = TShowPanelHolder::GetInstance();
  ASSERT_EQ(holder.GetPanel(), nullptr);
  holder.Disable();  // nothing to hide yet
  auto early = TRecordsTakerFactory::CreateOfDefaultShowLabel(&dataSet_, label);
  ASSERT_EQ(early->ShowObjects().size(), 2u);
  EXPECT_EQ(early->ShowObjects()[1]->Control(), nullptr);
  early.reset();

  QMainWindow other;
  holder.SetPanel(nullptr);
  holder.SetPanel(panel);
  holder.SetPanel(qt::AddStatusPanel(*other.statusBar(), "n"));
  EXPECT_EQ(holder.GetPanel(), panel);
  holder.Disable();
  EXPECT_FALSE(panel->Visible());
  holder.Visible();
  EXPECT_TRUE(panel->Visible());

  auto withLabel = TRecordsTakerFactory::CreateOfDefaultShowLabel(&dataSet_, label);
  dataSet_.Open();
  EXPECT_EQ(Label(), "Inbox - (25 records)");
  EXPECT_EQ(panel->Text(), u"25 records");
  withLabel.reset();
  EXPECT_EQ(TRecordsTakerFactory::CreateOfDefaultShowPanel(&dataSet_)->ShowObjects()[0]->Control(),
            panel);
  auto form = TRecordsTakerFactory::CreateOfShowForm(&dataSet_,
                                                     std::make_shared<qt::QtWindowTitle>(&window_));
  dataSet_.Refresh();
  EXPECT_EQ(window_.windowTitle(), "Inbox - (25 records)");
  EXPECT_EQ(form->ShowObjects().size(), 1u);
}

}  // namespace
}  // namespace mv::test
