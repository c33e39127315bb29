#include "common/tables/row_inserter.h"

#include <algorithm>

#include "platform/codepage/codepage.h"
#include "platform/db/db_error.h"

namespace mv::tables {
namespace {

// Parameters per statement: few enough for SQL Server's limit of 2,100 and for binding by name,
// which looks each name up in the statement's list.
constexpr size_t kParametersPerStatement = 64;

}  // namespace

TRowInserter::TRowInserter(std::string connection, const std::string& table,
                           const std::vector<TColumnDef>& columns)
    : connection_(std::move(connection)),
      batchRows_(
          std::max<size_t>(1, kParametersPerStatement / std::max<size_t>(1, columns.size()))) {
  head_ = "INSERT INTO " + BracketedName(table) + " (";
  for (const TColumnDef& column : columns) {
    head_ += (bindTypes_.empty() ? "" : ", ") + BracketedName(column.Name);
    bindTypes_.push_back(BindTypeOf(ValueClassOf(column.Type)));
  }
  head_ += ") VALUES ";
}

std::u16string TRowInserter::InsertText(size_t rows) const {
  std::string text = head_;
  for (size_t r = 0; r < rows; ++r) {
    text += r ? ", (" : "(";
    for (size_t c = 0; c < bindTypes_.size(); ++c) {
      text += (c ? ", :v" : ":v") + std::to_string(r * bindTypes_.size() + c);
    }
    text += ")";
  }
  return codepage::WideFromUtf8(text);
}

void TRowInserter::Write(size_t first, size_t count) {
  db::TMVADOCommand insert;
  insert.SetConnectionName(connection_);
  insert.SetCommandText(InsertText(count));
  db::TParameters& params = insert.Parameters();
  for (size_t r = 0; r < count; ++r) {
    for (size_t c = 0; c < bindTypes_.size(); ++c) {
      db::TParameter& p = params[static_cast<int>(r * bindTypes_.size() + c)];
      p.DataType = bindTypes_[c];
      p.Value = pending_[first + r][c];
    }
  }
  insert.Execute();
}

void TRowInserter::Add(std::vector<db::Variant> row) {
  if (row.size() != bindTypes_.size()) {
    throw ERowRefused(written_ + static_cast<int64_t>(pending_.size()) + 1,
                      "it has " + std::to_string(row.size()) + " values for " +
                          std::to_string(bindTypes_.size()) + " columns");
  }
  pending_.push_back(std::move(row));
  if (pending_.size() >= batchRows_) Flush();
}

void TRowInserter::Flush() {
  if (pending_.empty()) return;
  try {
    Write(0, pending_.size());
  } catch (const db::EDatabaseError&) {
    // The statement failed as a whole; row by row, the refused one names itself.
    for (size_t r = 0; r < pending_.size(); ++r) {
      try {
        Write(r, 1);
      } catch (const db::EDatabaseError& error) {
        throw ERowRefused(written_ + static_cast<int64_t>(r) + 1, error.what());
      }
    }
  }
  written_ += static_cast<int64_t>(pending_.size());
  pending_.clear();
}

}  // namespace mv::tables
