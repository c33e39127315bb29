// Grid layouts, sort orders and list colours in a real user table (the demo installation's
// sysuser schema), through SQLite and unixODBC alike, over a real dataset: the texts written, what
// leaves a layout as it was, the error boxes and the colours. The grid and the menu are small
// fakes of their control interfaces here; tests/platform/qt restores layouts onto the real grid.
#include <gtest/gtest.h>
#include <strings.h>

#include <algorithm>
#include <fstream>
#include <sstream>

#include "common/frame/shared_state.h"
#include "common/settings/grid_layout.h"
#include "common/settings/user_grid_color.h"
#include "common/text/lang_changer.h"
#include "platform/db/dataset.h"
#include "tests/common/text/text_fixture.h"
#include "tests/platform/db/db_fixture.h"

namespace mv::test {
namespace {

// Columns bound by name, in the order given, each 64 pixels wide to begin with; a negative
// width is refused with an exception.
class FakeGrid : public controls::TGridColumns {
 public:
  int FindColumn(std::string_view name) const override {
    for (size_t i = 0; i < names_.size(); ++i) {
      if (!strcasecmp(names_[i].c_str(), std::string(name).c_str())) return static_cast<int>(i);
    }
    return -1;
  }
  int ColumnWidth(int column) const override { return widths_.at(column); }
  void SetColumnWidth(int column, int width) override {
    if (width < 0) throw std::runtime_error("no negative widths");
    widths_.at(column) = width;
  }
  void SetColors(controls::TColor, controls::TColor, controls::TColor) override {}

  std::vector<std::string> names_{"refno", "Sender", "SENDER", "Size"};  // none for Subject
  std::vector<int> widths_ = std::vector<int>(4, 64);
};

class FakeMenu : public controls::TMenuItems {
 public:
  int Count() const override { return static_cast<int>(checked_.size()); }
  std::string Name(int item) const override { return "mi" + std::to_string(item); }
  bool Checked(int item) const override { return checked_.at(item); }
  void SetChecked(int item, bool checked) override { checked_.at(item) = checked; }
  std::vector<bool> checked_ = std::vector<bool>(2, true);
};

template <class Backend>
class GridLayoutTest : public TextFixture {
 protected:
  GridLayoutTest() {
    std::stringstream schema;
    schema << std::ifstream(MV_SYSUSER_SQL).rdbuf();
    Exec(schema.str());
    Exec("insert into sysuser (userid, Preference) values ('DEMO', 'Other=1'), ('OTHER', '')");
    Exec("create table inbox (RefNo text, Sender text, Subject text, Size int)");
    Exec("insert into inbox values ('R1', 'ACME', 'Hello', 10)");
    UserRecord.UserID = "DEMO";
    LangChanger().SetLanguage(kLangEnglish);
    inbox_.SetCommandText("select RefNo, Sender, Subject, Size from inbox");
    inbox_.Open();
  }
  ~GridLayoutTest() override {
    EXPECT_TRUE(dialogs_.Requests().empty());  // every box shown was expected
    LangChanger().SetLanguage(kLangChinese);
  }
  static std::u16string Stored() {
    db::TMVADODataSet ds;
    ds.SetCommandText("select Preference from sysuser where userid = 'DEMO'");
    ds.Open();
    return ds.Fields(0).AsWideString();
  }
  static void Store(const std::string& text) {
    Exec("update sysuser set Preference = '" + text + "' where userid = 'DEMO'");
  }
  std::u16string LastBox() {
    if (dialogs_.Requests().empty()) return u"(no box)";
    EXPECT_EQ(dialogs_.Requests().back().kind, dialogs::mtError);
    const std::u16string text = dialogs_.Requests().back().text;
    dialogs_.Clear();
    return text;
  }

  Backend db_{installation_.Dir()};
  db::TMVADODataSet inbox_;
  FakeGrid grid_;
  FakeMenu menu_;
};

using Backends = ::testing::Types<SqliteBackend, OdbcBackend>;
TYPED_TEST_SUITE(GridLayoutTest, Backends);

TYPED_TEST(GridLayoutTest, ColumnSettingListsEveryFieldWithTheFirstMatchingColumnsWidth) {
  this->grid_.widths_ = {80, 120, 999, 40};
  this->inbox_.FieldByName("Sender").SetVisible(false);
  this->inbox_.FieldByName("Size").SetIndex(0);
  std::string setting = "old";
  GetColumnSetting(this->inbox_, setting, this->grid_);
  EXPECT_EQ(setting, "Size,1,40,RefNo,1,80,Sender,0,120,Subject,1,0,");
  this->inbox_.Close();
  GetColumnSetting(this->inbox_, setting, this->grid_);
  EXPECT_EQ(setting, "");
}

TYPED_TEST(GridLayoutTest, SavingWritesTheLayoutAndSortItemAndReplacesTheEntryInPlace) {
  this->grid_.widths_ = {80, 120, 0, 40};
  this->inbox_.FieldByName("Sender").SetVisible(false);
  SaveDlgSetting("InboxGrid", this->inbox_, this->grid_, 2);
  EXPECT_EQ(this->Stored(),
            u"Other=1\r\nInboxGrid=RefNo,1,80,Sender,0,120,Subject,1,0,Size,1,40,QOrder,,2,\r\n");
  this->Store("inboxgrid=x\r\nOther=1");
  SaveDlgSetting(u"InboxGrid", this->inbox_, this->grid_, -7);
  EXPECT_EQ(this->Stored(),
            u"InboxGrid=RefNo,1,80,Sender,0,120,Subject,1,0,Size,1,40,QOrder,,-7,\r\nOther=1\r\n");
  EXPECT_EQ(GetQuickSortOrder("INBOXGRID"), -7);
}

TYPED_TEST(GridLayoutTest, DisabledControlsFollowWhileTheColumnsAreSetAndAreDisabledAgain) {
  std::vector<db::TDataSetEvent> events;
  db::TDataSetLink link(this->inbox_, [&events](db::TMVADODataSet&, const db::TDataSetChange& c) {
    events.push_back(c.Event);
  });
  this->inbox_.DisableControls();
  SetColumnSetting(this->inbox_, "Size,1,44,", this->menu_, this->grid_);
  EXPECT_TRUE(this->inbox_.ControlsDisabled());
  EXPECT_NE(std::find(events.begin(), events.end(), db::deLayoutChanged), events.end());
  EXPECT_THROW(SetColumnSetting(this->inbox_, "RefNo,1,-1,", this->menu_, this->grid_),
               std::runtime_error);
  EXPECT_TRUE(this->inbox_.ControlsDisabled());
  this->inbox_.EnableControls();
  SetColumnSetting(this->inbox_, "Sender,1,4,", this->menu_, this->grid_);
  EXPECT_FALSE(this->inbox_.ControlsDisabled());
}

TYPED_TEST(GridLayoutTest, ASortItemThatIsNoNumberOrMissingGivesOneSilently) {
  this->Store("A=RefNo,1,4,QOrder,,x,\r\nB=RefNo,1,4,\r\nC=QOrder,,7\r\nD=qorder,,7,");
  EXPECT_EQ(GetQuickSortOrder("A"), 1);
  EXPECT_EQ(GetQuickSortOrder("B"), 1);
  EXPECT_EQ(GetQuickSortOrder("C"), 7);
  EXPECT_EQ(GetQuickSortOrder("D"), 1);  // the sort item's name is matched exactly
}

TYPED_TEST(GridLayoutTest, NothingStoredChangesNothing) {
  this->Store("Empty=");
  GetDlgSetting("Missing", this->inbox_, this->menu_, this->grid_);
  GetDlgSetting("Empty", this->inbox_, this->menu_, this->grid_);
  UserRecord.UserID = "NOBODY";
  SaveDlgSetting("InboxGrid", this->inbox_, this->grid_, 2);
  this->inbox_.Close();  // not even a closed dataset is an error without a row
  SaveDlgSetting("InboxGrid", this->inbox_, this->grid_, 2);
  GetDlgSetting("InboxGrid", this->inbox_, this->menu_, this->grid_);
  EXPECT_EQ(GetQuickSortOrder("InboxGrid"), 1);
  EXPECT_EQ(this->Stored(), u"Empty=");
  EXPECT_EQ(this->menu_.checked_, std::vector<bool>(2, true));
  EXPECT_EQ(this->grid_.widths_, std::vector<int>(4, 64));
}

TYPED_TEST(GridLayoutTest, AClosedDatasetIsAnInternalErrorAndNothingIsWritten) {
  this->Store("InboxGrid=Size,0,1,");
  this->inbox_.Close();
  SaveDlgSetting("InboxGrid", this->inbox_, this->grid_, 2);
  EXPECT_EQ(this->LastBox(),
            u"Error in updating column display setting.\r\nReason : Internal Error");
  GetDlgSetting("InboxGrid", this->inbox_, this->menu_, this->grid_);
  EXPECT_EQ(this->LastBox(),
            u"Error in updating column display setting.\r\nReason : Internal Error");
  LangChanger().SetLanguage(kLangChinese);
  SaveDlgSetting("InboxGrid", this->inbox_, this->grid_, 2);
  EXPECT_EQ(this->LastBox(), u"記錄欄格設定發生錯誤\r\n原因 : 系統內在錯誤");
  GetDlgSetting("InboxGrid", this->inbox_, this->menu_, this->grid_);
  EXPECT_EQ(this->LastBox(), u"讀取欄格設定發生錯誤\r\n原因 : 系統內在錯誤");
  EXPECT_EQ(this->Stored(), u"InboxGrid=Size,0,1,");
  EXPECT_EQ(this->menu_.checked_, std::vector<bool>(2, true));
}

TYPED_TEST(GridLayoutTest, DatabaseErrorsAreShownUnderTheirHeadings) {
  Exec("drop table sysuser");
  EXPECT_EQ(GetQuickSortOrder("InboxGrid"), 1);
  std::u16string box = this->LastBox();
  EXPECT_TRUE(box.starts_with(u"Error in updating column display sort order.\r\nReason : "));
  EXPECT_NE(box.find(u"sysuser"), std::u16string::npos);
  LangChanger().SetLanguage(kLangChinese);
  EXPECT_EQ(GetQuickSortOrder("InboxGrid"), 1);
  EXPECT_TRUE(this->LastBox().starts_with(u"讀取欄格排序設定發生錯誤\r\n原因 : "));
  TUserGridColor inbox{}, outbox{}, sentbox{}, search{};
  GetUserColor(inbox, outbox, sentbox, search);  // no box, the defaults
  EXPECT_EQ(search, kDefaultUserGridColor);
}

TYPED_TEST(GridLayoutTest, ColoursFallBackToTheDefaultsOneRecordAtATime) {
  TUserGridColor inbox{}, outbox{}, sentbox{}, search{};
  GetUserColor(inbox, outbox, sentbox, search);
  EXPECT_EQ(inbox, (TUserGridColor{15323849, 0xFF000005, 16315629}));
  EXPECT_EQ(search, kDefaultUserGridColor);
  this->Store(
      "InboxColor=255,-16777211,4278190093,\r\nOutboxColor=1,2,\r\nsentboxcolor=1,x,3,\r\n"
      "SearchformsColor=7,8,9");
  GetUserColor(inbox, outbox, sentbox, search);
  EXPECT_EQ(inbox, (TUserGridColor{255, 0xFF000005, 0xFF00000D}));
  EXPECT_EQ(outbox, kDefaultUserGridColor);  // the empty third item is no number
  EXPECT_EQ(sentbox, kDefaultUserGridColor);
  EXPECT_EQ(search, (TUserGridColor{7, 8, 9}));
  this->Store("InboxColor=1,2,4294967296,\r\nOutboxColor=,2,3,");
  GetUserColor(inbox, outbox, sentbox, search);
  EXPECT_EQ(inbox, kDefaultUserGridColor);  // beyond 32 bits
  EXPECT_EQ(outbox, kDefaultUserGridColor);
  UserRecord.UserID = "OTHER";
  GetUserColor(inbox, outbox, sentbox, search);
  EXPECT_EQ(search, kDefaultUserGridColor);
}

}  // namespace
}  // namespace mv::test
