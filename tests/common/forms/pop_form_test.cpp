// The drop-down pick form with real widgets: where it stands against the main window, the
// starting value and the value written back (the "|" rule, the 326-character cut, Unicode edits
// and Big5 code-page fields), and the button and keys of an open form.
#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>

#include "common/forms/pop_list_form.h"
#include "platform/codepage/codepage.h"
#include "platform/qt/code_page_field.h"
#include "tests/support/temp_dir.h"

namespace mv::test {
namespace {

QString Q(std::u16string_view text) {
  return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
}

std::string Big5(std::u16string_view text) {
  return codepage::FromWide(text, 950);
}

// A 600 x 400 main window (the screen is larger) with an edit, its drop-down button and another
// edit, and a 200 x 150 list form owned by the edit. Big5 is the user's code page.
class PopForm : public testing::Test {
 protected:
  PopForm() {
    main_.setGeometry(0, 0, 600, 400);
    Place(QPoint(20, 20));
    other_->setGeometry(20, 300, 100, 24);
    main_.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&main_));
    form_->resize(200, 150);
    form_->SetItems({u"A01|Apples", u"B02|Bananas", u"C03|Cherries"});
    form_->SetSourceControl(edit_);
  }
  ~PopForm() override { delete form_; }

  // The edit at `at`, 120 wide, its button right beside it.
  void Place(QPoint at) {
    edit_->setGeometry(at.x(), at.y(), 120, 24);
    button_->setGeometry(at.x() + 120, at.y(), 24, 24);
  }
  // A click at `at` of the main window as the window system delivers it: an open popup sees it.
  void ClickInMain(QPoint at) { QTest::mouseClick(main_.windowHandle(), Qt::LeftButton, {}, at); }
  // Opens the form, closes it with OK and `value`; returns the edit's text.
  QString Accept(std::u16string_view value) {
    form_->Show();
    form_->SetFormData(std::u16string(value));
    form_->SetModalResult(mrOk);
    form_->Close();
    return edit_->text();
  }

  ScopedEnv codePage_{"MV_CODEPAGE", "950"};
  QWidget main_;
  QLineEdit* edit_ = new QLineEdit(&main_);
  QToolButton* button_ = new QToolButton(&main_);
  QLineEdit* other_ = new QLineEdit(&main_);
  TPopListForm* form_ = new TPopListForm(edit_);
};

TEST_F(PopForm, StandsBelowItsEditOrButtonInsideTheMainWindowsSize) {
  const QPoint origin = main_.mapToGlobal(QPoint(0, 0));
  const QSize bound = main_.frameGeometry().size();
  EXPECT_EQ(form_->pos(), origin + QPoint(24, 45));
  form_->SetSpeedButton(button_);
  EXPECT_EQ(form_->pos(), QPoint(0, origin.y() + 45));  // 144 - 200 < 0

  Place(QPoint(450, 40));  // the edit reaches the main window's right edge
  form_->SetSourceControl(edit_);
  EXPECT_EQ(form_->pos(), QPoint(bound.width() - 200 - 4, origin.y() + 65));
  form_->SetSpeedButton(button_);
  EXPECT_EQ(form_->pos(), origin + QPoint(594 - 200, 65));
  Place(QPoint(450, 360));  // and the bottom edge
  form_->SetSourceControl(edit_);
  EXPECT_EQ(form_->pos(), QPoint(bound.width() - 204, bound.height() - 150 - 4));

  form_->SetFormPosition(QPoint(-30, -1));
  EXPECT_EQ(form_->pos(), QPoint(0, 0));
  EXPECT_EQ(BoundFormPosition({700, 500}, {200, 150}, std::nullopt), QPoint(700, 500));
  EXPECT_EQ(BoundFormPosition({396, 246}, {200, 150}, QSize(600, 400)), QPoint(396, 246));
}

TEST_F(PopForm, TheBarRuleKeepsTheHalfTheDataStyleNames) {
  for (const auto& [style, value, expected] : {std::tuple{shGetLong, u"A01|Apples", u"A01"},
                                               {shGetShort, u"A01|Apples", u"Apples"},
                                               {shNone, u"A01|Apples", u"A01|Apples"},
                                               {shGetLong, u"x|y|z", u"x|y"},
                                               {shGetShort, u"x|y|z", u"z"},
                                               {shGetShort, u"plain", u"plain"},
                                               {shGetLong, u"|", u""}}) {
    form_->SetDataStyle(style);
    EXPECT_EQ(Accept(value), Q(expected)) << Q(value).toStdString();
    EXPECT_EQ(edit_->selectedText(), edit_->text());
  }
  EXPECT_EQ(PickFormData(u"a|b", static_cast<TDataStyle>(7)), u"a|b");
}

TEST_F(PopForm, StartsFromAtMost326CharactersOfTheEditAndCodePageFieldsGoThroughBig5) {
  std::string set, got;
  form_->SetOnSetFormData([&](TPopForm&, std::string& buf) { set = buf; });
  form_->SetOnGetFormData([&](TPopForm&, std::string& buf) {
    got = buf;
    buf += Big5(u"！");
  });
  edit_->setMaxLength(1000);
  edit_->setText(QString(325, 'a') + Q(u"報報"));
  form_->Show();
  EXPECT_EQ(set, std::string(325, 'a') + Big5(u"報"));
  EXPECT_EQ(form_->FormData().size(), 327u);  // a Unicode edit gives its whole text
  form_->SetDataStyle(shGetShort);
  EXPECT_EQ(Accept(u"A01|蘋果😀"), Q(u"蘋果😀"));
  EXPECT_EQ(got, Big5(u"蘋果") + "?");

  qt::SetCodePageField(*edit_, true);
  EXPECT_TRUE(qt::IsCodePageField(edit_));
  EXPECT_FALSE(qt::IsCodePageField(button_));
  edit_->setText(QString(325, 'a') + Q(u"報報"));
  form_->Show();
  EXPECT_EQ(form_->FormData(), std::u16string(325, u'a') + u"報");
  edit_->setText(Q(u"報關😀"));
  form_->Show();
  EXPECT_EQ(form_->FormData(), u"報關?");  // read back from the narrow buffer
  EXPECT_EQ(Accept(u"A01|蘋果😀"), Q(u"蘋果?！"));

  const std::u16string pair = std::u16string(325, u'a') + u"\U00020000";
  EXPECT_EQ(PopFormTextHead(pair), std::u16string(325, u'a'));
  EXPECT_EQ(PopFormTextHead(pair.substr(0, 326)), pair.substr(0, 326));
}

TEST_F(PopForm, ButtonStaysDownWhileOpenAndIsReleasedByEveryClose) {
  form_->SetSpeedButton(button_);
  EXPECT_FALSE(button_->accessibleName().isEmpty());
  edit_->setText("B02");
  QTest::mouseClick(button_, Qt::LeftButton);
  ASSERT_TRUE(form_->isVisible());
  EXPECT_TRUE(button_->isChecked());
  EXPECT_EQ(form_->List().currentRow(), 1);
  ClickInMain(other_->geometry().center());  // elsewhere: closed without a result
  EXPECT_TRUE(QTest::qWaitFor([&] { return !form_->isVisible(); }));
  EXPECT_FALSE(button_->isChecked());
  EXPECT_EQ(edit_->text(), "B02");

  QTest::mouseClick(button_, Qt::LeftButton);
  ASSERT_TRUE(form_->isVisible());
  ClickInMain(button_->geometry().center());  // the pressed button: closed, not opened again
  QCoreApplication::processEvents();
  EXPECT_FALSE(form_->isVisible());
  EXPECT_FALSE(button_->isChecked());
  form_->SetModalResult(mrOk);
  form_->Close();  // closing a closed form writes nothing
  EXPECT_EQ(edit_->text(), "B02");
  QTest::mouseClick(button_, Qt::LeftButton);
  delete form_;  // destroyed while open
  form_ = nullptr;
  EXPECT_FALSE(button_->isChecked());
}

TEST_F(PopForm, ArrowsEnterAndEscapeDriveTheList) {
  form_->SetSpeedButton(button_);
  edit_->setText("A01");
  QTest::mouseClick(button_, Qt::LeftButton);
  EXPECT_FALSE(form_->List().accessibleName().isEmpty());
  ASSERT_EQ(QApplication::focusWidget(), &form_->List());
  for (Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Return}) {
    QTest::keyClick(QApplication::focusWidget(), key);
  }
  EXPECT_FALSE(form_->isVisible());
  EXPECT_EQ(edit_->text(), "C03");
  EXPECT_FALSE(button_->isChecked());

  QTest::mouseClick(button_, Qt::LeftButton);
  EXPECT_EQ(form_->List().currentRow(), 2);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
  EXPECT_FALSE(form_->isVisible());
  EXPECT_EQ(edit_->text(), "C03");
  EXPECT_FALSE(button_->isChecked());
}

}  // namespace
}  // namespace mv::test
