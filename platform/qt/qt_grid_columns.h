// The columns of the data-aware grid as the settings routines see them: the grid's columns of
// the visible fields, widths kept by field, and the three row colours (see grid_colors.h).
#pragma once

#include <QPointer>

#include "platform/controls/grid_columns.h"
#include "platform/qt/data_grid.h"

namespace mv::qt {

class QtGridColumns : public controls::TGridColumns {
 public:
  // The grid is not owned; once it is destroyed it has no columns.
  explicit QtGridColumns(DataGrid* grid) : grid_(grid) {}

  // The column of a visible field; a hidden field has none, so a layout stores 0 as its width
  // and restoring one gives it no width (it keeps the one it had when it is shown again).
  int FindColumn(std::string_view fieldName) const override;
  int ColumnWidth(int column) const override;
  // A width below 1 is ignored: a column always stays usable.
  void SetColumnWidth(int column, int width) override;
  // First: the selected rows' background; second: the rows'; third: every other row's.
  void SetColors(controls::TColor first, controls::TColor second, controls::TColor third) override;

 private:
  QPointer<DataGrid> grid_;
};

}  // namespace mv::qt
