#include <gtest/gtest.h>

#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <memory>

#include "platform/qt/qt_caption_target.h"

namespace mv::qt {
namespace {

template <typename T>
T* Add(QWidget* parent, const char* name) {
  auto* widget = new T(parent);
  widget->setObjectName(name);
  return widget;
}

TEST(QtCaptionTargetTest, SetsTheCaptionEachKindShows) {
  auto form = std::make_unique<QWidget>();
  form->setObjectName("frmOrder");
  auto* group = Add<QGroupBox>(form.get(), "grpBuyer");
  auto* button = Add<QPushButton>(group, "btnOK");
  auto* label = Add<QLabel>(group, "lblName");
  auto* edit = Add<QLineEdit>(group, "edtName");
  auto* tabs = Add<QTabWidget>(form.get(), "tabs");
  tabs->addTab(Add<QWidget>(nullptr, "tabLines"), "Lines");
  auto* action = new QAction(form.get());
  action->setObjectName("actPrint");
  QtCaptionTarget target(form.get());

  for (const char* name : {"frmOrder", "grpBuyer", "btnOK", "lblName", "tabLines", "actPrint"})
    EXPECT_TRUE(target.SetCaption(name, u"中文")) << name;
  for (const QString& text : {form->windowTitle(), group->title(), button->text(), label->text(),
                              tabs->tabText(0), action->text()})
    EXPECT_EQ(text, QStringLiteral("中文"));

  EXPECT_FALSE(target.SetCaption("btnMissing", u"x"));
  EXPECT_FALSE(target.SetCaption("edtName", u"x"));  // an edit shows no caption
  // ... and does not hide a later object of the same name that does.
  action->setObjectName("edtName");
  EXPECT_TRUE(target.SetCaption("edtName", u"Print"));
  EXPECT_EQ(action->text(), QStringLiteral("Print"));
  EXPECT_EQ(edit->text(), QString());
  // A caption is UTF-16 as it stands: a leading U+FFFE is no byte-order mark.
  EXPECT_TRUE(target.SetCaption("lblName",
                                u"\xFFFE"
                                u"ab"));
  EXPECT_EQ(label->text(), QStringView(u"\xFFFE"
                                       u"ab")
                               .toString());

  QtCaptionTarget inner(group);
  EXPECT_FALSE(inner.SetCaption("tabLines", u"x"));  // outside its root
  form.reset();
  EXPECT_FALSE(target.SetCaption("btnOK", u"x"));
}

}  // namespace
}  // namespace mv::qt
