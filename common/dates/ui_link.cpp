#include "common/dates/ui_link.h"

#include "common/dates/date_range_setter.h"

namespace mv {

TUI_Link::TUI_Link(bool enabled) : Enabled(enabled) {
  Setter = TDateRangeSetter::GetInstance(this);
}

TUI_Link::~TUI_Link() {
  // The shared list of now, not Setter: a caller may have unregistered this link already, and
  // the list it was given may be gone.
  if (TDateRangeSetter* current = TDateRangeSetter::Current()) current->UI_Link_Free(this);
}

void TUI_Link::SetEnabled(bool value) {
  Enabled = value;
}

void TUI_Link::Reload() {}

void TUI_Link::Reset() {
  Selection = Setter->CreateDateParamFromString("");
  ShowSelection(Selection);
}

std::string TUI_Link::GetBeforeDateSQL(TDateTime date) const {
  if (!Enabled || Selection == nullptr || Selection->Count == -1) return {};
  return Selection->GetBeforeDateSQL(date);
}

}  // namespace mv
