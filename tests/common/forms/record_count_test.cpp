// The record count of a list screen on real widgets over a copy of the demo database: the label,
// status panel and caption texts, client and server cursors, the dataset's own handlers, and the
// shared status panel.
#include <gtest/gtest.h>

#include <QLabel>
#include <QMainWindow>
#include <QStatusBar>
#include <memory>
#include <string>
#include <vector>

#include "common/forms/records_taker.h"
#include "common/forms/records_taker_factory.h"
#include "common/forms/show_panel_holder.h"
#include "common/text/lang_changer.h"
#include "platform/db/connections.h"
#include "platform/qt/qt_text_controls.h"
#include "tests/platform/db/db_fixture.h"
#include "tests/support/demo_database.h"

namespace mv::test {
namespace {

std::u16string U16(const QString& text) {
  return {reinterpret_cast<const char16_t*>(text.utf16()), static_cast<size_t>(text.size())};
}

class RecordCount : public testing::Test {
 protected:
  RecordCount() {
    db::OpenConnection("DBMAIN", CopyDemoDatabase(dir_));
    Exec("delete from Inbox");
    std::string rows;
    for (int i = 0; i < 25; ++i)
      rows += (i ? ",('R" : "('R") + std::to_string(i) + "',45000,'S','TDEC','DEMO')";
    Exec("insert into Inbox (RefNo, DateTime, Sender, MType, Recipient) values " + rows);
    LangChanger().SetLanguage(kLangEnglish);
    label_.setText("Inbox");
    dataSet_.SetCommandText("select RefNo from Inbox");
  }
  ~RecordCount() override {
    dataSet_.Close();
    db::CloseConnection("DBMAIN");
    LangChanger().SetLanguage(kLangChinese);
  }

  std::shared_ptr<controls::TTextControl> Label() {
    return std::make_shared<qt::QtLabelText>(&label_);
  }

  TempDir dir_;
  QLabel label_;
  db::TMVADODataSet dataSet_;
};

TEST_F(RecordCount, LabelPanelAndCaptionFollowOpenAndRefreshInTheCurrentLanguage) {
  QMainWindow window;
  window.setWindowTitle("Inbox");
  const auto panel = qt::AddStatusPanel(*window.statusBar(), "recordCount");
  TRecordsTaker taker(&dataSet_);
  taker.AddLabel(Label());
  taker.AddPanel(panel);
  taker.AddForm(std::make_shared<qt::QtWindowTitle>(&window));

  dataSet_.Open();
  EXPECT_EQ(U16(label_.text()), u"Inbox - (25 records)");
  EXPECT_EQ(panel->Text(), u"25 records");
  EXPECT_EQ(U16(window.windowTitle()), u"Inbox - (25 records)");

  Exec("delete from Inbox where RefNo <> 'R0'");
  LangChanger().SetLanguage(kLangChinese);
  dataSet_.Refresh();
  EXPECT_EQ(U16(label_.text()), u"Inbox - (1 記錄)");
  EXPECT_EQ(panel->Text(), u"1 記錄");

  dataSet_.Close();
  LangChanger().SetLanguage(kLangEnglish);
  dataSet_.SetCommandText("select RefNo from Inbox where 1 = 0");
  dataSet_.Open();
  EXPECT_EQ(U16(label_.text()), u"Inbox - (0 records)");
  EXPECT_EQ(U16(window.windowTitle()), u"Inbox - (0 records)");
}

TEST_F(RecordCount, ServerCursorAndClosedDatasetShowZeroAndExplicitCountsStandAsGiven) {
  TRecordsTaker taker(&dataSet_);
  taker.AddLabel(Label());
  dataSet_.SetCursorLocation(db::clUseServer);
  dataSet_.Open();
  EXPECT_EQ(U16(label_.text()), u"Inbox - (0 records)");
  // Switched to a client cursor after the open: the cursor still counts -1, still 0 is shown.
  dataSet_.SetCursorLocation(db::clUseClient);
  taker.Show(-1);
  EXPECT_EQ(U16(label_.text()), u"Inbox - (0 records)");
  taker.Show(-7);
  EXPECT_EQ(U16(label_.text()), u"Inbox - (-7 records)");
  dataSet_.Close();
  taker.Show(-1);
  EXPECT_EQ(U16(label_.text()), u"Inbox - (0 records)");

  TRecordsTaker none(nullptr);
  none.AddPanel(nullptr);
  none.AddLabel(Label());
  none.Show(-1);
  EXPECT_EQ(U16(label_.text()), u"Inbox - (0 records) - (0 records)");
}

TEST_F(RecordCount, UpdateMakesTheScreensNewTextTheBaseCaption) {
  TRecordsTaker taker(&dataSet_);
  taker.AddLabel(Label());
  dataSet_.Open();
  label_.setText("<b>Sent</b>\x02");
  taker.Update();
  EXPECT_EQ(U16(label_.text()), u"<b>Sent</b>\u0002 - (25 records)");
  EXPECT_EQ(label_.textFormat(), Qt::PlainText);
}

TEST_F(RecordCount, KeptHandlersRunAfterTheCountAndAreGivenBack) {
  std::vector<std::u16string> seen;
  dataSet_.SetAfterOpen([&](db::TMVADODataSet&) { seen.push_back(u"open " + U16(label_.text())); });
  dataSet_.SetAfterRefresh(
      [&](db::TMVADODataSet&) { seen.push_back(u"refresh " + U16(label_.text())); });
  {
    TRecordsTaker taker(&dataSet_);
    taker.AddLabel(Label());
    dataSet_.Open();
    dataSet_.Refresh();
  }
  EXPECT_EQ(seen, (std::vector<std::u16string>{u"open Inbox - (25 records)",
                                               u"refresh Inbox - (25 records)"}));
  label_.setText("Inbox");
  dataSet_.Refresh();
  EXPECT_EQ(seen.back(), u"refresh Inbox");
  dataSet_.Close();
  dataSet_.Open();
  EXPECT_EQ(seen.back(), u"open Inbox");
  EXPECT_EQ(seen.size(), 4u);

  dataSet_.SetAfterOpen(nullptr);
  { TRecordsTaker taker(&dataSet_); }
  EXPECT_FALSE(dataSet_.AfterOpen());
  EXPECT_TRUE(dataSet_.AfterRefresh());
}

TEST_F(RecordCount, TakersFreedInTheOrderTheyWereMadeLeaveOnlySafeHandlers) {
  int original = 0;
  dataSet_.SetAfterOpen([&](db::TMVADODataSet&) { ++original; });
  QLabel second;
  second.setText("Second");
  auto first = std::make_unique<TRecordsTaker>(&dataSet_);
  first->AddLabel(Label());
  auto next = std::make_unique<TRecordsTaker>(&dataSet_);
  next->AddLabel(std::make_shared<qt::QtLabelText>(&second));
  dataSet_.Open();
  EXPECT_EQ(U16(second.text()), u"Second - (25 records)");
  EXPECT_EQ(U16(label_.text()), u"Inbox - (25 records)");
  EXPECT_EQ(original, 1);

  first.reset();  // gives back the original handler
  next.reset();   // gives back the first taker's handler, whose taker is gone
  dataSet_.Close();
  dataSet_.Open();
  EXPECT_EQ(original, 2);
}

TEST_F(RecordCount, ControlsOfDestroyedWidgetsShowNothing) {
  auto* gone = new QLabel("Gone");
  const auto control = std::make_shared<qt::QtLabelText>(gone);
  TRecordsTaker taker(&dataSet_);
  taker.AddLabel(control);
  delete gone;
  dataSet_.Open();
  EXPECT_EQ(control->Text(), u"");
  EXPECT_FALSE(control->Visible());
  EXPECT_EQ(taker.ShowObjects()[0]->BaseCaption(), u"Gone");
}

// The shared panel lives as long as the library, so its whole story is one test: before a panel
// is set, the first SetPanel, a second one, hiding and showing, and the factories.
TEST_F(RecordCount, SharedPanelFirstSetWinsAndFeedsTheFactories) {
  auto& holder = TShowPanelHolder::GetInstance();
  ASSERT_EQ(holder.GetPanel(), nullptr);
  holder.Visible();
  holder.Disable();
  {
    auto taker = TRecordsTakerFactory::CreateOfDefaultShowLabel(&dataSet_, Label());
    ASSERT_EQ(taker->ShowObjects().size(), 2u);
    EXPECT_EQ(taker->ShowObjects()[1]->Control(), nullptr);
    dataSet_.Open();
    EXPECT_EQ(U16(label_.text()), u"Inbox - (25 records)");
  }

  QMainWindow main;
  const auto panel = qt::AddStatusPanel(*main.statusBar(), "recordCount");
  QMainWindow other;
  const auto otherPanel = qt::AddStatusPanel(*other.statusBar(), "recordCount");
  holder.SetPanel(nullptr);
  EXPECT_EQ(holder.GetPanel(), nullptr);
  holder.SetPanel(panel);
  holder.SetPanel(otherPanel);
  EXPECT_EQ(holder.GetPanel(), panel);
  holder.Disable();
  EXPECT_FALSE(panel->Visible());
  holder.Visible();
  EXPECT_TRUE(panel->Visible());

  label_.setText("Inbox");
  auto withLabel = TRecordsTakerFactory::CreateOfDefaultShowLabel(&dataSet_, Label());
  dataSet_.Refresh();
  EXPECT_EQ(U16(label_.text()), u"Inbox - (25 records)");
  EXPECT_EQ(panel->Text(), u"25 records");
  EXPECT_EQ(otherPanel->Text(), u"");
  withLabel.reset();

  QLabel panelOnly;
  auto onlyPanel = TRecordsTakerFactory::CreateOfDefaultShowPanel(&dataSet_);
  ASSERT_EQ(onlyPanel->ShowObjects().size(), 1u);
  EXPECT_EQ(onlyPanel->ShowObjects()[0]->Control(), panel);
  onlyPanel.reset();

  main.setWindowTitle("Main");
  auto form =
      TRecordsTakerFactory::CreateOfShowForm(&dataSet_, std::make_shared<qt::QtWindowTitle>(&main));
  ASSERT_EQ(form->ShowObjects().size(), 1u);
  dataSet_.Refresh();
  EXPECT_EQ(U16(main.windowTitle()), u"Main - (25 records)");
}

}  // namespace
}  // namespace mv::test
