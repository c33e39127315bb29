#include "platform/qt/qt_grid_columns.h"

#include "platform/qt/grid_colors.h"

namespace mv::qt {

int QtGridColumns::FindColumn(std::string_view fieldName) const {
  return grid_ ? grid_->FindColumn(fieldName) : -1;
}

int QtGridColumns::ColumnWidth(int column) const {
  return grid_ ? grid_->ColumnWidth(grid_->ColumnFieldName(column)) : 0;
}

void QtGridColumns::SetColumnWidth(int column, int width) {
  if (grid_) grid_->SetColumnWidth(grid_->ColumnFieldName(column), width);
}

void QtGridColumns::SetColors(controls::TColor first, controls::TColor second,
                              controls::TColor third) {
  if (grid_) ApplyGridColors(*grid_, first, second, third);
}

}  // namespace mv::qt
