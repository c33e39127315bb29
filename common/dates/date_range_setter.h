// The one list of period presets that every screen of the running client shares. It keeps the
// presets sorted and free of duplicates, loads them from the signed-in user's preference
// "PeriodPreset", and tells every registered UI link (ui_link.h) when the list changes.
//
// It exists only while at least one link uses it: the first GetInstance makes it, the
// UI_Link_Free that empties the link registry frees it with all its presets, so the next link
// reads them from the preferences again.
//
// Order of the list: by unit (day, week, month, year), then by count ascending, so the
// all-dates preset -1D comes first. Stored form ("PeriodPreset"): the text forms of the presets
// in list order joined by "#", e.g. the defaults -1D#1W#1M#3M#6M#1Y; the empty text means no list
// is stored.
//
// The list owns its presets; links and other callers hold borrowed pointers, valid until the
// preset is deleted (DeleteDateParamIndex) or the list replaced (AssignUserDefined). A link whose
// Selection is a preset being freed is left with no selection. A link must not be freed while
// it is being told of a change. User-interface thread only.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "common/dates/date_param.h"

namespace mv {

class TUI_Link;

class TDateRangeSetter {
 public:
  ~TDateRangeSetter();
  TDateRangeSetter(const TDateRangeSetter&) = delete;
  TDateRangeSetter& operator=(const TDateRangeSetter&) = delete;

  // The shared list, made on first use from the user's "PeriodPreset" (the six defaults when the
  // user has none). Registers `link` (once, however often it asks) at the end of the registry.
  static TDateRangeSetter* GetInstance(TUI_Link* link);
  // The shared list when it exists, else nullptr; registers nothing.
  static TDateRangeSetter* Current();
  // Re-reads "PeriodPreset" into the shared list and makes every link re-read its own stored
  // choice: every link's Selection is cleared first, then the list is replaced, then each link's
  // Reload runs in registration order. Does nothing when there is no shared list.
  static void Reload();

  // Removes every registration of `link` (without freeing it). When no link is left the shared
  // list is freed: this object must not be used after that.
  void UI_Link_Free(TUI_Link* link);

  // The registered links, in order of registration.
  const std::vector<TUI_Link*>& UILinks() const { return links_; }

  // The number of presets, and preset `index` (0-based); EListError "List index out of bounds
  // (N)" for an index outside the list.
  int Count() const { return static_cast<int>(params_.size()); }
  TDateParam* GetDateParam(int index) const;
  // The position of `param` in the list (the very object, not a match); -1 when it is not there.
  int IndexOfDateParam(const TDateParam* param) const;

  // The listed preset that matches (TDateParam::Match) count and unit, or a new one with these
  // values inserted at its sorted place; a found preset keeps its own Locked. Every link is told
  // (UpdateUserDefined, in registration order), whether or not the preset was new. Throws
  // std::out_of_range, changing nothing, for a unit that is none of the four.
  TDateParam* CreateDateParam(int32_t count, TTimeUnit unit, bool locked);
  // CreateDateParam of the preset that `text` writes (ParseDateParam: the empty text and any
  // unreadable one give the all-dates preset, locked).
  TDateParam* CreateDateParamFromString(std::string_view text);
  // Inserts `param` before the first preset of a greater unit, or of the same unit and a greater
  // count; at the end when there is none. No duplicate test and no notice.
  void AddDateParam(std::unique_ptr<TDateParam> param);
  // The listed preset that matches `param` (the last match if the list held several); nullptr
  // when none does.
  TDateParam* DateParamExist(const TDateParam& param) const;
  // Deletes preset `index` unless it is Locked (then nothing happens). The preset leaves the list,
  // every link is told, and only then is it freed. EListError for an index outside the list.
  void DeleteDateParamIndex(int index);
  // Sets every preset's Locked flag afresh: locked are the all-dates presets (count -1) and the
  // Selection of every registered link other than `link1` and `link2` (either may be nullptr).
  void CheckItemCanDelete(const TUI_Link* link1, const TUI_Link* link2);

  // The stored form of the list ("" when it is empty).
  std::string GetUserDefined() const;
  // Replaces the list by the presets of `text`, the stored form: the pieces between "#" (line
  // breaks also separate) that are not blank, each read as CreateDateParamFromString reads it,
  // so duplicates collapse and an unreadable piece becomes the all-dates preset. The empty text
  // gives the defaults, in this order: -1D (locked), 1W, 1M, 3M, 6M, 1Y. Every preset made tells
  // the links, as CreateDateParam does; there is no further notice.
  void AssignUserDefined(std::string_view text);

 private:
  TDateRangeSetter();
  TDateParam* UseOrAdd(const TDateParam& param);
  void NotifyLinks();
  void ForgetSelection(const TDateParam* param);

  std::vector<TUI_Link*> links_;
  std::vector<std::unique_ptr<TDateParam>> params_;
};

// The preference key of the stored preset list.
inline constexpr std::string_view kPeriodPresetKey = "PeriodPreset";

}  // namespace mv
