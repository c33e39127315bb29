// The data-aware grid: a table view over a dataset (DataSetModel) that shows its visible fields
// in field order under their display labels, follows the dataset as it opens, refreshes, closes
// and moves, and moves the dataset's current row when the user selects a row. Each column is
// bound to its field by name, so a column's width belongs to the field and survives the field
// being moved, hidden and shown again. The column menu opens from the header (right click) and
// from the keyboard (the menu key or Shift+F10).
#pragma once

#include <QTableView>
#include <map>
#include <string>
#include <string_view>

#include "platform/db/dataset.h"

namespace mv::qt {

class ColumnMenu;
class DataSetModel;

class DataGrid : public QTableView {
  Q_OBJECT

 public:
  explicit DataGrid(QWidget* parent = nullptr);
  ~DataGrid() override;

  // Shows `dataset` (not owned; nullptr for none). A dataset destroyed first leaves the grid
  // empty.
  void SetDataSet(db::TMVADODataSet* dataset);
  db::TMVADODataSet* DataSet() const;
  DataSetModel* Model() const { return model_; }
  // The menu that switches the dataset's fields on and off.
  ColumnMenu* Columns() const { return menu_; }

  // The number of columns: the dataset's visible fields.
  int ColumnCount() const;
  // The column bound to field `fieldName` (the dataset's field name, without regard to case),
  // or -1 when the field has none (no such field, or hidden).
  int FindColumn(std::string_view fieldName) const;
  // The name of the field bound to column `column`, or "" outside the columns.
  std::string ColumnFieldName(int column) const;
  // The width in pixels of the column bound to `fieldName`; 0 when it has no column.
  int ColumnWidth(std::string_view fieldName) const;
  // Sets the width of the column bound to `fieldName`; a hidden field keeps it for when it is
  // shown. A width below 1 is ignored (a column always stays usable). False when the dataset
  // has no such field.
  bool SetColumnWidth(std::string_view fieldName, int width);

  // Opens the column menu at `globalPos` (screen coordinates); it closes by itself.
  void ShowColumnMenu(const QPoint& globalPos);

 protected:
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
  void keyPressEvent(QKeyEvent* event) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

 private:
  void ApplyWidths();
  void RememberWidth(int column, int width);
  void SelectRow(int row);

  DataSetModel* model_;
  ColumnMenu* menu_;
  std::map<QString, int> widths_;  // by field name in lower case
  bool resetting_ = false;         // the model is building its columns again
  bool selecting_ = false;         // the grid follows the dataset's row
};

}  // namespace mv::qt
