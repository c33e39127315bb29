// Grid layouts of the list forms, kept per user as entries of the Preference text (see
// user_preference.h): the order, visibility and width of a grid's columns and the form's quick
// sort order. The value of a layout entry lists, for every field of the grid's dataset in the
// dataset's order, its name, "1" or "0" for visible or hidden and the width of the grid column
// bound to it, then the sort item "QOrder", "" and the sort index, every item followed by ",":
//
//   RefNo,1,80,Sender,0,120,QOrder,,2,
//
// The sort item has the shape of a column triple, so that restoring a layout reads it as one more
// triple and skips it: the dataset has no field "QOrder".
//
// Errors of SaveDlgSetting, GetDlgSetting and GetQuickSortOrder never reach the caller: each is
// shown in an error box (error icon, OK button) reading heading, CR LF, "Reason : " / "原因 : "
// and the error's message, in the current language:
//   SaveDlgSetting    "Error in updating column display setting." / "記錄欄格設定發生錯誤"
//   GetDlgSetting     "Error in updating column display setting." / "讀取欄格設定發生錯誤"
//   GetQuickSortOrder "Error in updating column display sort order." / "讀取欄格排序設定發生錯誤"
// A dataset that is not open when a layout is saved or restored for a user who has a row is such
// an error, its message "Internal Error" / "系統內在錯誤"; nothing is written or changed then.
#pragma once

#include <string>
#include <string_view>

#include "platform/controls/grid_columns.h"
#include "platform/controls/menu_items.h"

namespace mv::db {
class TMVADODataSet;
}

namespace mv {

// Stores entry `key` of the signed-in user: the layout of `dataSet` shown in `grid`, with sort
// index `sortIndex`. Other entries keep their places; a user without a sysuser row gets none and
// no message. A narrow key is in the user's code page.
void SaveDlgSetting(std::string_view key, db::TMVADODataSet& dataSet,
                    const controls::TGridColumns& grid, int sortIndex);
void SaveDlgSetting(std::u16string_view key, db::TMVADODataSet& dataSet,
                    const controls::TGridColumns& grid, int sortIndex);

// Restores entry `key` of the signed-in user onto `dataSet`, `grid` and `popupMenu` as
// SetColumnSetting does. An absent or empty entry, or a user without a row, leaves all three as
// they are. A narrow key is in the user's code page.
void GetDlgSetting(std::string_view key, db::TMVADODataSet& dataSet,
                   controls::TMenuItems& popupMenu, controls::TGridColumns& grid);
void GetDlgSetting(std::u16string_view key, db::TMVADODataSet& dataSet,
                   controls::TMenuItems& popupMenu, controls::TGridColumns& grid);

// Sets `setting` to the column part of a layout entry: for every field of `dataSet` in its order,
// name, "1" / "0" and the width of the first grid column bound to it (0 when none), each item
// followed by ",". Empty for a closed dataset. The narrow form holds the names in the user's
// code page ("?" for characters it lacks).
void GetColumnSetting(db::TMVADODataSet& dataSet, std::string& setting,
                      const controls::TGridColumns& grid);
void GetColumnSetting(db::TMVADODataSet& dataSet, std::u16string& setting,
                      const controls::TGridColumns& grid);

// Applies the layout value `setting` (narrow: the user's code page). Its triples are read in
// order, the n-th (from 0) giving position n: a field of that name (without regard to case) moves
// to that index and is shown exactly when its visibility item is "1"; its width item, when it is
// a whole number, becomes the width of the grid column bound to the field, and is ignored
// silently otherwise. A triple naming no field (the sort item, a field the dataset lost) still
// takes its position. Reading stops when no "," is left, so a last triple without its final ","
// is applied, while a lone name after the last "," is not. Then every item of `popupMenu` whose
// name, without its first two characters, is a field's name is checked exactly when that field is
// visible; every other item is unchecked. When the dataset's controls are disabled, they are
// enabled once while the columns are set, so that the grid follows, and disabled once again
// afterwards, also after an error. Errors reach the caller.
void SetColumnSetting(db::TMVADODataSet& dataSet, std::string_view setting,
                      controls::TMenuItems& popupMenu, controls::TGridColumns& grid);
void SetColumnSetting(db::TMVADODataSet& dataSet, std::u16string_view setting,
                      controls::TMenuItems& popupMenu, controls::TGridColumns& grid);

// The sort index stored in layout entry `key` of the signed-in user: the whole number after the
// first "QOrder,," of its value, up to the next ","; 1 when the entry, the sort item or the user's
// row is missing or the number is not a whole number. A narrow key is in the user's code page.
[[nodiscard]] int GetQuickSortOrder(std::string_view key);
[[nodiscard]] int GetQuickSortOrder(std::u16string_view key);

}  // namespace mv
