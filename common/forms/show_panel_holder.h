// The one status panel of the main window on which list screens show their record count.
//
// The holder is a single object of the forms library, made by the system loader when the library
// is loaded (before the host's main or when a package that links it is loaded) and destroyed when
// it is unloaded. The core library, which starts before it, knows nothing of forms, so the holder
// lives with the displays that use it instead of being made by the core's start-up; it needs no
// start-up call and exists for as long as any screen can reach it.
#pragma once

#include <memory>

#include "platform/controls/text_control.h"

namespace mv {

class TShowPanelHolder {
 public:
  // The process's holder.
  static TShowPanelHolder& GetInstance();

  TShowPanelHolder(const TShowPanelHolder&) = delete;
  TShowPanelHolder& operator=(const TShowPanelHolder&) = delete;

  // Keeps `panel` only when no panel is kept yet: the first caller (usually the main window)
  // wins, later calls are ignored. nullptr keeps nothing.
  void SetPanel(std::shared_ptr<controls::TTextControl> panel);
  // The panel kept, or nullptr.
  [[nodiscard]] std::shared_ptr<controls::TTextControl> GetPanel() const { return panel_; }
  // Show / hide the panel; nothing without one.
  void Visible();
  void Disable();

 private:
  TShowPanelHolder() = default;
  static TShowPanelHolder instance_;

  std::shared_ptr<controls::TTextControl> panel_;
};

}  // namespace mv
