#include <gtest/gtest.h>

#include <QAction>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <memory>

#include "platform/qt/qt_caption_target.h"

namespace mv::qt {
namespace {

// A small form: a window with a group box holding a button, a check box, a label and an edit,
// a tab widget with one page, and an action.
class QtCaptionTargetTest : public ::testing::Test {
 protected:
  QtCaptionTargetTest() {
    form_->setObjectName("frmOrder");
    group_->setObjectName("grpBuyer");
    button_->setObjectName("btnOK");
    check_->setObjectName("chkUrgent");
    label_->setObjectName("lblName");
    edit_->setObjectName("edtName");
    page_->setObjectName("tabLines");
    action_->setObjectName("actPrint");
    tabs_->addTab(page_, "Lines");
    form_->addAction(action_);
  }

  std::unique_ptr<QWidget> form_ = std::make_unique<QWidget>();
  QGroupBox* group_ = new QGroupBox(form_.get());
  QPushButton* button_ = new QPushButton(group_);
  QCheckBox* check_ = new QCheckBox(group_);
  QLabel* label_ = new QLabel(group_);
  QLineEdit* edit_ = new QLineEdit(group_);
  QTabWidget* tabs_ = new QTabWidget(form_.get());
  QWidget* page_ = new QWidget;
  QAction* action_ = new QAction(form_.get());
  QtCaptionTarget target_{form_.get()};
};

TEST_F(QtCaptionTargetTest, SetsTheCaptionEachKindShows) {
  EXPECT_TRUE(target_.SetCaption("frmOrder", u"訂單"));
  EXPECT_TRUE(target_.SetCaption("grpBuyer", u"買方"));
  EXPECT_TRUE(target_.SetCaption("btnOK", u"確定"));
  EXPECT_TRUE(target_.SetCaption("chkUrgent", u"急件"));
  EXPECT_TRUE(target_.SetCaption("lblName", u"名稱"));
  EXPECT_TRUE(target_.SetCaption("tabLines", u"明細"));
  EXPECT_TRUE(target_.SetCaption("actPrint", u"列印"));
  EXPECT_EQ(form_->windowTitle(), QStringLiteral("訂單"));
  EXPECT_EQ(group_->title(), QStringLiteral("買方"));
  EXPECT_EQ(button_->text(), QStringLiteral("確定"));
  EXPECT_EQ(check_->text(), QStringLiteral("急件"));
  EXPECT_EQ(label_->text(), QStringLiteral("名稱"));
  EXPECT_EQ(tabs_->tabText(0), QStringLiteral("明細"));
  EXPECT_EQ(page_->windowTitle(), QString());
  EXPECT_EQ(action_->text(), QStringLiteral("列印"));
}

TEST_F(QtCaptionTargetTest, FalseForUnknownNamesAndControlsWithoutCaption) {
  EXPECT_FALSE(target_.SetCaption("btnMissing", u"x"));
  EXPECT_FALSE(target_.SetCaption("", u"x"));
  EXPECT_FALSE(target_.SetCaption("edtName", u"x"));
  EXPECT_EQ(edit_->text(), QString());
  // A control without caption does not hide a later one of the same name.
  action_->setObjectName("edtName");
  EXPECT_TRUE(target_.SetCaption("edtName", u"Name"));
  EXPECT_EQ(action_->text(), QStringLiteral("Name"));
  EXPECT_EQ(edit_->text(), QString());
}

TEST_F(QtCaptionTargetTest, RootThatIsNotAWindowAndDestroyedRoot) {
  QtCaptionTarget inner(group_);
  EXPECT_TRUE(inner.SetCaption("grpBuyer", u"Buyer"));
  EXPECT_EQ(group_->title(), QStringLiteral("Buyer"));
  EXPECT_FALSE(inner.SetCaption("tabLines", u"x"));  // outside the root
  form_.reset();
  EXPECT_FALSE(target_.SetCaption("btnOK", u"x"));
  EXPECT_FALSE(inner.SetCaption("grpBuyer", u"x"));
}

}  // namespace
}  // namespace mv::qt
