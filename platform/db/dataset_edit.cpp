// Editing a dataset: the row buffer and the statements that write it to its one table.
#include "platform/db/connection_qt.h"
#include "platform/db/dataset.h"
#include "platform/db/dataset_impl.h"
#include "platform/db/db_error.h"
#include "platform/db/run_query.h"

namespace mv::db {
namespace {

std::u16string Quoted(const std::string& column) {
  std::u16string out = u"[";
  for (char16_t c : QString::fromStdString(column).toStdU16String()) {
    out += c;
    if (c == u']') out += u']';
  }
  return out + u"]";
}

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
    columns += (columns.empty() ? u"" : u", ") + Quoted(d.columnNames[i]);
    places += places.empty() ? u"?" : u", ?";
    s.Values.push_back({d.buffer[i], d.columnTypes[i]});
  }
  s.Sql = u"INSERT INTO " + table +
          (columns.empty() ? u" DEFAULT VALUES" : u" (" + columns + u") VALUES (" + places + u")");
  return s;
}

TStatement UpdateStatement(const std::u16string& table, const TMVADODataSet::Impl& d,
                           const TRow& old) {
  TStatement s;
  std::u16string sets, where;
  for (size_t i = 0; i < d.buffer.size(); ++i) {
    if (!d.assigned[i]) continue;
    sets += (sets.empty() ? u"" : u", ") + Quoted(d.columnNames[i]) + u" = ?";
    s.Values.push_back({d.buffer[i], d.columnTypes[i]});
  }
  for (size_t i = 0; i < old.size(); ++i) {
    if (!Comparable(d.columnTypes[i])) continue;
    where += (where.empty() ? u"" : u" AND ") + Quoted(d.columnNames[i]);
    if (old[i].IsNull()) {
      where += u" IS NULL";
    } else {
      where += u" = ?";
      s.Values.push_back({old[i], d.columnTypes[i]});
    }
  }
  if (sets.empty()) return {};
  if (where.empty()) {
    throw EDatabaseError(
        "Insufficient key column information for updating: the query reads no column that can "
        "name the row");
  }
  s.Sql = u"UPDATE " + table + u" SET " + sets + u" WHERE " + where;
  return s;
}

// Runs the update `s`, which must change exactly the edited row. Where the connection can, the
// update runs in a transaction of its own so that an update that would change several rows (the
// columns read do not tell them apart) is undone; inside the caller's transaction the caller
// undoes it on the error.
void RunRowUpdate(const std::string& connection, const TStatement& s, int timeout) {
  QSqlDatabase database = DatabaseOf(connection);
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
    throw EDatabaseError("Row cannot be located for updating: it was changed since it was read");
  }
  throw EDatabaseError("Key column information is insufficient: the update would change " +
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
}

void TMVADODataSet::Insert() {
  CheckEditable();
  Post();
  impl_->buffer.assign(impl_->columnNames.size(), Variant());
  impl_->assigned.assign(impl_->buffer.size(), false);
  impl_->appending = false;
  impl_->state = dsInsert;
}

void TMVADODataSet::Append() {
  Insert();
  impl_->appending = true;
}

void TMVADODataSet::Post() {
  Impl& d = *impl_;
  if (d.state != dsEdit && d.state != dsInsert) return;
  const std::u16string& table = d.table;
  const TStatement s = d.state == dsInsert ? InsertStatement(table, d)
                                           : UpdateStatement(table, d, d.rows[d.current]);
  if (!s.Sql.empty() && d.state == dsEdit) {
    RunRowUpdate(ConnectionName(), s, CommandTimeout());
  } else if (!s.Sql.empty()) {
    RunSql(ConnectionName(), s.Sql, s.Values, CommandTimeout(), true);
  }
  if (d.state == dsEdit) {
    d.rows[d.current] = d.buffer;
  } else if (d.cursor) {
    d.rows.assign(1, d.buffer);  // a server cursor shows the new row until it moves on
    d.current = 0;
  } else {
    d.current = d.appending ? d.rows.size() : std::min(d.current, d.rows.size());
    d.rows.insert(d.rows.begin() + static_cast<long>(d.current), d.buffer);
  }
  d.state = dsBrowse;
}

void TMVADODataSet::Cancel() {
  if (impl_->state == dsEdit || impl_->state == dsInsert) impl_->state = dsBrowse;
}

}  // namespace mv::db
