// A table model over a dataset: one column per visible field in the dataset's field order, one
// row per row of the dataset, read from the dataset as a view asks and never copied, apart from
// the rows a forward-only (server) cursor has already gone past.
#pragma once

#include <QAbstractTableModel>
#include <QString>
#include <vector>

#include "platform/db/dataset.h"

namespace mv::qt {

class DataSetModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  explicit DataSetModel(QObject* parent = nullptr);
  ~DataSetModel() override;

  // Follows `dataset` (not owned; nullptr for none). The model lets go of a dataset that is
  // destroyed first.
  void SetDataSet(db::TMVADODataSet* dataset);
  db::TMVADODataSet* DataSet() const { return dataset_; }

  // The field shown in column `column`, or nullptr outside the columns and while the dataset's
  // controls are disabled (its fields may be gone until they are enabled again).
  db::TField* FieldOfColumn(int column) const;
  // The column of the visible field `fieldName` (without regard to case), or -1.
  int ColumnOfField(QStringView fieldName) const;

  // Rows a server cursor reads each time the view asks for more (at least 1; 64 until set).
  void SetFetchBlock(int rows) { fetchBlock_ = rows < 1 ? 1 : rows; }
  // How many cell values views have asked for since the last reset of the count; it shows how
  // many cells a paint touches.
  long long CellRequests() const { return cellRequests_; }
  void ResetCellRequests() { cellRequests_ = 0; }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  // The display text of a cell: the field's value as wide text (narrow text converted from the
  // user's code page); the full text again as its tool tip.
  QVariant data(const QModelIndex& index, int role) const override;
  // Column captions: the fields' display labels, converted from the user's code page.
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  bool canFetchMore(const QModelIndex& parent) const override;
  void fetchMore(const QModelIndex& parent) override;

  // Makes row `row` (0-based) the dataset's current row where the cursor allows: any row of a
  // client cursor, a row at or ahead of a server cursor's (reading up to it). True when the
  // dataset is on that row afterwards.
  bool MoveDataSetTo(int row);
  // The dataset's current row as a row of the model, or -1.
  int CurrentRow() const;

 signals:
  // The dataset moved to row `row` (0-based; -1 for none) on its own (not through this model).
  void currentRowMoved(int row);
  // The columns were built again (opened, refreshed, a field moved or shown, controls enabled).
  void columnsRebuilt();

 private:
  void Follow(const db::TDataSetChange& change);
  void Rebuild(bool dropReadRows);
  // True while the dataset's controls are disabled: the model shows nothing of it.
  bool Frozen() const { return dataset_ != nullptr && dataset_->ControlsDisabled(); }
  // True when every field the read rows hold is still a field of the dataset.
  bool ReadFieldsAlive() const;
  void KeepServerRow();
  QString CellText(db::TField& field, int row) const;

  db::TMVADODataSet* dataset_ = nullptr;
  db::TDataSetLink link_;
  std::vector<db::TField*> columns_;  // the visible fields in field order
  int rows_ = 0;                      // rows the views know of
  bool server_ = false;
  bool moving_ = false;     // this model is moving the dataset
  bool following_ = false;  // this model is taking in a change of the dataset
  int fetchBlock_ = 64;
  // Server cursor: the texts of the rows read so far, by field in the order `readFields_`.
  std::vector<db::TField*> readFields_;
  std::vector<std::vector<QString>> readRows_;
  mutable long long cellRequests_ = 0;
};

}  // namespace mv::qt
