#include <gtest/gtest.h>

#include <QInputMethodEvent>
#include <QLabel>
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

// Presses the named button of the next modal dialog.
void PressWhenShown(const char* name) {
  test::WhenModal([name](QWidget& modal) {
    QPushButton* button = Button(modal, name);
    ASSERT_NE(button, nullptr) << name;
    QTest::mouseClick(button, Qt::LeftButton);
  });
}

void KeyWhenShown(Qt::Key key) {
  test::WhenModal([key](QWidget& modal) { QTest::keyClick(&modal, key); });
}

// Enters `text` into `edit` the way a Chinese input method does: one committed string.
void Commit(QWidget& edit, const QString& text) {
  QInputMethodEvent event;
  event.setCommitString(text);
  QApplication::sendEvent(&edit, &event);
}

class QtDialogProviderTest : public ::testing::Test {
 protected:
  QMessageBox& BoxOf(TMsgDialog& dialog) { return dynamic_cast<QtMsgDialog&>(dialog).Box(); }

  bool english_ = true;
  QtDialogProvider provider_{[this] { return english_; }};
};

TEST_F(QtDialogProviderTest, KindGivesIconAndTitleWhenCaptionIsEmpty) {
  const std::pair<TMsgDlgType, QMessageBox::Icon> kinds[] = {
      {mtWarning, QMessageBox::Warning},
      {mtError, QMessageBox::Critical},
      {mtInformation, QMessageBox::Information},
      {mtConfirmation, QMessageBox::Question},
      {mtCustom, QMessageBox::NoIcon}};
  for (auto [kind, icon] : kinds) {
    auto dialog = provider_.Create({kind, u"", u"text", {mbOK}, mbOK});
    EXPECT_EQ(BoxOf(*dialog).icon(), icon) << kind;
    EXPECT_EQ(BoxOf(*dialog).windowTitle().toStdString(), KindName(kind));
  }
  english_ = false;
  auto dialog = provider_.Create({mtError, u"", u"text", {mbOK}, mbOK});
  EXPECT_EQ(BoxOf(*dialog).windowTitle(), QStringLiteral("錯誤"));
  dialog = provider_.Create({mtError, u"匯入失敗", u"text", {mbOK}, mbOK});
  EXPECT_EQ(BoxOf(*dialog).windowTitle(), QStringLiteral("匯入失敗"));
  EXPECT_EQ(BoxOf(*dialog).text(), QStringLiteral("text"));
}

TEST_F(QtDialogProviderTest, ButtonsAreCaptionedInTheHostLanguageAtCreation) {
  const TMsgDlgButtons all{mbYes,    mbNo,  mbOK,      mbCancel,   mbAbort, mbRetry,
                           mbIgnore, mbAll, mbNoToAll, mbYesToAll, mbHelp};
  auto english = provider_.Create({mtCustom, u"c", u"t", all, mbOK});
  english_ = false;
  auto chinese = provider_.Create({mtCustom, u"c", u"t", all, mbOK});
  const char16_t* const kChinese[] = {u"是",   u"否",   u"確定",   u"取消",   u"中止", u"重試",
                                      u"略過", u"全部", u"全部否", u"全部是", u"說明"};
  const char* const kNames[] = {"mbYes",     "mbNo",       "mbOK",     "mbCancel",
                                "mbAbort",   "mbRetry",    "mbIgnore", "mbAll",
                                "mbNoToAll", "mbYesToAll", "mbHelp"};
  for (TMsgDlgBtn b : all.List()) {
    QPushButton* inEnglish = Button(BoxOf(*english), kNames[b]);
    QPushButton* inChinese = Button(BoxOf(*chinese), kNames[b]);
    ASSERT_TRUE(inEnglish != nullptr && inChinese != nullptr) << kNames[b];
    EXPECT_EQ(inEnglish->text().toStdString(), ButtonName(b));
    EXPECT_EQ(inChinese->text().toStdU16String(), kChinese[b]);
  }
  EXPECT_EQ(BoxOf(*english).buttons().size(), 11);
}

TEST_F(QtDialogProviderTest, ShowReturnsThePressedButton) {
  PressWhenShown("mbNo");
  EXPECT_EQ(provider_.Show({mtConfirmation, u"c", u"Save?", {mbYes, mbNo, mbCancel}, mbYes}), mbNo);
  PressWhenShown("mbHelp");
  EXPECT_EQ(provider_.Show({mtWarning, u"c", u"t", {mbOK, mbHelp}, mbOK}), mbHelp);
  PressWhenShown("mbNoToAll");
  EXPECT_EQ(provider_.Show({mtWarning, u"c", u"t", {mbYes, mbYesToAll, mbNoToAll}, mbYes}),
            mbNoToAll);
}

TEST_F(QtDialogProviderTest, DefaultButtonHasTheFocusAndAnswersReturn) {
  test::WhenModal([](QWidget& modal) {
    QPushButton* no = Button(modal, "mbNo");
    ASSERT_NE(no, nullptr);
    EXPECT_TRUE(no->isDefault());
    EXPECT_TRUE(QTest::qWaitForWindowActive(&modal));
    EXPECT_EQ(QApplication::focusWidget(), no);
    QTest::keyClick(&modal, Qt::Key_Return);
  });
  EXPECT_EQ(provider_.Show({mtConfirmation, u"c", u"t", {mbYes, mbNo, mbCancel}, mbNo}), mbNo);
  // A default that is not among the buttons falls to the first one in the usual order.
  KeyWhenShown(Qt::Key_Return);
  EXPECT_EQ(provider_.Show({mtConfirmation, u"c", u"t", {mbIgnore, mbRetry}, mbYes}), mbRetry);
  // No buttons at all: OK.
  KeyWhenShown(Qt::Key_Return);
  EXPECT_EQ(provider_.Show({mtInformation, u"c", u"t", {}, mbYes}), mbOK);
}

TEST_F(QtDialogProviderTest, EscapeAnswersCancelThenNoThenAbort) {
  KeyWhenShown(Qt::Key_Escape);
  EXPECT_EQ(provider_.Show({mtConfirmation, u"c", u"t", {mbYes, mbNo, mbCancel}, mbYes}), mbCancel);
  KeyWhenShown(Qt::Key_Escape);
  EXPECT_EQ(provider_.Show({mtConfirmation, u"c", u"t", {mbYes, mbNo}, mbYes}), mbNo);
  KeyWhenShown(Qt::Key_Escape);
  EXPECT_EQ(provider_.Show({mtError, u"c", u"t", {mbAbort, mbRetry, mbIgnore}, mbRetry}), mbAbort);
}

TEST_F(QtDialogProviderTest, ScaleByEnlargesFontAndSize) {
  const DialogRequest request{mtWarning, u"c", u"A line of text to measure", {mbOK}, mbOK};
  auto plain = provider_.Create(request);
  auto scaled = provider_.Create(request);
  scaled->ScaleBy(120, 96);
  scaled->ScaleBy(0, 96);  // ignored
  const QFont font = BoxOf(*scaled).font();
  EXPECT_DOUBLE_EQ(font.pointSizeF(), BoxOf(*plain).font().pointSizeF() * 1.25);
  EXPECT_EQ(Button(BoxOf(*scaled), "mbOK")->font().pointSizeF(), font.pointSizeF());

  QSize sizes[2];
  for (int i = 0; i < 2; ++i) {
    test::WhenModal([&sizes, i](QWidget& modal) {
      sizes[i] = modal.size();
      QTest::mouseClick(Button(modal, "mbOK"), Qt::LeftButton);
    });
    EXPECT_EQ((i == 0 ? plain : scaled)->ShowModal(), mbOK);
  }
  EXPECT_GT(sizes[1].width(), sizes[0].width());
  EXPECT_GT(sizes[1].height(), sizes[0].height());
}

TEST_F(QtDialogProviderTest, ShowModalRunsAgainWithAFreshAnswer) {
  auto dialog = provider_.Create({mtWarning, u"c", u"t", {mbYes, mbNo, mbCancel}, mbYes});
  PressWhenShown("mbNo");
  EXPECT_EQ(dialog->ShowModal(), mbNo);
  // Closed without a press: the escape button, not the press of the run before.
  test::WhenModal([](QWidget& modal) { qobject_cast<QDialog*>(&modal)->done(0); });
  EXPECT_EQ(dialog->ShowModal(), mbCancel);
}

TEST_F(QtDialogProviderTest, InputQueryLimitsLengthAndReturnsTypedText) {
  InputQueryRequest request{u"Log in", u"User name:", u"old", 5};
  test::WhenModal([](QWidget& modal) {
    auto* edit = modal.findChild<QLineEdit*>(QStringLiteral("InputQueryEdit"));
    ASSERT_NE(edit, nullptr);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&modal));
    EXPECT_EQ(QApplication::focusWidget(), edit);
    EXPECT_EQ(modal.findChild<QLabel*>(QStringLiteral("InputQueryPrompt"))->text(),
              QStringLiteral("User name:"));
    EXPECT_EQ(modal.windowTitle(), QStringLiteral("Log in"));
    Commit(*edit, QStringLiteral("陳"));  // replaces the selected value, as an input method does
    QTest::keyClicks(edit, QStringLiteral("abcdefg"));
    QTest::mouseClick(Button(modal, "mbOK"), Qt::LeftButton);
  });
  EXPECT_TRUE(provider_.InputQuery(request));
  EXPECT_EQ(request.value, u"陳abcd");
}

TEST_F(QtDialogProviderTest, InputQueryCancelLeavesTheValue) {
  english_ = false;
  InputQueryRequest request{u"c", u"p", u"a value longer than the limit", 3};
  test::WhenModal([](QWidget& modal) {
    EXPECT_EQ(Button(modal, "mbOK")->text(), QStringLiteral("確定"));
    QTest::keyClicks(modal.findChild<QLineEdit*>(QStringLiteral("InputQueryEdit")), "xyz");
    QTest::mouseClick(Button(modal, "mbCancel"), Qt::LeftButton);
  });
  EXPECT_FALSE(provider_.InputQuery(request));
  EXPECT_EQ(request.value, u"a value longer than the limit");
  // No limit: a long value is kept whole and accepted with Return.
  request.maxLength = 0;
  KeyWhenShown(Qt::Key_Return);
  EXPECT_TRUE(provider_.InputQuery(request));
  EXPECT_EQ(request.value, u"a value longer than the limit");
}

}  // namespace
}  // namespace mv::qt
