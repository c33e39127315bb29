// Two databases for table copy and archives: DBMAIN and a second connection OTHER, both SQLite
// files in a temporary folder, reached directly or through unixODBC and the SQLite ODBC driver,
// with a table of every kind of value the copies must keep.
#pragma once

#include <string>
#include <vector>

#include "platform/db/variant.h"
#include "tests/platform/db/db_fixture.h"

namespace mv::test {

// Opens OTHER on the file `name` of `dir` the way `Backend` opened DBMAIN.
template <typename Backend>
void OpenOther(const TempDir& dir, const std::string& name);

// Makes table Goods (a two-column key, national and narrow text, dates, numbers, a Boolean,
// bytes, NULLs) on `connection` with `rows` rows; row i has key (i % 3, i).
void MakeGoods(const std::string& connection, int rows);

// Every row of `table` on `connection`, ordered by its first two columns.
std::vector<std::vector<db::Variant>> AllRows(const std::string& connection,
                                              const std::string& table);

}  // namespace mv::test
