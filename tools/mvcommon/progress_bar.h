// The progress of a table export or import drawn on standard error: one line per table, redrawn
// in place after each batch of rows.
#pragma once

#include <string>

#include "common/tables/table_archive.h"

namespace mv::cli {

// The line for `progress` (without the carriage return that redraws it): the table, a bar of
// 30 characters and the percentage when the table's rows are known, and the rows done.
[[nodiscard]] std::string ProgressText(const tables::TArchiveProgress& progress);

// A progress event that draws ProgressText on standard error and answers false once the user
// pressed Ctrl+C (SIGINT), so that the run ends cleanly, leaving nothing behind.
tables::TProgressEvent StderrProgress();

}  // namespace mv::cli
