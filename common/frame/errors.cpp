#include "common/frame/errors.h"

#include <charconv>

#include "modules/mv_strings.h"

namespace mv {

int StrToInt(const std::string& text) {
  std::string trimmed = modules::_MV_AllTrim(text);
  const char* begin = trimmed.data();
  const char* end = begin + trimmed.size();
  if (begin != end && *begin == '+') ++begin;
  int value = 0;
  auto [ptr, ec] = std::from_chars(begin, end, value);
  if (trimmed.empty() || ec != std::errc() || ptr != end) {
    throw EConvertError("'" + text + "' is not a valid integer value");
  }
  return value;
}

}  // namespace mv
