// Rows written into one table in batches: several rows per INSERT statement, each value a bound
// parameter, so that a large table goes in with few statements and no value ever becomes SQL
// text. Memory holds one batch.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

#include "common/tables/table_def.h"
#include "platform/db/command.h"
#include "platform/db/variant.h"

namespace mv::tables {

// A row the database refused; RowNumber() is its 1-based number among the rows added.
class ERowRefused : public std::runtime_error {
 public:
  ERowRefused(int64_t rowNumber, const std::string& reason)
      : std::runtime_error("row " + std::to_string(rowNumber) + ": " + reason), row_(rowNumber) {}
  int64_t RowNumber() const { return row_; }

 private:
  int64_t row_;
};

class TRowInserter {
 public:
  // Writes into `table` (UTF-8) on the open connection `connection` the columns `columns`, by
  // name, values bound as their value class says (dates as dates).
  TRowInserter(std::string connection, const std::string& table,
               const std::vector<TColumnDef>& columns);

  // Adds a row, one value per column in column order; writes the batch when it is full.
  // Raises ERowRefused naming the refused row.
  void Add(std::vector<db::Variant> row);
  // Writes the rows still waiting; raises ERowRefused as Add does.
  void Flush();
  // The rows written so far.
  int64_t RowsWritten() const { return written_; }

 private:
  std::u16string InsertText(size_t rows) const;
  void Write(size_t first, size_t count);

  std::string connection_;
  std::string head_;  // "INSERT INTO [t] ([a], [b]) VALUES "
  std::vector<db::TFieldType> bindTypes_;
  size_t batchRows_;
  std::vector<std::vector<db::Variant>> pending_;
  int64_t written_ = 0;
};

}  // namespace mv::tables
