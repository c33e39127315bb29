// The table file: one table of an archive, its structure and then its rows, as UTF-8 text lines
// ending in LF, fields separated by a tab. Version 1:
//
//   MVTABLE<tab>1
//   TABLE<tab>name
//   COLUMN<tab>name<tab>declared type<tab>NULL or NOT NULL<tab>key place (0 outside the key)
//   ... one COLUMN line per column, in column order
//   ROWS
//   value<tab>value ...      one line per row, one field per column (field_text.h)
//   END<tab>number of rows
//
// Names and types are written in the Text form of field_text.h. Nothing may follow the END line.
// A reader refuses a later version, so that a newer writer's files are never half understood.
#pragma once

#include <cstdint>
#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "common/tables/table_def.h"
#include "platform/db/variant.h"

namespace mv::tables {

inline constexpr int kTableFileVersion = 1;

// A table file that cannot be read; the message names the line (and the row, for a row line).
class ETableFileError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// The lines up to and including ROWS for `def`.
[[nodiscard]] std::string TableFileHeader(const TTableDef& def);
// Appends the line of one row (values in column order, classes of `classes`) to `out`; raises
// ETableFileError naming the column when a value does not fit its class.
void AppendTableFileRow(const std::vector<TValueClass>& classes,
                        const std::vector<db::Variant>& row, std::string& out);
// The END line.
[[nodiscard]] std::string TableFileEnd(int64_t rows);

// The value classes of the columns of `def`, in column order.
[[nodiscard]] std::vector<TValueClass> ValueClasses(const TTableDef& def);

// Reads a table file fed in pieces of any size: the structure first, then each row, holding one
// line at a time. Feed and Finish raise ETableFileError for anything that is not a table file of
// a known version: a damaged header, a name with a control character, key places that are not
// 1, 2, ..., a row of the wrong number of fields or with a value its column cannot hold, a
// missing END line, a row count that differs from the rows read, anything after END.
class TTableFileReader {
 public:
  using THeaderEvent = std::function<void(const TTableDef&)>;
  using TRowEvent = std::function<void(std::vector<db::Variant>&)>;

  TTableFileReader(THeaderEvent onHeader, TRowEvent onRow);

  void Feed(std::string_view bytes);
  // The file has ended: the END line must have been read.
  void Finish();
  // Rows read so far.
  int64_t Rows() const { return rows_; }
  // The structure, once read.
  const TTableDef& Def() const { return def_; }

 private:
  enum class TPart { Magic, Table, Columns, Rows, Ended };

  void Line(std::string_view line);
  void HeaderLine(const std::vector<std::string_view>& fields);
  void RowLine(std::string_view line);
  void CheckKeys() const;
  [[noreturn]] void Fail(const std::string& what) const;

  THeaderEvent onHeader_;
  TRowEvent onRow_;
  TPart part_ = TPart::Magic;
  TTableDef def_;
  std::vector<TValueClass> classes_;
  std::vector<db::Variant> row_;
  std::string pending_;
  int64_t line_ = 0;
  int64_t rows_ = 0;
};

}  // namespace mv::tables
