#include "common/frame/string_list.h"

#include <algorithm>

#include "modules/mv_str_compare.h"

namespace mv {

const std::string& LineAt(const TStringList& list, size_t index) {
  if (index >= list.size()) {
    throw EListError("List index out of bounds (" + std::to_string(index) + ")");
  }
  return list[index];
}

void SortStringList(TStringList& list) {
  std::stable_sort(list.begin(), list.end(), [](const std::string& a, const std::string& b) {
    return modules::MV_AnsiCompareText(a, b) < 0;
  });
}

std::string StringListText(const TStringList& list) {
  std::string text;
  for (const std::string& line : list) text += line + "\r\n";
  return text;
}

}  // namespace mv
