// The system's message box: its fixed button sets, what a box request becomes in them, and (on
// Windows) a dialogs provider that shows every box through MessageBoxW, for hosts without Qt.
#pragma once

#include <vector>

#include "platform/dialogs/dialogs.h"

namespace mv::dialogs {

// The button sets a system message box offers.
enum class TBoxButtons { kOk, kOkCancel, kYesNo, kYesNoCancel, kRetryCancel, kAbortRetryIgnore };

// The buttons of `set` in the order the box shows them.
[[nodiscard]] std::vector<TMsgDlgBtn> BoxButtons(TBoxButtons set);

// A request laid out on a system message box: the set and the position (from 0) of its default
// button.
struct TMessageBoxLayout {
  TBoxButtons buttons = TBoxButtons::kOk;
  int defaultIndex = 0;
  constexpr bool operator==(const TMessageBoxLayout&) const = default;
};

// The layout of `request`: the first set (in the order of TBoxButtons) that holds every
// requested button the box can show (All, No to All, Yes to All and Help it cannot, and they are
// left out); when none holds them all, the first set holding the most of them; OK when nothing
// is left. The default button keeps its place when the set has it, else the first button is the
// default.
[[nodiscard]] TMessageBoxLayout MessageBoxLayout(const DialogRequest& request);

// Windows only: shows every box with MessageBoxW, owned by the program's active window, with the
// icon of its kind and the layout above, and answers the button pressed (the default button when
// the box cannot be shown). Input queries are answered with "cancel", as the box has no edit
// field.
class TMessageBoxProvider : public DialogProvider {
 public:
  TMsgDlgBtn Show(const DialogRequest& request) override;
  std::unique_ptr<TMsgDialog> Create(const DialogRequest& request) override;
  bool InputQuery(InputQueryRequest& request) override;
};

}  // namespace mv::dialogs
