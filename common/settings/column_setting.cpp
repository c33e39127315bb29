// The column part of a grid layout: written from a dataset and its grid, applied back to them.
#include "common/settings/comma_items_p.h"
#include "common/settings/grid_layout.h"
#include "platform/codepage/codepage.h"
#include "platform/db/dataset.h"

namespace mv {
namespace {

// The column width stored for `field`: that of the first grid column bound to it, else 0.
int StoredWidth(const db::TField& field, const controls::TGridColumns& grid) {
  const int column = grid.FindColumn(field.FieldName());
  return column < 0 ? 0 : grid.ColumnWidth(column);
}

// One triple of a stored layout, read at `position`.
struct TColumnTriple {
  std::u16string name, visible, width;
};

void ApplyTriple(db::TMVADODataSet& dataSet, const TColumnTriple& triple, int position,
                 controls::TGridColumns& grid) {
  db::TField* field = dataSet.FindField(codepage::Utf8FromWide(triple.name));
  if (!field) return;
  field->SetIndex(position);
  field->SetVisible(triple.visible == u"1");
  const std::optional<int32_t> width = WholeNumber(triple.width);
  if (!width) return;  // the field keeps its new place and visibility
  const int column = grid.FindColumn(field->FieldName());
  if (column >= 0) grid.SetColumnWidth(column, *width);
}

// `name` without its first two characters (UTF-8 sequences, a stray byte counting as one).
std::string_view WithoutPrefix(std::string_view name) {
  size_t at = 0;
  for (int skipped = 0; skipped < 2 && at < name.size(); ++skipped) {
    ++at;
    while (at < name.size() && (static_cast<unsigned char>(name[at]) & 0xC0) == 0x80) ++at;
  }
  return name.substr(at);
}

void CheckMenuItems(db::TMVADODataSet& dataSet, controls::TMenuItems& popupMenu) {
  for (int item = 0; item < popupMenu.Count(); ++item) {
    const db::TField* field = dataSet.FindField(WithoutPrefix(popupMenu.Name(item)));
    popupMenu.SetChecked(item, field != nullptr && field->Visible());
  }
}

// Enables the dataset's disabled controls while it lives, so that the grid follows the columns
// being set, and disables them again when it goes, also after an error.
class TControlsFollowing {
 public:
  explicit TControlsFollowing(db::TMVADODataSet& dataSet)
      : dataSet_(dataSet), wasDisabled_(dataSet.ControlsDisabled()) {
    if (wasDisabled_) dataSet_.EnableControls();
  }
  ~TControlsFollowing() {
    if (wasDisabled_) dataSet_.DisableControls();
  }
  TControlsFollowing(const TControlsFollowing&) = delete;
  TControlsFollowing& operator=(const TControlsFollowing&) = delete;

 private:
  db::TMVADODataSet& dataSet_;
  bool wasDisabled_;
};

}  // namespace

void GetColumnSetting(db::TMVADODataSet& dataSet, std::u16string& setting,
                      const controls::TGridColumns& grid) {
  setting.clear();
  for (int i = 0; i < dataSet.FieldCount(); ++i) {
    const db::TField& field = dataSet.Fields(i);
    setting += codepage::WideFromUtf8(field.FieldName()) + u",";
    setting += field.Visible() ? u"1," : u"0,";
    setting += codepage::WideFromUtf8(std::to_string(StoredWidth(field, grid))) + u",";
  }
}

void GetColumnSetting(db::TMVADODataSet& dataSet, std::string& setting,
                      const controls::TGridColumns& grid) {
  std::u16string wide;
  GetColumnSetting(dataSet, wide, grid);
  setting = codepage::FromWide(wide, codepage::UserCodePage());
}

void SetColumnSetting(db::TMVADODataSet& dataSet, std::u16string_view setting,
                      controls::TMenuItems& popupMenu, controls::TGridColumns& grid) {
  TControlsFollowing following(dataSet);
  std::u16string rest(setting);
  for (int position = 0; !rest.empty(); ++position) {
    TColumnTriple triple;
    triple.name = TakeCommaItem(rest);
    triple.visible = TakeCommaItem(rest);
    triple.width = TakeCommaItem(rest);
    ApplyTriple(dataSet, triple, position, grid);
    if (rest.find(u',') == std::u16string::npos) break;
  }
  CheckMenuItems(dataSet, popupMenu);
}

void SetColumnSetting(db::TMVADODataSet& dataSet, std::string_view setting,
                      controls::TMenuItems& popupMenu, controls::TGridColumns& grid) {
  SetColumnSetting(dataSet, codepage::ToWide(setting, codepage::UserCodePage()), popupMenu, grid);
}

}  // namespace mv
