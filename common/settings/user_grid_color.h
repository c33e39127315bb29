// The signed-in user's colours of the four message lists, kept as entries of the Preference text
// (see user_preference.h): "InboxColor", "OutboxColor", "SentboxColor" and "SearchformsColor",
// each three whole numbers, every one followed by ",". A system colour (0xFF000000 plus its
// index) may be stored as the signed number of its bits (-16777211 for the window colour) or as
// the unsigned one (4278190085).
#pragma once

#include "platform/controls/grid_columns.h"

namespace mv {

// The three colours of one list, in the order the entry stores them; a grid paints them as
// controls::TGridColumns::SetColors documents.
struct TUserGridColor {
  controls::TColor First;
  controls::TColor Second;
  controls::TColor Third;
  friend bool operator==(const TUserGridColor&, const TUserGridColor&) = default;
};

// The colours of a list whose entry is missing or unreadable: 0xE9D2C9, the system window colour
// 0xFF000005 and 0xF8F4ED.
inline constexpr TUserGridColor kDefaultUserGridColor{0xE9D2C9, 0xFF000005, 0xF8F4ED};

// Fills the four records from the signed-in user's entries. A record whose entry is empty or
// missing, or holds an item that is not a whole number (an empty third item included), gets
// kDefaultUserGridColor whole; a user without a row, or a database error, gives the defaults to
// all four. Never shows a message.
void GetUserColor(TUserGridColor& inbox, TUserGridColor& outbox, TUserGridColor& sentbox,
                  TUserGridColor& searchforms);

// Gives `grid` the three colours of `colors`.
void SetGridColors(controls::TGridColumns& grid, const TUserGridColor& colors);

}  // namespace mv
