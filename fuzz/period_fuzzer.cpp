// libFuzzer target of the text form of period presets, alone and as the stored preset list. The
// input is read as one preset text: a readable preset writes itself back as the same text, an
// unreadable one is the locked all-dates preset, and its first date for a few fixed dates lies in
// the calendar, at midnight for months and years, with an SQL expression naming that day. The
// input is then loaded as a stored list: the list comes out sorted, without duplicates, and its
// stored form loads back to itself.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>

#include "common/dates/date_range_setter.h"
#include "common/dates/ui_link.h"
#include "platform/dialogs/dialogs.h"

namespace {

using namespace mv;

void Check(bool condition) {
  if (!condition) std::abort();
}

// A link that only keeps the shared list alive.
class QuietLink : public TUI_Link {
 public:
  void UpdateUserDefined() override {}
  void UpdateSelection(int) override {}
  void NotifyChanged() override {}
  void ShowSelection(TDateParam*) override {}
};

// The condition names the first date's calendar day.
void CheckSql(const std::string& sql, TDateTime first) {
  const TCalendarDate date = CalendarDateOf(DayOf(first));
  char expected[64];
  std::snprintf(expected, sizeof expected, " CONVERT(datetime, '%04d.%02d.%02d',102) ",
                static_cast<int>(date.Year), date.Month, date.Day);
  Check(sql == expected);
}

void CheckRanges(const TDateParam& param) {
  for (double days : {45382.5868, 0.0, -1.25, 2958465.99, -693593.0}) {
    const TDateTime first = param.GetRangeFromDate({days});
    const std::string sql = param.GetBeforeDateSQL({days});
    if (param.Count == -1 || first.Days == 0.0) {
      Check(first.Days == 0.0 && sql.empty());
      continue;
    }
    Check(DayOf(first) >= kMinDay && DayOf(first) <= kMaxDay);
    if (param.TimeUnit >= TimeByMonth) Check(TimeOf(first) == 0.0);
    CheckSql(sql, first);
  }
}

void CheckPreset(std::string_view text) {
  const TDateParam param = ParseDateParam(text);
  Check(param.Locked == (param.Count == -1));
  if (param.Count != -1) {
    const TDateParam again = ParseDateParam(param.ToString());
    Check(again.Count == param.Count && again.TimeUnit == param.TimeUnit);
  }
  Check(!param.Description().empty() && !param.DescriptionW().empty());
  CheckRanges(param);
}

void CheckList(TDateRangeSetter& setter, std::string_view text) {
  setter.AssignUserDefined(text);
  for (int i = 1; i < setter.Count(); ++i) {
    const TDateParam& a = *setter.GetDateParam(i - 1);
    const TDateParam& b = *setter.GetDateParam(i);
    Check(a.TimeUnit < b.TimeUnit || (a.TimeUnit == b.TimeUnit && a.Count < b.Count));
    Check(!a.Match(b));
  }
  const std::string stored = setter.GetUserDefined();
  if (stored.empty()) return;  // the empty text would load the defaults
  setter.AssignUserDefined(stored);
  Check(setter.GetUserDefined() == stored);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  // Without a database the list is first made from the defaults; the box saying so is kept.
  static dialogs::RecordingDialogProvider dialogs;
  static dialogs::ScopedProvider provider(dialogs);
  static QuietLink link;
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  CheckPreset(text);
  CheckList(*link.Setter, text);
  return 0;
}
