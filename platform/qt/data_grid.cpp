#include "platform/qt/data_grid.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <exception>

#include "platform/qt/column_menu.h"
#include "platform/qt/dataset_model.h"

namespace mv::qt {
namespace {

QString Key(std::string_view fieldName) {
  return QString::fromUtf8(fieldName.data(), static_cast<qsizetype>(fieldName.size())).toLower();
}

}  // namespace

DataGrid::DataGrid(QWidget* parent)
    : QTableView(parent), model_(new DataSetModel(this)), menu_(new ColumnMenu(this)) {
  setModel(model_);
  setAccessibleName(tr("Data grid"));
  setSelectionBehavior(SelectRows);
  setSelectionMode(SingleSelection);
  setEditTriggers(NoEditTriggers);
  setWordWrap(false);
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
  horizontalHeader()->setSectionsMovable(false);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(horizontalHeader(), &QHeaderView::customContextMenuRequested, this,
          [this](const QPoint& pos) { ShowColumnMenu(horizontalHeader()->mapToGlobal(pos)); });
  connect(horizontalHeader(), &QHeaderView::sectionResized, this,
          [this](int column, int, int width) { RememberWidth(column, width); });
  connect(model_, &QAbstractItemModel::modelAboutToBeReset, this, [this] { resetting_ = true; });
  connect(model_, &DataSetModel::columnsRebuilt, this, [this] {
    ApplyWidths();
    resetting_ = false;
  });
  connect(model_, &DataSetModel::currentRowMoved, this, [this](int row) { SelectRow(row); });
}

DataGrid::~DataGrid() = default;

void DataGrid::SetDataSet(db::TMVADODataSet* dataset) {
  menu_->SetDataSet(dataset);
  model_->SetDataSet(dataset);
}

db::TMVADODataSet* DataGrid::DataSet() const {
  return model_->DataSet();
}

int DataGrid::ColumnCount() const {
  return model_->columnCount();
}

int DataGrid::FindColumn(std::string_view fieldName) const {
  return model_->ColumnOfField(Key(fieldName));
}

std::string DataGrid::ColumnFieldName(int column) const {
  const db::TField* field = model_->FieldOfColumn(column);
  return field != nullptr ? field->FieldName() : std::string();
}

int DataGrid::ColumnWidth(std::string_view fieldName) const {
  const int column = FindColumn(fieldName);
  return column < 0 ? 0 : columnWidth(column);
}

bool DataGrid::SetColumnWidth(std::string_view fieldName, int width) {
  db::TMVADODataSet* dataset = DataSet();
  if (dataset == nullptr || dataset->FindField(fieldName) == nullptr) return false;
  if (width < 1) return true;
  widths_[Key(fieldName)] = width;
  const int column = FindColumn(fieldName);
  if (column >= 0) setColumnWidth(column, width);
  return true;
}

void DataGrid::RememberWidth(int column, int width) {
  if (resetting_ || width < 1) return;
  const db::TField* field = model_->FieldOfColumn(column);
  if (field != nullptr) widths_[Key(field->FieldName())] = width;
}

// Every column takes the width its field had; a field never sized gets room for its caption and
// the values of the rows on screen (up to a limit), so also a column shown again after Qt
// collapsed it is usable.
void DataGrid::ApplyWidths() {
  QHeaderView* header = horizontalHeader();
  const int widest = std::max(header->defaultSectionSize(), viewport()->width() / 2);
  for (int column = 0; column < model_->columnCount(); ++column) {
    const db::TField* field = model_->FieldOfColumn(column);
    if (field == nullptr) return;  // controls disabled: the widths come with the catch-up
    const auto known = widths_.find(Key(field->FieldName()));
    int width = known != widths_.end() ? known->second : 0;
    if (width < 1) {
      width = std::max({header->defaultSectionSize(), header->sectionSizeHint(column),
                        std::min(sizeHintForColumn(column), widest)});
    }
    setColumnHidden(column, false);
    setColumnWidth(column, width);
  }
}

void DataGrid::SelectRow(int row) {
  selecting_ = true;
  if (row < 0) {
    selectionModel()->clearCurrentIndex();
    clearSelection();
  } else {
    const QModelIndex target = model_->index(row, std::max(currentIndex().column(), 0));
    selectionModel()->setCurrentIndex(
        target, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    scrollTo(target);
  }
  selecting_ = false;
}

void DataGrid::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTableView::currentChanged(current, previous);
  if (selecting_ || !current.isValid() || current.row() == previous.row()) return;
  try {
    model_->MoveDataSetTo(current.row());
  } catch (const std::exception&) {
    // The dataset refused to leave its row (an edit that cannot be posted): the grid stays on it.
    QMetaObject::invokeMethod(
        this, [this] { SelectRow(model_->CurrentRow()); }, Qt::QueuedConnection);
  }
}

// Home and End go to the first and last row (of a server cursor: the last row read, and the view
// reads the next block once the last row is current).
QModelIndex DataGrid::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
  const int column = std::max(currentIndex().column(), 0);
  if (action == MoveHome) return model_->index(0, column);
  if (action == MoveEnd) return model_->index(model_->rowCount() - 1, column);
  return QTableView::moveCursor(action, modifiers);
}

void DataGrid::keyPressEvent(QKeyEvent* event) {
  const bool menuKey = event->key() == Qt::Key_Menu ||
                       (event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier);
  if (!menuKey) {
    QTableView::keyPressEvent(event);
    return;
  }
  const int column = std::max(currentIndex().column(), 0);
  const QPoint below(horizontalHeader()->sectionViewportPosition(column),
                     horizontalHeader()->height());
  ShowColumnMenu(horizontalHeader()->mapToGlobal(below));
  event->accept();
}

void DataGrid::ShowColumnMenu(const QPoint& globalPos) {
  menu_->popup(globalPos);
  if (!menu_->actions().isEmpty()) menu_->setActiveAction(menu_->actions().first());
}

}  // namespace mv::qt
