#include "platform/qt/qt_menu_items.h"

namespace mv::qt {

QAction* QtMenuItems::Action(int item) const {
  if (!menu_) return nullptr;
  const QList<QAction*> actions = menu_->actions();
  return item >= 0 && item < actions.size() ? actions[item] : nullptr;
}

int QtMenuItems::Count() const {
  return menu_ ? static_cast<int>(menu_->actions().size()) : 0;
}

std::string QtMenuItems::Name(int item) const {
  const QAction* action = Action(item);
  return action ? action->objectName().toStdString() : std::string();
}

bool QtMenuItems::Checked(int item) const {
  const QAction* action = Action(item);
  return action && action->isChecked();
}

void QtMenuItems::SetChecked(int item, bool checked) {
  QAction* action = Action(item);
  if (action && action->isCheckable()) action->setChecked(checked);
}

}  // namespace mv::qt
