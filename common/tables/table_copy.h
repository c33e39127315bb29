// Copying a table's structure, and its rows, between two tables of one connection or of two named
// connections (SQL Server, or SQLite at either end). Values keep their kind: numbers, text (narrow
// text in the user's code page, national text whole), dates as day numbers, NULLs and bytes.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/db/variant.h"

namespace mv::tables {

// Which rows of the source a copy takes.
struct TRowChoice {
  enum TKind { rcAll, rcCondition, rcKeys };
  TKind Kind = rcAll;
  // rcCondition: the text after WHERE, SQL Server's dialect, as wide text; it is SQL the caller
  // wrote or built (for example with ChangeWildCard), never user text as it stands.
  std::u16string Condition;
  // rcKeys: the primary key values of each row to copy, in key order; each value is bound.
  std::vector<std::vector<db::Variant>> Keys;

  static TRowChoice All() { return {}; }
  static TRowChoice Where(std::u16string condition) {
    return {rcCondition, std::move(condition), {}};
  }
  static TRowChoice ByKeys(std::vector<std::vector<db::Variant>> keys) {
    return {rcKeys, {}, std::move(keys)};
  }
};

// Makes the table `target` (UTF-8) on the connection `targetConnection` with the columns, types,
// NULL rules and primary key of `source` on `sourceConnection`. Raises db::EDatabaseError when
// the source is missing or the target cannot be made (one of that name exists, for example).
void CopyTableStructure(const std::string& sourceConnection, const std::string& source,
                        const std::string& targetConnection, const std::string& target);

// Copies the rows `choice` takes from `source` into the existing table `target`, column by
// column name, in one transaction of the target connection: when any row is refused (a key
// already there, a column missing) nothing is copied and ERowRefused (row_inserter.h) names the
// row in the order read, or db::EDatabaseError tells what else failed. Returns the rows copied.
// rcKeys needs a source with a primary key of as many columns as each key list has values
// (db::EDatabaseError otherwise); keys without a row are skipped.
int64_t CopyRows(const std::string& sourceConnection, const std::string& source,
                 const std::string& targetConnection, const std::string& target,
                 const TRowChoice& choice);

}  // namespace mv::tables
