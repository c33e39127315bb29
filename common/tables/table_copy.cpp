#include "common/tables/table_copy.h"

#include <algorithm>

#include "common/tables/row_inserter.h"
#include "common/tables/row_reader.h"
#include "common/tables/table_def.h"
#include "common/tables/transaction.h"
#include "platform/codepage/codepage.h"
#include "platform/db/command.h"
#include "platform/db/db_error.h"

namespace mv::tables {
namespace {

// Keys per select: their values are bound, and binding looks each name up in the list.
constexpr size_t kParametersPerSelect = 200;

std::vector<std::string> KeyColumns(const TTableDef& def) {
  std::vector<std::string> keys;
  for (const TColumnDef& column : def.Columns) {
    if (column.KeyOrder <= 0) continue;
    if (keys.size() < static_cast<size_t>(column.KeyOrder)) keys.resize(column.KeyOrder);
    keys[column.KeyOrder - 1] = column.Name;
  }
  return keys;
}

// "([k1] = :k0 AND [k2] = :k1) OR (...)" for `count` keys from `first` on, and their values.
std::u16string KeyCondition(const std::vector<std::string>& keys, const TRowChoice& choice,
                            size_t first, size_t count, std::vector<db::TParameter>& params) {
  std::string text;
  for (size_t k = first; k < first + count; ++k) {
    text += k == first ? "(" : " OR (";
    for (size_t c = 0; c < keys.size(); ++c) {
      const std::string name = "k" + std::to_string(params.size());
      text += (c ? " AND " : "") + BracketedName(keys[c]) + " = :" + name;
      params.push_back({name, db::ftUnknown, choice.Keys[k][c]});
    }
    text += ")";
  }
  return codepage::WideFromUtf8(text);
}

void CopyByKeys(const std::string& connection, const TTableDef& def, const TRowChoice& choice,
                TRowInserter& inserter) {
  const std::vector<std::string> keys = KeyColumns(def);
  for (const auto& key : choice.Keys) {
    if (keys.empty() || key.size() != keys.size()) {
      throw db::EDatabaseError("Table '" + def.Name + "' has a primary key of " +
                               std::to_string(keys.size()) + " columns; a key of " +
                               std::to_string(key.size()) + " values cannot name its rows");
    }
  }
  const size_t perSelect =
      std::max<size_t>(1, kParametersPerSelect / std::max<size_t>(1, keys.size()));
  for (size_t first = 0; first < choice.Keys.size(); first += perSelect) {
    std::vector<db::TParameter> params;
    const size_t count = std::min(perSelect, choice.Keys.size() - first);
    const std::u16string condition = KeyCondition(keys, choice, first, count, params);
    ReadRows(connection, SelectText(def, condition), params, [&](std::vector<db::Variant>& row) {
      inserter.Add(row);
      return true;
    });
  }
}

}  // namespace

void CopyTableStructure(const std::string& sourceConnection, const std::string& source,
                        const std::string& targetConnection, const std::string& target) {
  const TTableDef def = ReadTableDef(sourceConnection, source);
  db::TMVADOCommand create;
  create.SetConnectionName(targetConnection);
  create.SetCommandText(codepage::WideFromUtf8(CreateTableText(def, target)));
  create.Execute();
}

int64_t CopyRows(const std::string& sourceConnection, const std::string& source,
                 const std::string& targetConnection, const std::string& target,
                 const TRowChoice& choice) {
  const TTableDef def = ReadTableDef(sourceConnection, source);
  TTransaction transaction(targetConnection);
  TRowInserter inserter(targetConnection, target, def.Columns);
  if (choice.Kind == TRowChoice::rcKeys) {
    CopyByKeys(sourceConnection, def, choice, inserter);
  } else {
    const std::u16string condition =
        choice.Kind == TRowChoice::rcCondition ? choice.Condition : std::u16string();
    ReadRows(sourceConnection, SelectText(def, condition), {}, [&](std::vector<db::Variant>& row) {
      inserter.Add(row);
      return true;
    });
  }
  inserter.Flush();
  transaction.Commit();
  return inserter.RowsWritten();
}

}  // namespace mv::tables
