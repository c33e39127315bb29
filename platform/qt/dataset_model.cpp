#include "platform/qt/dataset_model.h"

#include <algorithm>
#include <exception>

#include "platform/codepage/codepage.h"
#include "platform/db/field_types.h"
#include "platform/qt/qt_text.h"

namespace mv::qt {
namespace {

// A value as the grid shows it; a value that cannot be read as text shows nothing rather than
// ending the paint.
QString DisplayText(const db::Variant& value) {
  try {
    return ToQString(value.AsWideString());
  } catch (const std::exception&) {
    return QString();
  }
}

// Sets a flag for the life of the guard, then gives it back its value.
struct FlagGuard {
  explicit FlagGuard(bool& flag) : flag_(flag), old_(flag) { flag_ = true; }
  ~FlagGuard() { flag_ = old_; }
  bool& flag_;
  bool old_;
};

}  // namespace

DataSetModel::DataSetModel(QObject* parent) : QAbstractTableModel(parent) {}

DataSetModel::~DataSetModel() = default;

void DataSetModel::SetDataSet(db::TMVADODataSet* dataset) {
  link_.Reset();
  dataset_ = dataset;
  if (dataset_ != nullptr) {
    link_ = db::TDataSetLink(
        *dataset_, [this](db::TMVADODataSet&, const db::TDataSetChange& c) { Follow(c); });
  }
  Rebuild(true);
  emit currentRowMoved(CurrentRow());
}

db::TField* DataSetModel::FieldOfColumn(int column) const {
  if (Frozen() || column < 0 || static_cast<size_t>(column) >= columns_.size()) return nullptr;
  return columns_[static_cast<size_t>(column)];
}

int DataSetModel::ColumnOfField(QStringView fieldName) const {
  for (size_t i = 0; i < columns_.size(); ++i) {
    const QString name = QString::fromStdString(columns_[i]->FieldName());
    if (name.compare(fieldName, Qt::CaseInsensitive) == 0) return static_cast<int>(i);
  }
  return -1;
}

int DataSetModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : rows_;
}

int DataSetModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

QString DataSetModel::CellText(db::TField& field, int row) const {
  if (!server_) return DisplayText(field.ValueAt(row + 1));
  const std::vector<QString>& texts = readRows_[static_cast<size_t>(row)];
  for (size_t slot = 0; slot < readFields_.size() && slot < texts.size(); ++slot) {
    if (readFields_[slot] == &field) return texts[slot];
  }
  return QString();
}

QVariant DataSetModel::data(const QModelIndex& index, int role) const {
  db::TField* field = FieldOfColumn(index.column());
  if (field == nullptr || index.row() < 0 || index.row() >= rows_) return {};
  if (role == Qt::DisplayRole) {
    ++cellRequests_;
    return CellText(*field, index.row());
  }
  if (role == Qt::TextAlignmentRole) {
    return QVariant::fromValue(
        Qt::AlignVCenter | (db::IsNumericType(field->DataType()) ? Qt::AlignRight : Qt::AlignLeft));
  }
  return {};
}

QVariant DataSetModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation == Qt::Horizontal && role == Qt::DisplayRole) {
    db::TField* field = FieldOfColumn(section);
    if (field == nullptr) return {};
    return ToQString(codepage::ToWide(field->DisplayLabel(), codepage::UserCodePage()));
  }
  return QAbstractTableModel::headerData(section, orientation, role);
}

bool DataSetModel::canFetchMore(const QModelIndex& parent) const {
  return !parent.isValid() && server_ && !Frozen() && dataset_ != nullptr && !dataset_->Eof();
}

void DataSetModel::fetchMore(const QModelIndex& parent) {
  if (!canFetchMore(parent)) return;
  const FlagGuard guard(moving_);
  const int before = rows_;
  const size_t target = readRows_.size() + static_cast<size_t>(fetchBlock_);
  // The cursor stays on the last row read, so that the dataset's current row is one the user
  // can see; the next block starts by moving past it.
  while (readRows_.size() < target && !dataset_->Eof()) {
    if (static_cast<size_t>(dataset_->RecNo()) > readRows_.size()) {
      KeepServerRow();
    } else {
      dataset_->Next();
    }
  }
  if (static_cast<int>(readRows_.size()) == before) return;
  beginInsertRows({}, before, static_cast<int>(readRows_.size()) - 1);
  rows_ = static_cast<int>(readRows_.size());
  endInsertRows();
}

void DataSetModel::KeepServerRow() {
  for (int i = 0; i < dataset_->FieldCount(); ++i) {
    db::TField* field = &dataset_->Fields(i);
    if (std::find(readFields_.begin(), readFields_.end(), field) == readFields_.end()) {
      readFields_.push_back(field);
    }
  }
  // Rows the cursor went past unseen (while controls were disabled) stay empty.
  readRows_.resize(static_cast<size_t>(dataset_->RecNo()) - 1);
  std::vector<QString> texts;
  texts.reserve(readFields_.size());
  for (db::TField* field : readFields_) texts.push_back(DisplayText(field->Value()));
  readRows_.push_back(std::move(texts));
}

void DataSetModel::Rebuild(bool dropReadRows) {
  beginResetModel();
  columns_.clear();
  server_ = dataset_ != nullptr && dataset_->Active() && dataset_->RecordCount() < 0;
  if (dataset_ != nullptr && dataset_->Active()) {
    for (int i = 0; i < dataset_->FieldCount(); ++i) {
      if (dataset_->Fields(i).Visible()) columns_.push_back(&dataset_->Fields(i));
    }
  }
  if (dropReadRows || !server_) {
    readRows_.clear();
    readFields_.clear();
  }
  rows_ = server_ ? static_cast<int>(readRows_.size())
                  : (dataset_ != nullptr ? dataset_->RecordCount() : 0);
  endResetModel();
  emit columnsRebuilt();
}

bool DataSetModel::ReadFieldsAlive() const {
  for (const db::TField* read : readFields_) {
    bool alive = false;
    for (int i = 0; !alive && i < dataset_->FieldCount(); ++i) alive = &dataset_->Fields(i) == read;
    if (!alive) return false;
  }
  return true;
}

int DataSetModel::CurrentRow() const {
  if (dataset_ == nullptr || dataset_->RecNo() < 1) return -1;
  const int row = dataset_->RecNo() - 1;
  return row < rows_ ? row : -1;
}

bool DataSetModel::MoveDataSetTo(int row) {
  // Views move their current row themselves while rows come and go; the dataset moved first.
  if (following_ || dataset_ == nullptr || row < 0 || row >= rows_) return false;
  if (!server_ && dataset_->RecNo() != row + 1) {
    const FlagGuard guard(moving_);
    dataset_->SetRecNo(row + 1);
  }
  return dataset_->RecNo() == row + 1;
}

void DataSetModel::Follow(const db::TDataSetChange& change) {
  const FlagGuard guard(following_);
  switch (change.Event) {
    case db::deDestroying:
      link_.Reset();
      dataset_ = nullptr;
      Rebuild(true);
      return;
    case db::deOpened:
    case db::deRefreshed:
    case db::deClosed:
      Rebuild(true);
      break;
    case db::deDataSetChanged:
      // A server cursor still at or past the rows read, with the same fields, has not started
      // again.
      Rebuild(!ReadFieldsAlive() || (dataset_->RecNo() != 0 &&
                                     static_cast<size_t>(dataset_->RecNo()) < readRows_.size()));
      break;
    case db::deLayoutChanged:
      Rebuild(false);
      break;
    case db::deRecordMoved:
      if (moving_) return;
      break;
    case db::deRecordChanged:
      if (server_ && CurrentRow() >= 0) {
        readRows_.resize(static_cast<size_t>(CurrentRow()));
        KeepServerRow();
      }
      if (CurrentRow() >= 0) {
        emit dataChanged(index(CurrentRow(), 0), index(CurrentRow(), columnCount() - 1));
      }
      return;
    case db::deRowInserted:
      beginInsertRows({}, change.RecNo - 1, change.RecNo - 1);
      ++rows_;
      endInsertRows();
      break;
    case db::deRowDeleted:
      if (change.RecNo < 1 || change.RecNo > rows_) break;  // a row the grid had not read
      beginRemoveRows({}, change.RecNo - 1, change.RecNo - 1);
      if (server_) readRows_.erase(readRows_.begin() + (change.RecNo - 1));
      --rows_;
      endRemoveRows();
      break;
  }
  if (server_ && !moving_ && !dataset_->Eof() &&
      static_cast<size_t>(dataset_->RecNo()) > readRows_.size()) {
    const int before = rows_;
    KeepServerRow();
    beginInsertRows({}, before, static_cast<int>(readRows_.size()) - 1);
    rows_ = static_cast<int>(readRows_.size());
    endInsertRows();
  }
  emit currentRowMoved(CurrentRow());
}

}  // namespace mv::qt
