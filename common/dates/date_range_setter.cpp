#include "common/dates/date_range_setter.h"

#include <algorithm>
#include <stdexcept>

#include "common/dates/ui_link.h"
#include "common/frame/string_list.h"
#include "common/settings/user_preference.h"

namespace mv {
namespace {

// The shared list; never freed at unload, only when its last link leaves.
TDateRangeSetter* instance = nullptr;

bool IsBlank(std::string_view text) {
  return std::all_of(text.begin(), text.end(),
                     [](char c) { return static_cast<unsigned char>(c) <= ' '; });
}

void CheckIndex(int index, int count) {
  if (index < 0 || index >= count)
    throw EListError("List index out of bounds (" + std::to_string(index) + ")");
}

}  // namespace

TDateRangeSetter::TDateRangeSetter() = default;
TDateRangeSetter::~TDateRangeSetter() = default;

TDateRangeSetter* TDateRangeSetter::GetInstance(TUI_Link* link) {
  if (instance == nullptr) {
    instance = new TDateRangeSetter();
    instance->AssignUserDefined(GetUserPreference(kPeriodPresetKey));
  }
  std::vector<TUI_Link*>& links = instance->links_;
  if (std::find(links.begin(), links.end(), link) == links.end()) links.push_back(link);
  return instance;
}

TDateRangeSetter* TDateRangeSetter::Current() {
  return instance;
}

void TDateRangeSetter::Reload() {
  if (instance == nullptr) return;
  for (TUI_Link* link : instance->links_) link->Selection = nullptr;
  instance->AssignUserDefined(GetUserPreference(kPeriodPresetKey));
  const std::vector<TUI_Link*> links = instance->links_;
  for (TUI_Link* link : links) link->Reload();
}

void TDateRangeSetter::UI_Link_Free(TUI_Link* link) {
  std::erase(links_, link);
  if (!links_.empty()) return;
  if (instance == this) instance = nullptr;
  delete this;
}

TDateParam* TDateRangeSetter::GetDateParam(int index) const {
  CheckIndex(index, Count());
  return params_[index].get();
}

int TDateRangeSetter::IndexOfDateParam(const TDateParam* param) const {
  for (int i = 0; i < Count(); ++i) {
    if (params_[i].get() == param) return i;
  }
  return -1;
}

TDateParam* TDateRangeSetter::CreateDateParam(int32_t count, TTimeUnit unit, bool locked) {
  if (static_cast<int>(unit) >= kTimeUnitCount)
    throw std::out_of_range("Unknown time unit " + std::to_string(int{unit}));
  return UseOrAdd(TDateParam{count, unit, locked});
}

TDateParam* TDateRangeSetter::CreateDateParamFromString(std::string_view text) {
  return UseOrAdd(ParseDateParam(text));
}

TDateParam* TDateRangeSetter::UseOrAdd(const TDateParam& param) {
  TDateParam* used = DateParamExist(param);
  if (used == nullptr) {
    auto added = std::make_unique<TDateParam>(param);
    used = added.get();
    AddDateParam(std::move(added));
  }
  NotifyLinks();
  return used;
}

void TDateRangeSetter::AddDateParam(std::unique_ptr<TDateParam> param) {
  const auto after = [&param](const std::unique_ptr<TDateParam>& listed) {
    return listed->TimeUnit > param->TimeUnit ||
           (listed->TimeUnit == param->TimeUnit && listed->Count > param->Count);
  };
  params_.insert(std::find_if(params_.begin(), params_.end(), after), std::move(param));
}

TDateParam* TDateRangeSetter::DateParamExist(const TDateParam& param) const {
  TDateParam* found = nullptr;
  for (const auto& listed : params_) {
    if (listed->Match(param)) found = listed.get();
  }
  return found;
}

void TDateRangeSetter::DeleteDateParamIndex(int index) {
  CheckIndex(index, Count());
  if (params_[index]->Locked) return;
  std::unique_ptr<TDateParam> removed = std::move(params_[index]);
  params_.erase(params_.begin() + index);
  NotifyLinks();
  ForgetSelection(removed.get());
}

void TDateRangeSetter::CheckItemCanDelete(const TUI_Link* link1, const TUI_Link* link2) {
  for (const auto& param : params_) param->Locked = param->Count == -1;
  for (const TUI_Link* link : links_) {
    if (link != link1 && link != link2 && link->Selection != nullptr)
      link->Selection->Locked = true;
  }
}

std::string TDateRangeSetter::GetUserDefined() const {
  std::string text;
  for (const auto& param : params_) {
    if (!text.empty()) text += '#';
    text += param->ToString();
  }
  return text;
}

void TDateRangeSetter::AssignUserDefined(std::string_view text) {
  for (const auto& param : params_) ForgetSelection(param.get());
  params_.clear();
  if (text.empty()) {
    CreateDateParam(-1, TimeByDay, true);
    CreateDateParam(1, TimeByWeek, false);
    CreateDateParam(1, TimeByMonth, false);
    CreateDateParam(3, TimeByMonth, false);
    CreateDateParam(6, TimeByMonth, false);
    CreateDateParam(1, TimeByYear, false);
    return;
  }
  size_t start = 0;
  while (start <= text.size()) {
    const size_t end = std::min(text.find_first_of("#\r\n", start), text.size());
    const std::string_view piece = text.substr(start, end - start);
    if (!IsBlank(piece)) CreateDateParamFromString(piece);
    start = end + 1;
  }
}

void TDateRangeSetter::NotifyLinks() {
  const std::vector<TUI_Link*> links = links_;
  for (TUI_Link* link : links) link->UpdateUserDefined();
}

void TDateRangeSetter::ForgetSelection(const TDateParam* param) {
  for (TUI_Link* link : links_) {
    if (link->Selection == param) link->Selection = nullptr;
  }
}

}  // namespace mv
