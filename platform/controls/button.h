// A button as the logic of a screen sees it, whatever toolkit draws it: whether the user may
// press it, the one handler of its click, and the notice of its going away. The Qt adapter is
// platform/qt/qt_button.h.
#pragma once

#include <functional>

namespace mv::controls {

class TButton {
 public:
  // Told when the user clicks the button (or presses it from the keyboard).
  using TClickEvent = std::function<void()>;
  // Told once, when the control is being destroyed; the control must not be used from it.
  using TGoingAwayEvent = std::function<void()>;

  virtual ~TButton() = default;

  // Whether the user may press the button.
  virtual bool Enabled() const = 0;
  virtual void SetEnabled(bool enabled) = 0;

  // The one click handler; setting it replaces the previous one, an empty function removes it.
  virtual void SetOnClick(TClickEvent handler) = 0;
  // The one handler of the control's going away; setting it replaces the previous one.
  virtual void SetOnGoingAway(TGoingAwayEvent handler) = 0;
};

}  // namespace mv::controls
