#include "common/text/str_utils.h"

#include "modules/mv_strings.h"

namespace mv {

std::string AllTrim(std::string_view s) { return modules::_MV_AllTrim(s); }

std::string PadL(std::string_view s, int n) { return modules::_MV_PadL(s, n); }

std::string FillStr(std::string_view s, char from, char to) {
  return modules::_MV_FillStr(s, from, to);
}

}  // namespace mv
