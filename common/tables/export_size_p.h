// What an export expects of one table before it writes it. Private to the table archives.
#pragma once

#include <cstdint>
#include <string>

namespace mv::tables {

struct TTableSize {
  int64_t Rows = 0;
  uint64_t Bytes = 0;  // expected bytes of its table file before compression
};

// The size of `table` on `connection` as EstimateExportSize counts it.
TTableSize MeasureTable(const std::string& connection, const std::string& table);

}  // namespace mv::tables
