// The preset dialog and its add pop-up, shown modally and driven through their widgets: grey,
// undeletable presets, deleting the calling screen's own preset and the close query that
// follows, the first row deleted, adding (the pop-up's place, a count that is no number), the
// sizes at two screen resolutions, the captions in both languages, and the number-field filter.
// With MV_SCREENSHOT_DIR set, the dialogs shown in both languages are saved there as PNG files.
#include <gtest/gtest.h>

#include <QLineEdit>
#include <QScreen>
#include <QStyleOptionComboBox>
#include <QTest>
#include <cstdlib>

#include "common/dates/date_range_setter.h"
#include "common/forms/date_range_add_form.h"
#include "common/forms/date_range_form_link.h"
#include "common/forms/date_range_setter_form.h"
#include "common/settings/user_preference.h"
#include "common/text/lang_changer.h"
#include "tests/common/forms/date_range_forms_fixture.h"
#include "tests/platform/qt/qt_test_support.h"

namespace mv::test {
namespace {

using DialogTest = DateRangeFormsTest;

TFmDateRangeSetter& Dialog(QWidget& modal) {
  auto* dialog = qobject_cast<TFmDateRangeSetter*>(&modal);
  if (dialog == nullptr) throw std::runtime_error("the preset dialog is not the modal window");
  return *dialog;
}

// The darkest colour drawn in row `row` of the preset list, which is the colour of its text.
QColor TextColorOfRow(QListWidget& list, int row) {
  const QImage image = list.viewport()->grab().toImage();
  const QRect rect = list.visualItemRect(list.item(row)) & image.rect();
  QColor darkest = Qt::white;
  for (int y = rect.top(); y <= rect.bottom(); ++y) {
    for (int x = rect.left(); x <= rect.right(); ++x) {
      const QColor pixel = image.pixelColor(x, y);
      if (pixel.lightness() < darkest.lightness()) darkest = pixel;
    }
  }
  return darkest;
}

// Whether every text of `combo` shows whole in its edit field.
bool ItemsFit(QComboBox& combo) {
  QStyleOptionComboBox option;
  option.initFrom(&combo);
  option.editable = false;
  const int room =
      combo.style()
          ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &combo)
          .width();
  for (int i = 0; i < combo.count(); ++i) {
    const int needed = combo.fontMetrics().horizontalAdvance(combo.itemText(i));
    if (needed > room) {
      ADD_FAILURE() << combo.itemText(i).toStdString() << " needs " << needed << " of " << room;
      return false;
    }
  }
  return true;
}

void SaveScreenshot(QWidget& widget, const char* name) {
  if (const char* dir = std::getenv("MV_SCREENSHOT_DIR")) {
    EXPECT_TRUE(widget.grab().save(QString::fromUtf8(dir) + "/" + name));
  }
}

std::u16string LastMessage(const dialogs::RecordingDialogProvider& recorded) {
  return recorded.Requests().empty() ? u"" : recorded.Requests().back().text;
}

TEST_F(DialogTest, LockedPresetsAreGreyAndTheCallersOwnCanGoButThenClosingAsksForAPeriod) {
  ListScreen other("Other"), caller("Caller");
  other.Choose(1);   // Last 1 Week, shown by another open screen
  caller.Choose(3);  // Last 3 Months
  int told = 0;
  caller.link->OnChange = [&](TComboBox_DateRangeSetter_Link&) { ++told; };
  WhenModal([&](QWidget& modal) {
    TFmDateRangeSetter& dialog = Dialog(modal);
    QListWidget& list = *dialog.ListBox1;
    ASSERT_EQ(list.count(), 6);
    EXPECT_EQ(list.currentRow(), 3);
    EXPECT_TRUE(dialog.ButtonDelete->isEnabled());
    list.setCurrentRow(-1);   // rows drawn unselected
    for (int row : {0, 1}) {  // antialiased grey text: its darkest pixel is the grey, or nearly
      const QColor color = TextColorOfRow(list, row);
      EXPECT_TRUE(color.red() == color.green() && color.green() == color.blue()) << row;
      EXPECT_NEAR(color.red(), 128, 6) << row;
    }
    EXPECT_LT(TextColorOfRow(list, 2).lightness(), 40);
    for (int row : {0, 1}) {
      list.setCurrentRow(row);
      EXPECT_FALSE(dialog.ButtonDelete->isEnabled()) << row;
      dialog.ButtonDeleteClick();
    }
    EXPECT_EQ(list.count(), 6);
    list.setCurrentRow(3);
    dialog.ButtonDelete->click();
    EXPECT_EQ(list.count(), 5);
    EXPECT_EQ(list.currentRow(), 2);
    EXPECT_EQ(caller.link->Selection, nullptr);
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_TRUE(dialog.isVisible());
    ASSERT_EQ(dialogs_.Requests().size(), 1u);
    EXPECT_EQ(LastMessage(dialogs_), u"Please select a period");
    EXPECT_EQ(dialogs_.Requests().back().kind, dialogs::mtCustom);
    EXPECT_EQ(GetUserPreference("PeriodPreset"), "-1D#1W#1M#6M#1Y");  // stored all the same
    dialog.Button1->click();
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(dialogs_.Requests().size(), 2u);
    list.setCurrentRow(3);  // Last 6 Months
    dialog.Button4->click();
    EXPECT_FALSE(dialog.isVisible());
  });
  caller.button->click();
  EXPECT_EQ(caller.combo->currentText(), "Last 6 Months");
  EXPECT_EQ(told, 1);
  EXPECT_EQ(other.combo->currentText(), "Last 1 Week");
  EXPECT_EQ(TForm_DateRangeSetter_Link::GetInstance().CallerLink, nullptr);
}

TEST_F(DialogTest, EscClosesLikeCancelWithoutPassingAPreset) {
  ListScreen caller("Caller");
  caller.Choose(2);
  int told = 0;
  caller.link->OnChange = [&](TComboBox_DateRangeSetter_Link&) { ++told; };
  WhenModal([&](QWidget& modal) {
    Dialog(modal).ListBox1->setCurrentRow(5);
    QTest::keyClick(&modal, Qt::Key_Escape);
    EXPECT_FALSE(modal.isVisible());
  });
  caller.button->click();
  EXPECT_EQ(caller.combo->currentText(), "Last 1 Month");
  EXPECT_EQ(told, 0);
  EXPECT_TRUE(dialogs_.Requests().empty());
  EXPECT_EQ(GetUserPreference("PeriodPreset"), "-1D#1W#1M#3M#6M#1Y");
}

TEST_F(DialogTest, AScreenClosedWhileTheDialogIsOpenIsForgotten) {
  auto caller = std::make_unique<ListScreen>("Caller");
  caller->Choose(4);
  WhenModal([&](QWidget& modal) {
    caller.reset();
    Dialog(modal).ListBox1->setCurrentRow(4);
    Dialog(modal).ButtonDelete->click();  // its preset may go, and closing asks nothing
    QTest::keyClick(Dialog(modal).ListBox1, Qt::Key_Return);
    EXPECT_FALSE(modal.isVisible());
  });
  caller->button->click();
  EXPECT_TRUE(dialogs_.Requests().empty());
  EXPECT_EQ(GetUserPreference("PeriodCaller"), "6M");
  EXPECT_EQ(GetUserPreference("PeriodPreset"), "-1D#1W#1M#3M#1Y");
}

TEST_F(DialogTest, DeletingTheFirstRowLeavesNoRowHighlighted) {
  SaveUserPreference("PeriodPreset", "2D#1W");  // no all-dates preset: the first row may go
  TDateRangeSetter::Reload();
  WhenModal([&](QWidget& modal) {
    TFmDateRangeSetter& dialog = Dialog(modal);
    dialog.ListBox1->setCurrentRow(0);
    ASSERT_TRUE(dialog.ButtonDelete->isEnabled());
    dialog.ButtonDelete->click();
    EXPECT_EQ(dialog.ListBox1->count(), 1);
    EXPECT_EQ(dialog.ListBox1->currentRow(), -1);
    EXPECT_FALSE(dialog.ButtonDelete->isEnabled());
    dialog.ButtonDeleteClick();  // with no row nothing is deleted
    dialog.ListBox1DblClick();   // nor chosen; the dialog closes (no calling screen)
  });
  TForm_DateRangeSetter_Link::GetInstance().Execute(QPoint(), nullptr, nullptr);
  EXPECT_EQ(GetUserPreference("PeriodPreset"), "1W");
}

TEST_F(DialogTest, TheAddPopUpStaysOnTheScreenAndAddsOnlyWholeNumbers) {
  WhenModal([&](QWidget& modal) {
    TFmDateRangeSetter& dialog = Dialog(modal);
    const QRect screen = dialog.screen()->geometry();
    dialog.move(screen.right() - 120, screen.bottom() - 50);  // Add near the bottom-right corner
    WhenModal([&](QWidget& popup) {
      EXPECT_EQ(popup.size(), QSize(165, 75));
      EXPECT_EQ(popup.pos(), QPoint(screen.width() - 165, screen.height() - 75 - 34));
      auto* edit = popup.findChild<QLineEdit*>("Edit1");
      auto* units = popup.findChild<QComboBox*>("ComboBox1");
      EXPECT_EQ(edit->text(), "1");
      EXPECT_EQ(units->currentText(), " Day(s)");
      QTest::keyClick(edit, Qt::Key_Up);
      QTest::keyClick(units, Qt::Key_Down);
      EXPECT_EQ(edit->text(), "2");
      EXPECT_EQ(units->currentText(), " Week(s)");
      QTest::keyClick(&popup, Qt::Key_Escape);  // nothing is added
    });
    dialog.ButtonAdd->click();
    EXPECT_EQ(dialog.ListBox1->count(), 6);
    WhenModal([&](QWidget& popup) {
      popup.findChild<QLineEdit*>("Edit1")->setText(" 2 ");
      popup.findChild<QComboBox*>("ComboBox1")->setCurrentIndex(1);
      popup.findChild<QPushButton*>("ButtonAdd")->click();
    });
    dialog.ButtonAdd->click();
    EXPECT_EQ(dialog.ListBox1->count(), 7);
    EXPECT_EQ(dialog.ListBox1->currentItem()->text(), "Last 2 Weeks");
    EXPECT_TRUE(dialogs_.Requests().empty());
    WhenModal([&](QWidget& popup) {
      popup.findChild<QLineEdit*>("Edit1")->setText("2x");
      popup.findChild<QPushButton*>("ButtonAdd")->click();
    });
    dialog.ButtonAdd->click();
    EXPECT_EQ(dialog.ListBox1->count(), 7);
    ASSERT_EQ(dialogs_.Requests().size(), 1u);
    EXPECT_EQ(dialogs_.Requests()[0].kind, dialogs::mtError);
    EXPECT_EQ(dialogs_.Requests()[0].text, u"'2x' is not a valid integer value");
    dialog.Button1->click();
  });
  TForm_DateRangeSetter_Link::GetInstance().Execute(QPoint(), nullptr, nullptr);
  EXPECT_EQ(GetUserPreference("PeriodPreset"), "-1D#1W#2W#1M#3M#6M#1Y");
}

TEST(AddPopUpPlace, OverflowIsPulledBackWithItsOwnMargins) {
  const QRect screen(0, 0, 800, 600);
  const QSize size(165, 75);
  EXPECT_EQ(PlaceAddPopup({100, 100}, size, screen), QPoint(100, 100));
  EXPECT_EQ(PlaceAddPopup({635, 495}, size, screen), QPoint(635, 495));  // 495 + 75 + 30 = 600
  EXPECT_EQ(PlaceAddPopup({636, 496}, size, screen), QPoint(635, 491));  // 600 - 75 - 34
  EXPECT_EQ(PlaceAddPopup({-20, -5}, size, screen), QPoint(0, 0));
  EXPECT_EQ(PlaceAddPopup({50, 50}, size, QRect(0, 0, 100, 80)), QPoint(0, 0));
  EXPECT_EQ(PlaceAddPopup({2000, 10}, size, QRect(800, 0, 1024, 768)), QPoint(1659, 10));
}

TEST_F(DialogTest, FormsKeepTheirDesignAtAnyResolution) {
  for (const auto& [dpi, ratio] : {std::pair{96, 1.0}, {144, 1.5}}) {
    dialogs_.SetScreenDpi(dpi);
    const auto scaled = [ratio = ratio](const QRect& r) {
      return QRect(std::lround(r.x() * ratio), std::lround(r.y() * ratio),
                   std::lround(r.width() * ratio), std::lround(r.height() * ratio));
    };
    TFmDateRangeSetter dialog;
    TFmDateRangeAdd add;
    EXPECT_EQ(dialog.size(), scaled({0, 0, 194, 205}).size()) << dpi;
    EXPECT_EQ(add.size(), scaled({0, 0, 165, 75}).size()) << dpi;
    EXPECT_EQ(dialog.font().pixelSize(), std::lround(11 * ratio)) << dpi;
    for (const auto& [widget, design] :
         std::vector<std::pair<QWidget*, QRect>>{{dialog.ListBox1, {4, 8, 101, 193}},
                                                 {dialog.ButtonAdd, {112, 8, 73, 25}},
                                                 {dialog.ButtonDelete, {112, 104, 73, 25}},
                                                 {dialog.Button1, {112, 144, 73, 25}},
                                                 {dialog.Button4, {112, 172, 73, 25}},
                                                 {add.Edit1, {8, 8, 57, 21}},
                                                 {add.UpDown1, {65, 8, 15, 21}},
                                                 {add.ComboBox1, {84, 8, 73, 21}},
                                                 {add.ButtonAdd, {84, 40, 73, 25}},
                                                 {add.Button1, {4, 40, 73, 25}}}) {
      EXPECT_EQ(widget->geometry(), scaled(design)) << widget->objectName().toStdString() << dpi;
    }
  }
}

TEST_F(DialogTest, BothDialogsSpeakTheCurrentLanguage) {
  for (const bool english : {true, false}) {
    if (english) {
      LangChanger().EnglishTogether();
    } else {
      LangChanger().ChineseTogether();
    }
    ListScreen other("Other"), caller("Caller");
    other.Choose(1);  // grey in the dialog
    caller.Choose(3);
    WhenModal([&](QWidget& modal) {
      TFmDateRangeSetter& dialog = Dialog(modal);
      EXPECT_EQ(dialog.windowTitle(), english ? "Date Period Preset" : "日期時段預設");
      EXPECT_EQ(dialog.ButtonDelete->text(), english ? "&Delete" : "刪除(&D)");
      EXPECT_EQ(dialog.Button4->text(), english ? "&OK" : "確定(&O)");
      EXPECT_EQ(dialog.ListBox1->item(1)->text(), english ? "Last 1 Week" : "最近1星期");
      dialog.ListBox1->setCurrentRow(3);
      SaveScreenshot(dialog, english ? "period-dialog-en.png" : "period-dialog-zh.png");
      WhenModal([&](QWidget& popup) {
        auto& add = static_cast<TFmDateRangeAdd&>(popup);
        EXPECT_EQ(add.ButtonAdd->text(), english ? "&Add" : "新增(&A)");
        EXPECT_EQ(add.Button1->text(), english ? "&Cancel" : "取消(&C)");
        EXPECT_EQ(add.ComboBox1->itemText(3), english ? " Year(s)" : "年");
        EXPECT_TRUE(ItemsFit(*add.ComboBox1));
        add.ComboBox1->setCurrentIndex(2);
        SaveScreenshot(add, english ? "period-add-en.png" : "period-add-zh.png");
        add.Button1->click();
      });
      dialog.ButtonAdd->click();
      dialog.Button4->click();
    });
    caller.button->click();
  }
  LangChanger().EnglishTogether();
}

TEST_F(DialogTest, NumberFieldsTakeDigitsOnly) {
  for (const char* text : {"\b", "\x16", "\u0663", "\uff11", "1a"})  // Ctrl+V types U+0016
    EXPECT_FALSE(TNumberKeyFilter::Passes(QString::fromUtf8(text))) << text;
  TFmDateRangeSetter dialog;
  QLineEdit field;
  dialog.Edit1KeyPress(field);
  QTest::keyClicks(&field, "1a2-3");
  EXPECT_EQ(field.text(), "123");
  QTest::keyClick(&field, Qt::Key_Backspace);  // discarded as well
  EXPECT_EQ(field.text(), "123");
  QTest::keyClick(&field, Qt::Key_Home);
  QTest::keyClick(&field, Qt::Key_Delete);  // types no character: passes
  EXPECT_EQ(field.text(), "23");
}

}  // namespace
}  // namespace mv::test
