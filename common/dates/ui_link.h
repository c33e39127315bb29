// A UI link ties one piece of user interface (a period combo box of a list screen, the preset
// dialog) to the shared preset list (date_range_setter.h). The list tells each registered link
// when the presets change; the link shows them and remembers the preset the user chose. A list
// screen builds its date condition by asking its link for GetBeforeDateSQL.
//
// This is the abstract base; the combo-box link and the dialog's link derive from it. A link
// registers with the shared list when it is made and leaves it when it is destroyed (the last
// link to leave frees the list). User-interface thread only.
#pragma once

#include <string>

#include "common/dates/date_param.h"

namespace mv {

class TDateRangeSetter;

class TUI_Link {
 public:
  // Registers the link with the shared list (TDateRangeSetter::GetInstance), which is made from
  // the user's preferences if it does not exist yet; the link starts with no Selection.
  explicit TUI_Link(bool enabled = true);
  // Leaves the shared list (UI_Link_Free); a derived link saves what it must before.
  virtual ~TUI_Link();
  TUI_Link(const TUI_Link&) = delete;
  TUI_Link& operator=(const TUI_Link&) = delete;

  // Whether the date condition is switched on.
  bool Enabled;
  // The preset the link shows (borrowed from the shared list), or nullptr.
  TDateParam* Selection = nullptr;
  // The shared list, as GetInstance gave it at construction.
  TDateRangeSetter* Setter = nullptr;

  // Rebuild the shown list from the shared presets.
  virtual void UpdateUserDefined() = 0;
  // The user picked preset `index` of the shared list.
  virtual void UpdateSelection(int index) = 0;
  // Tell the owner screen that the choice changed.
  virtual void NotifyChanged() = 0;
  // Highlight `param` (nullptr: nothing to highlight).
  virtual void ShowSelection(TDateParam* param) = 0;
  // Switches the date condition on or off (sets Enabled).
  virtual void SetEnabled(bool value);
  // Re-read the link's own stored choice; the base link has none and does nothing.
  virtual void Reload();

  // Selects the all-dates preset (added to the shared list if missing) and shows it.
  void Reset();
  // The date condition of the link for a period ending at `date`: the Selection's
  // GetBeforeDateSQL when the link is Enabled and has a Selection other than all dates; else the
  // empty text.
  std::string GetBeforeDateSQL(TDateTime date) const;
};

}  // namespace mv
