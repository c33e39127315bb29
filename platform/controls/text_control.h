// A control that shows one text and can be shown or hidden: a label, a status bar panel, a
// window's caption. Logic of the shared forms writes through it and never sees the toolkit.
#pragma once

#include <string>

namespace mv::controls {

class TTextControl {
 public:
  virtual ~TTextControl() = default;

  // The text the control shows now, UTF-16; empty when the control is gone.
  [[nodiscard]] virtual std::u16string Text() const = 0;
  // Shows `text` (UTF-16, taken as it stands: no markup, control characters kept); nothing
  // happens when the control is gone.
  virtual void SetText(const std::u16string& text) = 0;
  // Whether the control is shown; false when it is gone.
  [[nodiscard]] virtual bool Visible() const = 0;
  // Shows or hides the control; nothing happens when it is gone.
  virtual void SetVisible(bool visible) = 0;
};

}  // namespace mv::controls
