#include "common/tables/export_size_p.h"
#include "common/tables/table_archive.h"
#include "common/tables/table_def.h"
#include "platform/codepage/codepage.h"
#include "platform/db/dataset.h"

namespace mv::tables {
namespace {

// Bytes of one table file's header beyond its names, and of a row's separators per column.
constexpr uint64_t kHeaderBytes = 4096;
constexpr uint64_t kBytesPerField = 2;

// The row count and the summed value lengths of `def`, counted by the database.
std::pair<uint64_t, uint64_t> CountAndLength(const std::string& connection, const TTableDef& def) {
  const char* length = IsSqliteDatabase(connection) ? "length" : "datalength";
  std::string sql = "SELECT count(*)";
  for (const TColumnDef& column : def.Columns) {
    sql += std::string(", coalesce(sum(") + length + "(" + BracketedName(column.Name) + ")), 0)";
  }
  sql += " FROM " + BracketedName(def.Name);
  db::TMVADODataSet sums;
  sums.SetConnectionName(connection);
  sums.SetReadOnly(true);
  sums.SetCommandText(codepage::WideFromUtf8(sql));
  sums.Open();
  uint64_t total = 0;
  for (int i = 1; i < sums.FieldCount(); ++i)
    total += static_cast<uint64_t>(sums.Fields(i).AsFloat());
  return {static_cast<uint64_t>(sums.Fields(0).AsInteger()), total};
}

}  // namespace

TTableSize MeasureTable(const std::string& connection, const std::string& table) {
  const TTableDef def = ReadTableDef(connection, table);
  const auto [rows, length] = CountAndLength(connection, def);
  return {static_cast<int64_t>(rows),
          kHeaderBytes + 2 * length + rows * (def.Columns.size() * kBytesPerField + 1)};
}

uint64_t EstimateExportSize(const std::string& connection, const std::vector<std::string>& tables) {
  uint64_t bytes = 0;
  for (const std::string& table : tables) bytes += MeasureTable(connection, table).Bytes;
  return bytes;
}

std::string TableEntryName(const std::string& table) {
  static constexpr char kHex[] = "0123456789ABCDEF";
  std::string name;
  for (const char c : table) {
    const auto byte = static_cast<unsigned char>(c);
    const bool plain = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
                       c == '_' || c == '-' || c == '.';
    if (plain) {
      name += c;
    } else {
      name += '%';
      name += kHex[byte >> 4];
      name += kHex[byte & 0xF];
    }
  }
  return name + ".mvt";
}

}  // namespace mv::tables
