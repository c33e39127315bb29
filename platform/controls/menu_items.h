// The items of a popup menu as the settings routines see them, without the toolkit: each item
// has a component name and a check mark. The Qt layer implements it over a menu's actions.
#pragma once

#include <string>

namespace mv::controls {

class TMenuItems {
 public:
  virtual ~TMenuItems() = default;
  // The number of items, separators included.
  virtual int Count() const = 0;
  // The component name of item `item` (0 .. Count() - 1) as UTF-8; empty when it has none.
  virtual std::string Name(int item) const = 0;
  // Whether item `item` shows its check mark.
  virtual bool Checked(int item) const = 0;
  // Shows or hides the check mark of item `item` without running the item's action; an item
  // that cannot be checked (a separator) stays as it is.
  virtual void SetChecked(int item, bool checked) = 0;
};

}  // namespace mv::controls
