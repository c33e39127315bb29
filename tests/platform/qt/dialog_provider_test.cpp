#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "platform/qt/qt_dialog_provider.h"
#include "platform/qt/qt_msg_dialog.h"
#include "tests/platform/qt/qt_test_support.h"

namespace mv::qt {
namespace {

using namespace mv::dialogs;

QPushButton* Button(QWidget& dialog, const char* name) {
  return dialog.findChild<QPushButton*>(QString::fromLatin1(name));
}

void KeyWhenShown(Qt::Key key) {
  test::WhenModal([key](QWidget& modal) { QTest::keyClick(&modal, key); });
}

class QtDialogProviderTest : public ::testing::Test {
 protected:
  QMessageBox& BoxOf(TMsgDialog& dialog) { return dynamic_cast<QtMsgDialog&>(dialog).Box(); }

  bool english_ = true;
  QtDialogProvider provider_{[this] { return english_; }};
};

TEST_F(QtDialogProviderTest, CreateBuildsTheBoxInTheHostLanguageOfThatMoment) {
  const TMsgDlgButtons buttons{mbOK, mbNoToAll, mbHelp};
  auto english = provider_.Create({mtWarning, u"", u"text", buttons, mbOK});
  english_ = false;
  auto chinese = provider_.Create({mtCustom, u"匯入", u"text", buttons, mbOK});
  EXPECT_EQ(BoxOf(*english).icon(), QMessageBox::Warning);
  EXPECT_EQ(BoxOf(*chinese).icon(), QMessageBox::NoIcon);
  EXPECT_EQ(BoxOf(*english).windowTitle(), QStringLiteral("Warning"));
  EXPECT_EQ(BoxOf(*chinese).windowTitle(), QStringLiteral("匯入"));
  EXPECT_EQ(Button(BoxOf(*english), "mbNoToAll")->text(), QStringLiteral("No to All"));
  EXPECT_EQ(Button(BoxOf(*chinese), "mbNoToAll")->text(), QStringLiteral("全部否"));
  EXPECT_EQ(BoxOf(*chinese).buttons().size(), 3);
}

TEST_F(QtDialogProviderTest, ShowAnswersThePressedButtonTheFocusedDefaultOrTheCancellingOne) {
  // A help button closes the box and answers like any other.
  test::WhenModal(
      [](QWidget& modal) { QTest::mouseClick(Button(modal, "mbHelp"), Qt::LeftButton); });
  EXPECT_EQ(provider_.Show({mtWarning, u"c", u"t", {mbOK, mbHelp}, mbOK}), mbHelp);
  test::WhenModal([](QWidget& modal) {
    EXPECT_TRUE(QTest::qWaitForWindowActive(&modal));
    EXPECT_EQ(QApplication::focusWidget(), Button(modal, "mbNo"));
    EXPECT_TRUE(Button(modal, "mbNo")->isDefault());
    QTest::keyClick(&modal, Qt::Key_Return);
  });
  EXPECT_EQ(provider_.Show({mtConfirmation, u"c", u"t", {mbYes, mbNo, mbCancel}, mbNo}), mbNo);
  // A default that is not among the buttons falls to the first one in the usual order.
  KeyWhenShown(Qt::Key_Return);
  EXPECT_EQ(provider_.Show({mtError, u"c", u"t", {mbIgnore, mbRetry}, mbYes}), mbRetry);
  KeyWhenShown(Qt::Key_Return);
  EXPECT_EQ(provider_.Show({mtInformation, u"c", u"t", {}, mbYes}), mbOK);
  KeyWhenShown(Qt::Key_Escape);  // Cancel before No
  EXPECT_EQ(provider_.Show({mtConfirmation, u"c", u"t", {mbYes, mbNo, mbCancel}, mbYes}), mbCancel);
  KeyWhenShown(Qt::Key_Escape);
  EXPECT_EQ(provider_.Show({mtError, u"c", u"t", {mbAbort, mbRetry, mbIgnore}, mbRetry}), mbAbort);
}

TEST_F(QtDialogProviderTest, ScaleByEnlargesFontAndSizeAndShowModalRunsAgain) {
  const DialogRequest request{mtWarning, u"c", u"A line of text", {mbOK, mbCancel}, mbOK};
  auto plain = provider_.Create(request);
  auto scaled = provider_.Create(request);
  scaled->ScaleBy(120, 96);
  scaled->ScaleBy(0, 96);  // ignored
  const double points = BoxOf(*scaled).font().pointSizeF();
  EXPECT_DOUBLE_EQ(points, BoxOf(*plain).font().pointSizeF() * 1.25);
  EXPECT_EQ(Button(BoxOf(*scaled), "mbOK")->font().pointSizeF(), points);
  QSize sizes[2];
  for (int i = 0; i < 2; ++i) {
    test::WhenModal([&size = sizes[i]](QWidget& modal) {
      size = modal.size();
      QTest::mouseClick(Button(modal, "mbOK"), Qt::LeftButton);
    });
    EXPECT_EQ((i == 0 ? plain : scaled)->ShowModal(), mbOK);
  }
  EXPECT_NEAR(sizes[1].width(), sizes[0].width() * 1.25, sizes[0].width() * 0.05);
  EXPECT_GT(sizes[1].height(), sizes[0].height());  // the icon keeps its size
  // Closed without a press: the escape button, not the press of the run before.
  test::WhenModal([](QWidget& modal) { qobject_cast<QDialog*>(&modal)->done(0); });
  EXPECT_EQ(scaled->ShowModal(), mbCancel);
}

TEST_F(QtDialogProviderTest, InputQueryLimitsTypedTextAndCancelLeavesTheValue) {
  InputQueryRequest request{u"Log in", u"User name:", u"old", 5};
  test::WhenModal([](QWidget& modal) {
    auto* edit = modal.findChild<QLineEdit*>(QStringLiteral("InputQueryEdit"));
    EXPECT_TRUE(QTest::qWaitForWindowActive(&modal));
    EXPECT_EQ(QApplication::focusWidget(), edit);
    QInputMethodEvent chinese;  // as an input method enters it, replacing the selected value
    chinese.setCommitString(QStringLiteral("陳"));
    QApplication::sendEvent(edit, &chinese);
    QTest::keyClicks(edit, QStringLiteral("abcdefg"));
    QTest::mouseClick(Button(modal, "mbOK"), Qt::LeftButton);
  });
  EXPECT_TRUE(provider_.InputQuery(request));
  EXPECT_EQ(request.value, u"陳abcd");
  // Cancelled, in Chinese: the value stays, even one longer than the limit.
  english_ = false;
  request = {u"c", u"p", u"a value longer than the limit", 3};
  test::WhenModal([](QWidget& modal) {
    EXPECT_EQ(Button(modal, "mbOK")->text(), QStringLiteral("確定"));
    QTest::keyClicks(modal.findChild<QLineEdit*>(QStringLiteral("InputQueryEdit")), "xyz");
    QTest::mouseClick(Button(modal, "mbCancel"), Qt::LeftButton);
  });
  EXPECT_FALSE(provider_.InputQuery(request));
  EXPECT_EQ(request.value, u"a value longer than the limit");
  request.maxLength = 0;  // no limit: kept whole, accepted with Return
  KeyWhenShown(Qt::Key_Return);
  EXPECT_TRUE(provider_.InputQuery(request));
  EXPECT_EQ(request.value, u"a value longer than the limit");
}

TEST_F(QtDialogProviderTest, ScreenCursorIsTheApplicationsOverrideCursor) {
  ASSERT_EQ(QGuiApplication::overrideCursor(), nullptr);
  provider_.SetScreenCursor(crHourGlass);
  ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
  EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
  provider_.SetScreenCursor(crArrow);
  EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::ArrowCursor);
  // Back to the default leaves no override behind, however many changes came before.
  provider_.SetScreenCursor(crDefault);
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

}  // namespace
}  // namespace mv::qt
