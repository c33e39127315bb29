#include "tools/mvcommon/iso_date.h"

#include <regex>
#include <string>

#include "tools/mvcommon/command_line.h"

namespace mv::cli {

TDateTime ReadIsoDate(std::string_view text, std::string_view what) {
  static const std::regex kForm(
      R"(^(\d{4})-(\d{2})-(\d{2})(?:[T ](\d{2}):(\d{2})(?::(\d{2}))?)?$)");
  const std::string word(text);
  std::smatch parts;
  const auto number = [&parts](int i) { return parts[i].matched ? std::stoi(parts[i]) : 0; };
  const bool matched = std::regex_match(word, parts, kForm);
  const int year = matched ? number(1) : 0, month = matched ? number(2) : 0;
  const bool realDay = matched && year >= 1 && month >= 1 && month <= 12 && number(3) >= 1 &&
                       number(3) <= DaysInMonth(year, month);
  if (!realDay || number(4) > 23 || number(5) > 59 || number(6) > 59) {
    throw UsageError(std::string(what) + " must be a date yyyy-mm-dd[Thh:mm[:ss]]: " + word);
  }
  const double seconds = number(4) * 3600.0 + number(5) * 60.0 + number(6);
  return DateOf(DayNumberOf({year, month, number(3)}), seconds / 86400.0);
}

}  // namespace mv::cli
