#include "platform/qt/qt_caption_target.h"

#include "platform/qt/qt_text.h"

#include <QAbstractButton>
#include <QAction>
#include <QDockWidget>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QTabWidget>

namespace mv::qt {
namespace {

// A page of a tab widget sits in the tab widget's internal stack.
QTabWidget* TabsOfPage(const QWidget& widget) {
  QWidget* stack = widget.parentWidget();
  if (stack == nullptr) return nullptr;
  auto* tabs = qobject_cast<QTabWidget*>(stack->parentWidget());
  return tabs != nullptr && tabs->indexOf(&widget) >= 0 ? tabs : nullptr;
}

bool SetWidgetCaption(QWidget& widget, const QString& caption) {
  if (QTabWidget* tabs = TabsOfPage(widget)) {
    tabs->setTabText(tabs->indexOf(&widget), caption);
  } else if (auto* button = qobject_cast<QAbstractButton*>(&widget)) {
    button->setText(caption);
  } else if (auto* label = qobject_cast<QLabel*>(&widget)) {
    label->setText(caption);
  } else if (auto* group = qobject_cast<QGroupBox*>(&widget)) {
    group->setTitle(caption);
  } else if (auto* menu = qobject_cast<QMenu*>(&widget)) {
    menu->setTitle(caption);
  } else if (widget.isWindow() || qobject_cast<QDockWidget*>(&widget) != nullptr) {
    widget.setWindowTitle(caption);
  } else {
    return false;
  }
  return true;
}

bool SetObjectCaption(QObject& object, const QString& caption) {
  if (auto* action = qobject_cast<QAction*>(&object)) {
    action->setText(caption);
    return true;
  }
  auto* widget = qobject_cast<QWidget*>(&object);
  return widget != nullptr && SetWidgetCaption(*widget, caption);
}

}  // namespace

bool QtCaptionTarget::SetCaption(std::string_view controlName, const std::u16string& caption) {
  if (root_ == nullptr || controlName.empty()) return false;
  const QString name = QString::fromUtf8(controlName.data(), std::ssize(controlName));
  const QString text = ToQString(caption);
  if (root_->objectName() == name && SetWidgetCaption(*root_, text)) return true;
  for (QObject* object : root_->findChildren<QObject*>(name)) {
    if (SetObjectCaption(*object, text)) return true;
  }
  return false;
}

}  // namespace mv::qt
