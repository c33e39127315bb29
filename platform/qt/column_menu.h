// The column menu of a list form: one checkable item per field of a dataset, in field order,
// captioned with the field's display label and checked while the field is visible; choosing an
// item shows or hides its field. Each item's object name is a two-character prefix followed by
// the field name ("mi" + "RefNo"), the names by which stored column settings find the items.
#pragma once

#include <QMenu>
#include <QString>
#include <string_view>

#include "platform/db/dataset.h"

namespace mv::qt {

class ColumnMenu : public QMenu {
  Q_OBJECT

 public:
  // `prefix` is the two characters before each field name.
  explicit ColumnMenu(QWidget* parent = nullptr, const QString& prefix = QStringLiteral("mi"));
  ~ColumnMenu() override;

  // Follows `dataset` (not owned; nullptr for none): items come and go as it opens and closes.
  void SetDataSet(db::TMVADODataSet* dataset);
  db::TMVADODataSet* DataSet() const { return dataset_; }
  // The item of field `fieldName` (the dataset's name, without regard to case), or nullptr.
  QAction* ItemOfField(std::string_view fieldName) const;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  // Makes one item per field, in field order; `reorder` false only updates captions and checks
  // (safe while an item is being chosen).
  void Sync(bool reorder);
  void Choose(const QString& fieldName, bool visible);

  db::TMVADODataSet* dataset_ = nullptr;
  db::TDataSetLink link_;
  QString prefix_;
};

}  // namespace mv::qt
