// The period combo box of a list screen: a UI link (ui_link.h) that shows the shared presets in a
// combo box, remembers the user's choice per screen and builds the screen's date condition
// (GetBeforeDateSQL). A small configuration button beside the combo box opens the preset dialog.
//
// Stored choice: preference "Period" + LinkName of the signed-in user, the chosen preset's text
// form (the empty text when none is chosen), followed by "#NU" when the date condition is
// switched off: 3M, 1W#NU, -1D. It is read when the link is made and written when the combo box
// goes away.
//
// A link belongs to its combo box: it is made by CreateInstance / CreateInstanceDisabled and
// freed (after saving) when the combo box goes away; one link per combo box. User-interface
// thread only.
#pragma once

#include <functional>
#include <string>

#include "common/dates/ui_link.h"
#include "platform/controls/button.h"
#include "platform/controls/combo_box.h"

namespace mv {

class TComboBox_DateRangeSetter_Link : public TUI_Link {
 public:
  using TLinkEvent = std::function<void(TComboBox_DateRangeSetter_Link& sender)>;

  // A link on `comboBox` with the date condition switched on (Disabled: off; a stored choice may
  // switch it on again), for the screen key `linkName` (narrow text in the user's code page). The
  // combo box's own change handler is kept as OldOnChange; the stored choice is read (Reload).
  // The result belongs to the combo box.
  static TComboBox_DateRangeSetter_Link* CreateInstance(controls::TComboBox& comboBox,
                                                        std::string linkName);
  static TComboBox_DateRangeSetter_Link* CreateInstanceDisabled(controls::TComboBox& comboBox,
                                                                std::string linkName);
  // Saves the choice, gives the combo box its old change handler back when the combo box is
  // still there, releases the trigger button and leaves the shared list.
  ~TComboBox_DateRangeSetter_Link() override;

  controls::TComboBox& ComboBox;
  // The button that opens the preset dialog, or nullptr.
  controls::TButton* ConfigTrigger = nullptr;
  // The screen's key of the stored choice.
  const std::string LinkName;
  // The combo box's change handler found at construction, called after the link's own.
  controls::TComboBox::TChangeEvent OldOnChange;
  // Raised by NotifyChanged (the preset dialog passed a choice to this link); sender is the link.
  TLinkEvent OnChange;

  // Releases the previous trigger (its click handler removed) and makes `button` (nullptr: none)
  // open the preset dialog; the button follows the link's Enabled.
  void SetConfigTrigger(controls::TButton* button);
  // Writes the stored choice (see above) with SaveUserPreference.
  void Save() const;

  // Fills the combo box with every preset's Description, then shows the Selection.
  void UpdateUserDefined() override;
  // Selection := preset `index`, the condition switched on, and shown. EListError for an index
  // outside the list.
  void UpdateSelection(int index) override;
  // Calls OnChange, when set, with this link.
  void NotifyChanged() override;
  // Shows `param`'s position in the list in the combo box (none when it is not listed); nullptr
  // changes nothing.
  void ShowSelection(TDateParam* param) override;
  // Sets Enabled and enables or disables the combo box and the trigger button.
  void SetEnabled(bool value) override;
  // Reads the stored choice: the empty value selects the all-dates preset and leaves Enabled as
  // made; otherwise the piece before the first "#" (when not blank) becomes the Selection and
  // switches the condition on, and the piece after it switches it off when it reads "NU" and on
  // otherwise. Then refills the combo box.
  void Reload() override;

  // The user chose an item: UpdateSelection of the combo box's index (an index outside the list
  // is ignored), then OldOnChange with the combo box. NotifyChanged is not raised.
  void ComboBoxChange();
  // The trigger button was clicked: the installed preset dialog (preset_dialog_opener.h) opens
  // for this link with its Selection; nothing happens when none is installed.
  void OnTriggerConfig();

 private:
  TComboBox_DateRangeSetter_Link(controls::TComboBox& comboBox, std::string linkName, bool enabled);
  void ReleaseTrigger();

  bool comboGone_ = false;
};

// The preference key prefix of a screen's stored choice.
inline constexpr std::string_view kPeriodChoiceKey = "Period";

}  // namespace mv
