// The inside of a dataset. Private to the database layer.
#pragma once

#include <QtSql/QSqlQuery>
#include <memory>
#include <optional>
#include <vector>

#include "platform/db/dataset.h"

namespace mv::db {

using TRow = std::vector<Variant>;

// The current row of `query`, its columns read as `types`, narrow texts in code page `codePage`.
TRow ReadRow(const QSqlQuery& query, const std::vector<TFieldType>& types, int codePage);

struct TMVADODataSet::Impl {
  TDataSetState state = dsInactive;
  std::vector<std::unique_ptr<TField>> fields;  // in field order
  std::vector<TFieldType> columnTypes;          // by column of the row buffer
  std::vector<std::string> columnNames;
  int codePage = 0;  // the code page of narrow texts, the user's as the dataset opened
  // The first columns of the row buffer hold the table's primary key, selected for writing rows
  // back and never made fields; 0 when the rows are named by every column read.
  size_t keyColumns = 0;
  // Client cursor: every row. Server cursor: the current row only (none at the end).
  std::vector<TRow> rows;
  size_t current = 0;               // index in rows; rows.size() at the end
  std::optional<QSqlQuery> cursor;  // the server cursor
  int serverRecNo = 0;              // 1-based number of the server cursor's row
  TRow buffer;                      // the row being edited or inserted
  std::vector<bool> assigned;       // columns set since Edit / Insert
  bool appending = false;
  std::u16string table;        // the one table of the select as it opened; empty for other selects
  const TRow* peek = nullptr;  // the row a calculated field reads for ValueAt, in place of current

  const TRow* CurrentRow() const {
    if (peek != nullptr) return peek;
    if (state == dsEdit || state == dsInsert) return &buffer;
    return current < rows.size() ? &rows[current] : nullptr;
  }
};

}  // namespace mv::db
