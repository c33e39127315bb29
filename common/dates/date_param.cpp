#include "common/dates/date_param.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>

#include "common/text/lang_changer.h"

namespace mv {
namespace {

std::u16string Decimal(int32_t count) {
  const std::string digits = std::to_string(count);
  return std::u16string(digits.begin(), digits.end());
}

std::u16string EnglishDescription(const TDateParam& param) {
  if (param.Count == -1) return u"[All]";
  const auto& names = param.Count == 1 ? TimeUnitEngDescSingle : TimeUnitEngDescMulti;
  return u"Last " + Decimal(param.Count) + u" " + names.at(param.TimeUnit);
}

std::u16string ChineseDescription(const TDateParam& param) {
  if (param.Count == -1) return u"[所有]";
  return u"最近" + Decimal(param.Count) + TimeUnitChiDesc.at(param.TimeUnit);
}

bool IsBlank(char c) {
  return static_cast<unsigned char>(c) <= ' ';
}

std::string_view Trimmed(std::string_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return text;
}

// The whole number written by `text` (optional sign, digits only), or false.
bool ReadCount(std::string_view text, int32_t& count) {
  const bool plus = !text.empty() && text.front() == '+';
  if (plus) text.remove_prefix(1);
  if (text.empty() || text.front() == '+' || (plus && text.front() == '-')) return false;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), count);
  return error == std::errc() && end == text.data() + text.size();
}

bool ReadUnit(char letter, TTimeUnit& unit) {
  const auto found = std::find(TimeUnitArray.begin(), TimeUnitArray.end(), letter);
  if (found == TimeUnitArray.end()) return false;
  unit = static_cast<TTimeUnit>(found - TimeUnitArray.begin());
  return true;
}

TDateTime DaysBack(int64_t day, double time, int64_t days) {
  return DateOf(ClampDay(day - days), time);
}

TDateTime MonthsBack(int64_t day, int64_t months) {
  return DateOf(ClampDay(DayNumberOf(AddMonths(CalendarDateOf(day), -months))), 0.0);
}

}  // namespace

std::string TDateParam::Description() const {
  return LangChanger().CStr(EnglishDescription(*this), ChineseDescription(*this));
}

std::u16string TDateParam::DescriptionW() const {
  return LangChanger().CStrW(EnglishDescription(*this), ChineseDescription(*this));
}

std::string TDateParam::ToString() const {
  return std::to_string(Count) + TimeUnitArray.at(TimeUnit);
}

bool TDateParam::Match(const TDateParam& other) const {
  if (Count == -1 && other.Count == -1) return true;
  return Count == other.Count && TimeUnit == other.TimeUnit;
}

TDateTime TDateParam::GetRangeFromDate(TDateTime date) const {
  if (Count == -1) return {0.0};
  const int64_t day = ClampDay(DayOf(date));
  const double time = TimeOf(date);
  switch (TimeUnit) {
    case TimeByDay:
      return DaysBack(day, time, Count);
    case TimeByWeek:
      return DaysBack(day, time, int64_t{7} * Count);
    case TimeByMonth:
      return MonthsBack(day, Count);
    case TimeByYear:
      return MonthsBack(day, int64_t{12} * Count);
  }
  throw std::out_of_range("Unknown time unit " + std::to_string(int{TimeUnit}));
}

std::string TDateParam::GetBeforeDateSQL(TDateTime date) const {
  const TDateTime first = GetRangeFromDate(date);
  if (first.Days == 0.0) return {};
  return " CONVERT(datetime, '" + DottedDateText(DayOf(first)) + "',102) ";
}

TDateParam ParseDateParam(std::string_view text) {
  text = Trimmed(text);
  TDateParam param;
  if (text.size() < 2 || !ReadCount(text.substr(0, text.size() - 1), param.Count) ||
      !ReadUnit(text.back(), param.TimeUnit)) {
    param = TDateParam{};
  }
  param.Locked = param.Count == -1;
  return param;
}

}  // namespace mv
