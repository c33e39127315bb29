#include "platform/db/dataset.h"

#include <QtSql/QSqlRecord>

#include "platform/codepage/codepage.h"
#include "platform/db/connection_qt_p.h"
#include "platform/db/dataset_impl_p.h"
#include "platform/db/dataset_observers_p.h"
#include "platform/db/db_error.h"
#include "platform/db/lock_wait_p.h"
#include "platform/db/qt_values_p.h"
#include "platform/db/row_keys_p.h"
#include "platform/db/run_query_p.h"
#include "platform/db/sql_text_p.h"

namespace mv::db {

TRow ReadRow(const QSqlQuery& query, const std::vector<TFieldType>& types, int codePage) {
  TRow row;
  row.reserve(types.size());
  for (size_t i = 0; i < types.size(); ++i) {
    row.push_back(FromQt(query.value(static_cast<int>(i)), types[i], codePage));
  }
  return row;
}

namespace {

// Runs the dataset's command text; on an editable select from one table with a primary key, with
// the key columns selected first (`keyColumns` set to their number).
QSqlQuery RunSelect(const TMVADODataSet& dataset, const std::u16string& table, size_t& keyColumns) {
  keyColumns = 0;
  if (table.empty() || dataset.ReadOnly()) return RunQuery(dataset, true);
  const std::vector<std::string> keys =
      PrimaryKeyOf(dataset.ConnectionName(), table, dataset.CommandTimeout());
  const std::u16string keyed = WithKeyColumns(dataset.CommandText(), keys);
  if (keyed.empty()) return RunQuery(dataset, true);
  keyColumns = keys.size();
  return RunQuery(dataset, keyed, true);
}

}  // namespace

TMVADODataSet::TMVADODataSet()
    : impl_(std::make_unique<Impl>()), observers_(std::make_shared<TDataSetObservers>(*this)) {}

TMVADODataSet::~TMVADODataSet() {
  controlsDisabled_ = 0;
  Notify(deDestroying, 0);
  observers_->Detach();
}

bool TMVADODataSet::Notify(TDataSetEvent event, int recNo) {
  if (controlsDisabled_ > 0) return true;
  const std::shared_ptr<TDataSetObservers> observers = observers_;  // the dataset may go
  return observers->Notify({event, recNo < 0 ? RecNo() : recNo});
}

void TMVADODataSet::DisableControls() {
  ++controlsDisabled_;
}

void TMVADODataSet::EnableControls() {
  if (controlsDisabled_ == 0) return;
  if (--controlsDisabled_ == 0) Notify(deDataSetChanged);
}

void TMVADODataSet::CheckOpen() const {
  if (impl_->state == dsInactive)
    throw EDatabaseError("Cannot perform this operation on a closed dataset");
}

void TMVADODataSet::Open() {
  if (Active()) return;
  OpenRows();
  if (!Notify(deOpened)) return;
  if (afterOpen_) afterOpen_(*this);
}

void TMVADODataSet::OpenRows() {
  Impl fresh;
  fresh.codePage = codepage::UserCodePage();
  fresh.table = SingleTableOf(PrepareSql(CommandText()).Sql);
  QSqlQuery query = RunSelect(*this, fresh.table, fresh.keyColumns);
  const TBackend backend = Connection(ConnectionName()).Backend;
  const QSqlRecord record = query.record();
  std::vector<TFieldType> declared = DeclaredColumnTypes(ConnectionName(), query);
  for (int i = 0; i < record.count(); ++i) {
    TFieldType type = static_cast<size_t>(i) < declared.size() ? declared[i] : ftUnknown;
    if (type == ftUnknown) type = FieldTypeOfQt(record.field(i), backend);
    fresh.columnTypes.push_back(type);
    fresh.columnNames.push_back(record.fieldName(i).toStdString());
  }
  if (cursorLocation_ == clUseClient) {
    while (query.next()) fresh.rows.push_back(ReadRow(query, fresh.columnTypes, fresh.codePage));
  } else {
    if (query.next()) {
      fresh.rows.push_back(ReadRow(query, fresh.columnTypes, fresh.codePage));
      fresh.serverRecNo = 1;
    }
    fresh.cursor.emplace(std::move(query));
  }
  // Fields made last, so that a failure above leaves the dataset closed.
  for (size_t i = fresh.keyColumns; i < fresh.columnNames.size(); ++i) {
    fresh.fields.emplace_back(
        new TField(*this, static_cast<int>(i), fresh.columnNames[i], fresh.columnTypes[i]));
  }
  fresh.state = dsBrowse;
  *impl_ = std::move(fresh);
}

void TMVADODataSet::Close() {
  const bool wasActive = Active();
  *impl_ = Impl();
  if (wasActive) Notify(deClosed, 0);
}

void TMVADODataSet::Refresh() {
  CheckOpen();
  std::vector<std::unique_ptr<TField>> old = std::move(impl_->fields);
  *impl_ = Impl();
  try {
    OpenRows();
  } catch (...) {
    Notify(deClosed, 0);
    throw;
  }
  KeepFieldSettings(std::move(old));
  if (!Notify(deRefreshed)) return;
  if (afterRefresh_) afterRefresh_(*this);
}

void TMVADODataSet::KeepFieldSettings(std::vector<std::unique_ptr<TField>> old) {
  std::vector<std::unique_ptr<TField>> fresh = std::move(impl_->fields);
  std::vector<std::unique_ptr<TField>> ordered;
  for (auto& field : old) {
    if (field->Calculated()) {
      ordered.push_back(std::move(field));
      continue;
    }
    for (auto& candidate : fresh) {
      if (candidate && candidate->FieldName() == field->FieldName()) {
        candidate->label_ = field->label_;  // the refresh tells its observers once
        candidate->visible_ = field->visible_;
        ordered.push_back(std::move(candidate));
        break;
      }
    }
  }
  for (auto& rest : fresh) {
    if (rest) ordered.push_back(std::move(rest));
  }
  impl_->fields = std::move(ordered);
}

bool TMVADODataSet::Active() const {
  return impl_->state != dsInactive;
}

void TMVADODataSet::SetActive(bool active) {
  active ? Open() : Close();
}

TDataSetState TMVADODataSet::State() const {
  return impl_->state;
}

bool TMVADODataSet::Eof() const {
  if (impl_->state == dsInsert) return false;
  return impl_->current >= impl_->rows.size();
}

bool TMVADODataSet::Bof() const {
  return RecNo() <= 1;
}

void TMVADODataSet::Next() {
  CheckOpen();
  Post();
  if (Eof()) return;
  if (!impl_->cursor) {
    ++impl_->current;
  } else {
    impl_->rows.clear();
    if (impl_->cursor->next()) {
      impl_->rows.push_back(ReadRow(*impl_->cursor, impl_->columnTypes, impl_->codePage));
      ++impl_->serverRecNo;
    }
  }
  Notify(deRecordMoved);
}

void TMVADODataSet::MoveTo(size_t row) {
  if (impl_->current == row) return;
  impl_->current = row;
  Notify(deRecordMoved);
}

void TMVADODataSet::First() {
  CheckOpen();
  Post();
  if (impl_->cursor) {
    if (impl_->serverRecNo > 1 || (impl_->serverRecNo == 1 && impl_->rows.empty())) {
      throw EDatabaseError("Operation is not allowed on a forward-only cursor");
    }
    return;
  }
  MoveTo(0);
}

int TMVADODataSet::RecordCount() const {
  if (!Active()) return 0;
  return impl_->cursor ? -1 : static_cast<int>(impl_->rows.size());
}

int TMVADODataSet::RecNo() const {
  if (Eof()) return 0;
  return impl_->cursor ? impl_->serverRecNo : static_cast<int>(impl_->current) + 1;
}

void TMVADODataSet::SetRecNo(int recNo) {
  CheckOpen();
  if (impl_->cursor) throw EDatabaseError("Operation is not allowed on a forward-only cursor");
  if (recNo < 1 || recNo > RecordCount()) {
    throw EDatabaseError("Record number " + std::to_string(recNo) + " out of bounds");
  }
  Post();
  MoveTo(static_cast<size_t>(recNo - 1));
}

}  // namespace mv::db
