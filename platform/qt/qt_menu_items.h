// The items of a QMenu as the settings routines see them: its actions, named by their object
// names, checked through their check marks.
#pragma once

#include <QMenu>
#include <QPointer>

#include "platform/controls/menu_items.h"

namespace mv::qt {

class QtMenuItems : public controls::TMenuItems {
 public:
  // The menu is not owned; once it is destroyed it has no items.
  explicit QtMenuItems(QMenu* menu) : menu_(menu) {}

  // Every action of the menu in its order, separators and sub-menus included.
  int Count() const override;
  // The action's object name as UTF-8.
  std::string Name(int item) const override;
  bool Checked(int item) const override;
  // Sets the check mark of a checkable action (its toggled signal fires, its triggered signal
  // does not); an action that is not checkable stays as it is.
  void SetChecked(int item, bool checked) override;

 private:
  QAction* Action(int item) const;
  QPointer<QMenu> menu_;
};

}  // namespace mv::qt
