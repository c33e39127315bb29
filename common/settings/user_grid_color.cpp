#include "common/settings/user_grid_color.h"

#include <charconv>
#include <exception>
#include <optional>

#include "common/datasets/apply_modes.h"
#include "common/settings/comma_items_p.h"
#include "common/settings/preference_text.h"
#include "common/settings/user_row_p.h"
#include "platform/codepage/codepage.h"

namespace mv {
namespace {

// A colour item: a signed 32-bit number, or the unsigned number of the same bits.
std::optional<controls::TColor> ColorNumber(std::u16string_view item) {
  if (const std::optional<int32_t> value = WholeNumber(item)) {
    return static_cast<controls::TColor>(*value);
  }
  const std::string text = codepage::Utf8FromWide(item);
  controls::TColor value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (text.empty() || error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return value;
}

// The colours of entry value `value`; the defaults when it is empty or an item is no number.
TUserGridColor ColorsOf(std::u16string_view value) {
  std::u16string rest(value);
  TUserGridColor colors{};
  for (controls::TColor* color : {&colors.First, &colors.Second, &colors.Third}) {
    const std::optional<controls::TColor> number = ColorNumber(TakeCommaItem(rest));
    if (!number) return kDefaultUserGridColor;
    *color = *number;
  }
  return colors;
}

}  // namespace

void GetUserColor(TUserGridColor& inbox, TUserGridColor& outbox, TUserGridColor& sentbox,
                  TUserGridColor& searchforms) {
  inbox = outbox = sentbox = searchforms = kDefaultUserGridColor;
  try {
    TUserRow row(ApplyRead, kSelectUserPreference);
    if (row.RecordCount() <= 0) return;
    const TPreferenceText text(row.Preference());
    inbox = ColorsOf(text.Value(u"InboxColor"));
    outbox = ColorsOf(text.Value(u"OutboxColor"));
    sentbox = ColorsOf(text.Value(u"SentboxColor"));
    searchforms = ColorsOf(text.Value(u"SearchformsColor"));
  } catch (const std::exception&) {
    // The lists keep their default colours; the user is not troubled with it.
  }
}

void SetGridColors(controls::TGridColumns& grid, const TUserGridColor& colors) {
  grid.SetColors(colors.First, colors.Second, colors.Third);
}

}  // namespace mv
