// The rows of a select read one by one through a forward-only cursor, so that memory holds one
// row, not the table.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "common/tables/table_def.h"
#include "platform/db/parameters.h"
#include "platform/db/variant.h"

namespace mv::tables {

// The select of `columns` of `table` (bracketed names), "" or " WHERE " + `condition` after it.
[[nodiscard]] std::u16string SelectText(const TTableDef& table, std::u16string_view condition);

// Runs `select` on `connection` with `parameters` and calls `row` with the values of each row,
// in the order of the select's columns. `row` returns false to stop. Raises db::EDatabaseError
// when the select fails.
void ReadRows(const std::string& connection, const std::u16string& select,
              const std::vector<db::TParameter>& parameters,
              const std::function<bool(std::vector<db::Variant>&)>& row);

}  // namespace mv::tables
