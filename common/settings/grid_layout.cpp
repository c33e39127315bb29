// Grid layouts and sort orders in the signed-in user's Preference text.
#include "common/settings/grid_layout.h"

#include <exception>

#include "common/datasets/apply_modes.h"
#include "common/settings/comma_items_p.h"
#include "common/settings/preference_text.h"
#include "common/settings/user_row_p.h"
#include "common/text/lang_changer.h"
#include "platform/codepage/codepage.h"
#include "platform/db/dataset.h"

namespace mv {
namespace {

// A layout is saved through the user's whole row, which the table's key names.
constexpr std::string_view kSelectUserRow = "Select * from sysuser where userid=:puserid";
constexpr std::u16string_view kSortItem = u"QOrder,,";

std::u16string UserText(std::string_view narrow) {
  return codepage::ToWide(narrow, codepage::UserCodePage());
}

std::u16string Decimal(int value) {
  return codepage::WideFromUtf8(std::to_string(value));
}

// Raised when a layout is saved or restored for a dataset that is not open.
void CheckOpen(const db::TMVADODataSet& dataSet) {
  if (!dataSet.Active())
    throw ESettingsError(LangChanger().CStrW("Internal Error", "系統內在錯誤"));
}

// The sort index of a layout value, 1 when it has none.
int SortIndexOf(std::u16string_view value) {
  const size_t sortItem = value.find(kSortItem);
  if (sortItem == std::u16string_view::npos) return 1;
  std::u16string rest(value.substr(sortItem + kSortItem.size()));
  return WholeNumber(TakeCommaItem(rest)).value_or(1);
}

}  // namespace

void SaveDlgSetting(std::u16string_view key, db::TMVADODataSet& dataSet,
                    const controls::TGridColumns& grid, int sortIndex) {
  try {
    TUserRow row(ApplyWrite, kSelectUserRow);
    if (!row.Found()) return;
    CheckOpen(dataSet);
    std::u16string setting;
    GetColumnSetting(dataSet, setting, grid);
    setting += std::u16string(kSortItem) + Decimal(sortIndex) + u",";
    TPreferenceText text(row.Preference());
    text.SetValue(key, setting);
    row.WritePreference(text.Text());
  } catch (const std::exception& error) {
    ShowSettingsError(
        LangChanger().CStrW("Error in updating column display setting.", "記錄欄格設定發生錯誤") +
            u"\r\n",
        error);
  }
}

void SaveDlgSetting(std::string_view key, db::TMVADODataSet& dataSet,
                    const controls::TGridColumns& grid, int sortIndex) {
  SaveDlgSetting(UserText(key), dataSet, grid, sortIndex);
}

void GetDlgSetting(std::u16string_view key, db::TMVADODataSet& dataSet,
                   controls::TMenuItems& popupMenu, controls::TGridColumns& grid) {
  try {
    TUserRow row(ApplyRead, kSelectUserPreference);
    if (row.RecordCount() <= 0) return;
    CheckOpen(dataSet);
    const std::u16string value = TPreferenceText(row.Preference()).Value(key);
    if (!value.empty()) SetColumnSetting(dataSet, value, popupMenu, grid);
  } catch (const std::exception& error) {
    ShowSettingsError(
        LangChanger().CStrW("Error in updating column display setting.", "讀取欄格設定發生錯誤") +
            u"\r\n",
        error);
  }
}

void GetDlgSetting(std::string_view key, db::TMVADODataSet& dataSet,
                   controls::TMenuItems& popupMenu, controls::TGridColumns& grid) {
  GetDlgSetting(UserText(key), dataSet, popupMenu, grid);
}

int GetQuickSortOrder(std::u16string_view key) {
  try {
    TUserRow row(ApplyRead, kSelectUserPreference);
    if (row.RecordCount() <= 0) return 1;
    return SortIndexOf(TPreferenceText(row.Preference()).Value(key));
  } catch (const std::exception& error) {
    ShowSettingsError(LangChanger().CStrW("Error in updating column display sort order.",
                                          "讀取欄格排序設定發生錯誤") +
                          u"\r\n",
                      error);
    return 1;
  }
}

int GetQuickSortOrder(std::string_view key) {
  return GetQuickSortOrder(UserText(key));
}

}  // namespace mv
