// A combo box as the logic of a screen sees it, whatever toolkit draws it: a list of item texts,
// the index of the item shown, whether the user may use it, and two notices, the user's choice of
// an item and the control going away. The Qt adapter is platform/qt/qt_combo_box.h.
#pragma once

#include <functional>
#include <string>

namespace mv::controls {

class TComboBox {
 public:
  // Told when the user chooses an item (not when the program changes the list or the index);
  // `sender` is the combo box.
  using TChangeEvent = std::function<void(TComboBox& sender)>;
  // Told once, when the control is being destroyed; the control must not be used from it.
  using TGoingAwayEvent = std::function<void()>;

  virtual ~TComboBox() = default;

  // Removes every item; no item is shown afterwards (ItemIndex -1).
  virtual void Clear() = 0;
  // Appends an item with the text `text` (UTF-16; any text, shown as it is); the item shown
  // stays as it was (none after Clear).
  virtual void AddItem(const std::u16string& text) = 0;
  // The number of items.
  virtual int ItemCount() const = 0;
  // The text of item `index` (UTF-16); the empty text for an index outside the list.
  virtual std::u16string ItemText(int index) const = 0;
  // The index of the item shown, -1 when none is.
  virtual int ItemIndex() const = 0;
  // Shows item `index`; an index outside the list (-1 included) shows no item.
  virtual void SetItemIndex(int index) = 0;

  // Whether the user may use the control.
  virtual bool Enabled() const = 0;
  virtual void SetEnabled(bool enabled) = 0;

  // The handler of the user's choice (empty when none is set), and setting it (an empty function
  // removes it). There is one handler: setting it replaces the previous one.
  virtual TChangeEvent OnChange() const = 0;
  virtual void SetOnChange(TChangeEvent handler) = 0;
  // The one handler of the control's going away; setting it replaces the previous one.
  virtual void SetOnGoingAway(TGoingAwayEvent handler) = 0;
};

}  // namespace mv::controls
