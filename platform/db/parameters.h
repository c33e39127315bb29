// The parameters of a command text. With the parameter check on, a query re-reads them whenever
// its text changes: one parameter per distinct name written as ":name" (letters, digits, "_"),
// in the order of first appearance, names compared without regard to case. A ":" inside a quoted
// literal, a quoted name, a comment or a marked literal does not start a name, and "::" stands for
// one ":".
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/db/field_types.h"
#include "platform/db/variant.h"

namespace mv::db {

struct TParameter {
  std::string Name;
  TFieldType DataType = ftUnknown;
  Variant Value;
};

class TParameters {
 public:
  // The number of parameters.
  int Count() const { return static_cast<int>(items_.size()); }
  // Parameter `index` (0-based); raises EDatabaseError when out of range.
  TParameter& operator[](int index);
  const TParameter& operator[](int index) const;
  // The parameter of that name (case-insensitive); raises EDatabaseError when there is none.
  TParameter& ParamByName(std::string_view name);
  // The parameter of that name, or nullptr.
  TParameter* FindParam(std::string_view name);
  // Appends a parameter (null value) and returns it.
  TParameter& AddParameter(std::string_view name, TFieldType dataType);
  // Replaces the list by the names `names`; a parameter whose name was there before keeps its
  // type and value, the others start unknown and null.
  void Rebuild(const std::vector<std::string>& names);
  void Clear() { items_.clear(); }

 private:
  std::vector<TParameter> items_;
};

// The distinct ":name" parameter names of `commandText` in order of first appearance.
std::vector<std::string> ParameterNames(std::u16string_view commandText);

}  // namespace mv::db
