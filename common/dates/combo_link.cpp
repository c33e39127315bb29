#include "common/dates/combo_link.h"

#include <algorithm>
#include <vector>

#include "common/dates/date_range_setter.h"
#include "common/dates/preset_dialog_opener.h"
#include "common/settings/user_preference.h"
#include "modules/mv_strings.h"

namespace mv {
namespace {

// The pieces of a stored choice: "#" and line breaks separate them, as in the stored preset list.
std::vector<std::string> Pieces(std::string_view text) {
  std::vector<std::string> pieces;
  size_t start = 0;
  while (start <= text.size()) {
    const size_t end = std::min(text.find_first_of("#\r\n", start), text.size());
    pieces.emplace_back(text.substr(start, end - start));
    // A CR LF pair is one break.
    start = end + (text.compare(end, 2, "\r\n") == 0 ? 2 : 1);
  }
  return pieces;
}

}  // namespace

TComboBox_DateRangeSetter_Link* TComboBox_DateRangeSetter_Link::CreateInstance(
    controls::TComboBox& comboBox, std::string linkName) {
  return new TComboBox_DateRangeSetter_Link(comboBox, std::move(linkName), true);
}

TComboBox_DateRangeSetter_Link* TComboBox_DateRangeSetter_Link::CreateInstanceDisabled(
    controls::TComboBox& comboBox, std::string linkName) {
  return new TComboBox_DateRangeSetter_Link(comboBox, std::move(linkName), false);
}

TComboBox_DateRangeSetter_Link::TComboBox_DateRangeSetter_Link(controls::TComboBox& comboBox,
                                                               std::string linkName, bool enabled)
    : TUI_Link(enabled), ComboBox(comboBox), LinkName(std::move(linkName)) {
  OldOnChange = ComboBox.OnChange();
  ComboBox.SetOnChange([this](controls::TComboBox&) { ComboBoxChange(); });
  ComboBox.SetOnGoingAway([this] {
    comboGone_ = true;
    delete this;
  });
  SetEnabled(enabled);
  Reload();
}

TComboBox_DateRangeSetter_Link::~TComboBox_DateRangeSetter_Link() {
  Save();
  ReleaseTrigger();
  if (!comboGone_) {
    ComboBox.SetOnChange(std::move(OldOnChange));
    ComboBox.SetOnGoingAway({});
  }
}

void TComboBox_DateRangeSetter_Link::SetConfigTrigger(controls::TButton* button) {
  ReleaseTrigger();
  ConfigTrigger = button;
  if (ConfigTrigger == nullptr) return;
  ConfigTrigger->SetOnClick([this] { OnTriggerConfig(); });
  ConfigTrigger->SetOnGoingAway([this] { ConfigTrigger = nullptr; });
  ConfigTrigger->SetEnabled(Enabled);
}

void TComboBox_DateRangeSetter_Link::ReleaseTrigger() {
  if (ConfigTrigger == nullptr) return;
  ConfigTrigger->SetOnClick({});
  ConfigTrigger->SetOnGoingAway({});
  ConfigTrigger = nullptr;
}

void TComboBox_DateRangeSetter_Link::Save() const {
  std::string value = Selection != nullptr ? Selection->ToString() : std::string();
  if (!Enabled) value += "#NU";
  SaveUserPreference(std::string(kPeriodChoiceKey) + LinkName, value);
}

void TComboBox_DateRangeSetter_Link::UpdateUserDefined() {
  ComboBox.Clear();
  for (int i = 0; i < Setter->Count(); ++i)
    ComboBox.AddItem(Setter->GetDateParam(i)->DescriptionW());
  ShowSelection(Selection);
}

void TComboBox_DateRangeSetter_Link::UpdateSelection(int index) {
  Selection = Setter->GetDateParam(index);
  SetEnabled(true);
  ShowSelection(Selection);
}

void TComboBox_DateRangeSetter_Link::NotifyChanged() {
  if (OnChange) OnChange(*this);
}

void TComboBox_DateRangeSetter_Link::ShowSelection(TDateParam* param) {
  if (param != nullptr) ComboBox.SetItemIndex(Setter->IndexOfDateParam(param));
}

void TComboBox_DateRangeSetter_Link::SetEnabled(bool value) {
  TUI_Link::SetEnabled(value);
  ComboBox.SetEnabled(value);
  if (ConfigTrigger != nullptr) ConfigTrigger->SetEnabled(value);
}

void TComboBox_DateRangeSetter_Link::Reload() {
  const std::string stored = GetUserPreference(std::string(kPeriodChoiceKey) + LinkName);
  if (stored.empty()) {
    Selection = Setter->CreateDateParamFromString("");
  } else {
    const std::vector<std::string> pieces = Pieces(stored);
    for (size_t line = 0; line < pieces.size() && line < 2; ++line) {
      const std::string piece = modules::_MV_AllTrim(pieces[line]);
      if (piece.empty()) continue;
      if (line == 0) {
        Selection = Setter->CreateDateParamFromString(piece);
        SetEnabled(true);
      } else {
        SetEnabled(piece != "NU");
      }
    }
  }
  UpdateUserDefined();
}

void TComboBox_DateRangeSetter_Link::ComboBoxChange() {
  const int index = ComboBox.ItemIndex();
  if (index >= 0 && index < Setter->Count()) UpdateSelection(index);
  if (OldOnChange) OldOnChange(ComboBox);
}

void TComboBox_DateRangeSetter_Link::OnTriggerConfig() {
  if (TPresetDialogOpener opener = PresetDialogOpener()) opener(Selection, *this);
}

}  // namespace mv
