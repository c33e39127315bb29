#include "common/tables/row_reader.h"

#include "platform/codepage/codepage.h"
#include "platform/db/dataset.h"

namespace mv::tables {

std::u16string SelectText(const TTableDef& table, std::u16string_view condition) {
  std::string columns;
  for (const TColumnDef& column : table.Columns) {
    columns += (columns.empty() ? "" : ", ") + BracketedName(column.Name);
  }
  std::u16string text =
      codepage::WideFromUtf8("SELECT " + columns + " FROM " + BracketedName(table.Name));
  if (!condition.empty()) text += u" WHERE " + std::u16string(condition);
  return text;
}

void ReadRows(const std::string& connection, const std::u16string& select,
              const std::vector<db::TParameter>& parameters,
              const std::function<bool(std::vector<db::Variant>&)>& row) {
  db::TMVADODataSet rows;
  rows.SetConnectionName(connection);
  rows.SetCursorLocation(db::clUseServer);
  rows.SetReadOnly(true);
  rows.SetCommandText(select);
  for (const db::TParameter& p : parameters) rows.Parameters().ParamByName(p.Name) = p;
  rows.Open();
  std::vector<db::Variant> values(static_cast<size_t>(rows.FieldCount()));
  for (; !rows.Eof(); rows.Next()) {
    for (int i = 0; i < rows.FieldCount(); ++i)
      values[static_cast<size_t>(i)] = rows.Fields(i).Value();
    if (!row(values)) return;
  }
}

}  // namespace mv::tables
