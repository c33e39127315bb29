#include "common/forms/show_panel_holder.h"

namespace mv {

// Made when the library is loaded, destroyed when it is unloaded.
TShowPanelHolder TShowPanelHolder::instance_;

TShowPanelHolder& TShowPanelHolder::GetInstance() {
  return instance_;
}

void TShowPanelHolder::SetPanel(std::shared_ptr<controls::TTextControl> panel) {
  if (!panel_) panel_ = std::move(panel);
}

void TShowPanelHolder::Visible() {
  if (panel_) panel_->SetVisible(true);
}

void TShowPanelHolder::Disable() {
  if (panel_) panel_->SetVisible(false);
}

}  // namespace mv
