#include "platform/db/parameters.h"

#include <strings.h>
#include <algorithm>

#include "platform/db/db_error.h"
#include "platform/db/sql_text_p.h"

namespace mv::db {
namespace {

bool SameName(std::string_view a, std::string_view b) {
  return a.size() == b.size() && strncasecmp(a.data(), b.data(), a.size()) == 0;
}

}  // namespace

TParameter& TParameters::operator[](int index) {
  if (index < 0 || index >= Count()) {
    throw EDatabaseError("Parameter index " + std::to_string(index) + " out of bounds");
  }
  return items_[static_cast<size_t>(index)];
}

const TParameter& TParameters::operator[](int index) const {
  return const_cast<TParameters&>(*this)[index];
}

TParameter* TParameters::FindParam(std::string_view name) {
  const auto it = std::find_if(items_.begin(), items_.end(),
                               [&](const TParameter& p) { return SameName(p.Name, name); });
  return it == items_.end() ? nullptr : &*it;
}

TParameter& TParameters::ParamByName(std::string_view name) {
  if (TParameter* p = FindParam(name)) return *p;
  throw EDatabaseError("Parameter '" + std::string(name) + "' not found");
}

TParameter& TParameters::AddParameter(std::string_view name, TFieldType dataType) {
  items_.push_back({std::string(name), dataType, Variant()});
  return items_.back();
}

void TParameters::Rebuild(const std::vector<std::string>& names) {
  std::vector<TParameter> rebuilt;
  for (const std::string& name : names) {
    if (TParameter* old = FindParam(name)) {
      rebuilt.push_back({name, old->DataType, old->Value});
    } else {
      rebuilt.push_back({name, ftUnknown, Variant()});
    }
  }
  items_ = std::move(rebuilt);
}

std::vector<std::string> ParameterNames(std::u16string_view commandText) {
  std::vector<std::string> names;
  for (const TSqlPlace& place : PrepareSql(commandText).Places) {
    if (place.Name.empty()) continue;  // a literal of the text
    const bool seen = std::any_of(names.begin(), names.end(),
                                  [&](const std::string& n) { return SameName(n, place.Name); });
    if (!seen) names.push_back(place.Name);
  }
  return names;
}

}  // namespace mv::db
