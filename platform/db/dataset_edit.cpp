// Editing a dataset: the row buffer and the statements that write it to its one table.
#include <strings.h>

#include <QtSql/QSqlDriver>

#include "platform/db/connection_qt_p.h"
#include "platform/db/dataset.h"
#include "platform/db/dataset_impl_p.h"
#include "platform/db/db_error.h"
#include "platform/db/lock_wait_p.h"
#include "platform/db/qt_values_p.h"
#include "platform/db/row_keys_p.h"
#include "platform/db/run_query_p.h"

namespace mv::db {
namespace {

// Columns that can name a row in a where clause: no long text, bytes or dates (whose stored
// form may differ from the form read back).
bool Comparable(TFieldType type) {
  switch (type) {
    case ftMemo:
    case ftBytes:
    case ftVarBytes:
    case ftDate:
    case ftTime:
    case ftDateTime:
    case ftUnknown:
      return false;
    default:
      return true;
  }
}

struct TStatement {
  std::u16string Sql;
  std::vector<TBoundValue> Values;
};

TStatement InsertStatement(const std::u16string& table, const TMVADODataSet::Impl& d) {
  TStatement s;
  std::u16string columns, places;
  for (size_t i = 0; i < d.buffer.size(); ++i) {
    if (!d.assigned[i]) continue;
    columns += (columns.empty() ? u"" : u", ") + QuotedName(d.columnNames[i]);
    places += places.empty() ? u"?" : u", ?";
    s.Values.push_back({d.buffer[i], d.columnTypes[i]});
  }
  s.Sql = u"INSERT INTO " + table +
          (columns.empty() ? u" DEFAULT VALUES" : u" (" + columns + u") VALUES (" + places + u")");
  return s;
}

// True when the row `old` holds its table's primary key, so that the key alone names it.
bool HasKey(const TMVADODataSet::Impl& d, const TRow& old) {
  if (d.keyColumns == 0) return false;
  for (size_t i = 0; i < d.keyColumns; ++i) {
    if (old[i].IsNull()) return false;
  }
  return true;
}

// The where clause that names the row `old`: its primary key, or, for a table without one (or a
// new row whose key is not known), every comparable column read.
std::u16string RowCondition(const TMVADODataSet::Impl& d, const TRow& old,
                            std::vector<TBoundValue>& values) {
  const bool byKey = HasKey(d, old);
  const size_t first = byKey ? 0 : d.keyColumns;
  const size_t end = byKey ? d.keyColumns : old.size();
  std::u16string where;
  for (size_t i = first; i < end; ++i) {
    if (!byKey && !Comparable(d.columnTypes[i])) continue;
    where += (where.empty() ? u"" : u" AND ") + QuotedName(d.columnNames[i]);
    if (old[i].IsNull()) {
      where += u" IS NULL";
    } else {
      where += u" = ?";
      values.push_back({old[i], d.columnTypes[i]});
    }
  }
  if (where.empty()) {
    throw EDatabaseError(
        "Insufficient key column information for updating: the table has no primary key and the "
        "query reads no column that can name the row");
  }
  return where;
}

TStatement UpdateStatement(const std::u16string& table, const TMVADODataSet::Impl& d,
                           const TRow& old) {
  TStatement s;
  std::u16string sets;
  for (size_t i = 0; i < d.buffer.size(); ++i) {
    if (!d.assigned[i]) continue;
    sets += (sets.empty() ? u"" : u", ") + QuotedName(d.columnNames[i]) + u" = ?";
    s.Values.push_back({d.buffer[i], d.columnTypes[i]});
  }
  if (sets.empty()) return {};
  s.Sql = u"UPDATE " + table + u" SET " + sets + u" WHERE " + RowCondition(d, old, s.Values);
  return s;
}

bool SameName(std::string_view a, std::string_view b) {
  return a.size() == b.size() && strncasecmp(a.data(), b.data(), a.size()) == 0;
}

bool IsWholeNumber(TFieldType type) {
  return type == ftSmallint || type == ftInteger || type == ftLargeint;
}

// After a write: the key columns of the written row take the values assigned to the read columns
// of the same name; a new row's single whole-number key not assigned is the one the database gave
// (`insert`, the insert run, where the driver tells).
void KeepKeyOfWrittenRow(TMVADODataSet::Impl& d, const QSqlQuery* insert) {
  for (size_t key = 0; key < d.keyColumns; ++key) {
    bool assigned = false;
    for (size_t i = d.keyColumns; i < d.buffer.size(); ++i) {
      if (d.assigned[i] && SameName(d.columnNames[i], d.columnNames[key])) {
        d.buffer[key] = d.buffer[i];
        assigned = true;
      }
    }
    if (!assigned && insert != nullptr && d.keyColumns == 1 && IsWholeNumber(d.columnTypes[key]) &&
        insert->driver()->hasFeature(QSqlDriver::LastInsertId)) {
      d.buffer[key] = FromQt(insert->lastInsertId(), d.columnTypes[key]);
    }
  }
}

// Runs the update or delete `s`, which must change exactly one row. Where the connection can, it
// runs in a transaction of its own so that a statement that would change several rows (the
// columns read do not tell them apart) is undone; inside the caller's transaction the caller
// undoes it on the error.
void RunRowUpdate(const std::string& connection, const TStatement& s, int timeout) {
  QSqlDatabase database = DatabaseOf(connection);
  const TLockWait wait(database, timeout);  // the commit waits as long as the update
  const bool own = database.transaction();
  int changed = 0;
  try {
    changed = RunSql(connection, s.Sql, s.Values, timeout, true).numRowsAffected();
  } catch (...) {
    if (own) database.rollback();
    throw;
  }
  if (changed == 1) {
    if (own) database.commit();
    return;
  }
  if (own) database.rollback();
  if (changed == 0) {
    throw EDatabaseError(
        "Row cannot be located for updating: it was changed or deleted since it was read");
  }
  throw EDatabaseError("Key column information is insufficient: the statement would change " +
                       std::to_string(changed) + " rows");
}

}  // namespace

void TMVADODataSet::CheckEditable() const {
  CheckOpen();
  if (lockType_ == ltReadOnly) throw EDatabaseError("Cannot modify a read-only dataset");
  if (impl_->table.empty()) {
    throw EDatabaseError("Cannot modify the rows of a query that does not select from one table");
  }
}

void TMVADODataSet::Edit() {
  if (impl_->state == dsEdit) return;
  CheckEditable();
  Post();
  if (Eof()) throw EDatabaseError("Cannot edit: the dataset has no current record");
  impl_->buffer = *impl_->CurrentRow();
  impl_->assigned.assign(impl_->buffer.size(), false);
  impl_->state = dsEdit;
  Notify(deRecordChanged);
}

void TMVADODataSet::Insert() {
  StartInsert(false);
}

void TMVADODataSet::Append() {
  StartInsert(true);
}

void TMVADODataSet::StartInsert(bool appending) {
  CheckEditable();
  Post();
  impl_->buffer.assign(impl_->columnNames.size(), Variant());
  impl_->assigned.assign(impl_->buffer.size(), false);
  impl_->appending = appending;
  impl_->state = dsInsert;
  Notify(deRecordChanged);
}

void TMVADODataSet::Post() {
  Impl& d = *impl_;
  if (d.state != dsEdit && d.state != dsInsert) return;
  const std::u16string& table = d.table;
  const TStatement s = d.state == dsInsert ? InsertStatement(table, d)
                                           : UpdateStatement(table, d, d.rows[d.current]);
  if (!s.Sql.empty() && d.state == dsEdit) {
    RunRowUpdate(ConnectionName(), s, CommandTimeout());
    KeepKeyOfWrittenRow(d, nullptr);
  } else if (!s.Sql.empty()) {
    const QSqlQuery insert = RunSql(ConnectionName(), s.Sql, s.Values, CommandTimeout(), true);
    KeepKeyOfWrittenRow(d, &insert);
  }
  TDataSetEvent event = deRecordChanged;
  if (d.state == dsEdit) {
    d.rows[d.current] = d.buffer;
  } else if (d.cursor) {
    d.rows.assign(1, d.buffer);  // a server cursor shows the new row until it moves on
    d.current = 0;
  } else {
    d.current = d.appending ? d.rows.size() : std::min(d.current, d.rows.size());
    d.rows.insert(d.rows.begin() + static_cast<long>(d.current), d.buffer);
    event = deRowInserted;
  }
  d.state = dsBrowse;
  Notify(event);
}

void TMVADODataSet::Delete() {
  CheckEditable();
  Impl& d = *impl_;
  const bool inserting = d.state == dsInsert;
  Cancel();
  if (inserting) return;
  if (Eof()) throw EDatabaseError("Cannot delete: the dataset has no current record");
  TStatement s;
  s.Sql = u"DELETE FROM " + d.table + u" WHERE " + RowCondition(d, d.rows[d.current], s.Values);
  RunRowUpdate(ConnectionName(), s, CommandTimeout());
  const int deleted = RecNo();
  d.rows.erase(d.rows.begin() + static_cast<long>(d.current));
  if (d.cursor && d.cursor->next()) d.rows.push_back(ReadRow(*d.cursor, d.columnTypes, d.codePage));
  Notify(deRowDeleted, deleted);
}

void TMVADODataSet::Cancel() {
  if (impl_->state != dsEdit && impl_->state != dsInsert) return;
  impl_->state = dsBrowse;
  Notify(deRecordChanged);
}

}  // namespace mv::db
