// Archives of tables: chosen tables of a connection exported into one zip file, one table file
// per table (table_file.h gives its format), and imported back. The entry of table T is T + ".mvt",
// every byte of T's UTF-8 name other than letters, digits, "_", "-" and "." written as "%XX".
// The table file inside, not the entry's name, says which table it holds.
//
// Export reads each table through a forward-only cursor and writes its rows as they come, so
// memory holds one batch of rows whatever the table's size. Before writing it estimates the
// archive's size and refuses, with a message in both languages, when the target folder's file
// system has less room. It writes a file beside the archive and renames it into place only when
// every table is in: a cancelled or failed export leaves no archive and no partial file.
//
// Import reads the archive entry by entry and writes each table in one transaction: a table
// missing from the connection is made from the file's structure; rows are added to an existing
// one (replacing its rows with TImportOptions::Replace). A damaged entry, a refused row or a
// cancel rolls that table back whole and ends the import with a message naming the entry and the
// row; the tables imported before it stay.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace mv::tables {

// A failure of an export or import, in both languages (UTF-8); what() is the English text.
class ETablesError : public std::runtime_error {
 public:
  ETablesError(const std::string& english, std::string chinese)
      : std::runtime_error(english), chinese_(std::move(chinese)) {}
  std::string English() const { return what(); }
  const std::string& Chinese() const { return chinese_; }
  // The text of `language` (1 English, anything else Chinese), as the language changer counts.
  std::string Text(uint8_t language) const { return language == 1 ? English() : chinese_; }

 private:
  std::string chinese_;
};

// The user cancelled through the progress event; nothing was left behind.
class ETablesCancelled : public ETablesError {
 public:
  ETablesCancelled() : ETablesError("Cancelled by the user.", "使用者已取消。") {}
};

// Where an export or import stands, given after each batch of rows and at each table's end.
struct TArchiveProgress {
  std::string Table;   // UTF-8
  int TableIndex = 0;  // 0-based among the tables of the run
  int TableCount = 0;
  int64_t Rows = 0;        // rows of this table done
  int64_t TableRows = -1;  // rows of this table in all; -1 when not known (import)
};

// Called with the progress; returns false to cancel.
using TProgressEvent = std::function<bool(const TArchiveProgress&)>;

// The rows written or read of one table.
struct TTableCount {
  std::string Table;  // UTF-8
  int64_t Rows = 0;
};

struct TExportOptions {
  int64_t BatchRows = 1000;  // rows between two progress events
  TProgressEvent Progress;   // none: never cancelled
  // The free bytes of a folder (narrow path, system code page); files::FreeDiskSpace when not
  // set. Nothing means the system cannot tell, and the export goes ahead.
  std::function<std::optional<uint64_t>(const std::string&)> FreeSpace;
};

struct TImportOptions {
  int64_t BatchRows = 1000;
  TProgressEvent Progress;
  bool Replace = false;  // an existing table loses its rows first, in the same transaction
};

// The bytes the table files of `tables` on `connection` are expected to take before compression:
// twice the length the database counts for every value (UTF-8 takes up to three bytes for one
// character, base64 four for three bytes), plus separators and headers. Raises
// db::EDatabaseError when a table cannot be read.
uint64_t EstimateExportSize(const std::string& connection, const std::vector<std::string>& tables);

// Exports `tables` (UTF-8 names, at least one, each once) of the open connection `connection`
// into the zip file `archivePath` (narrow path, system code page), replacing a file of that
// name only when done. Returns the rows written per table. Raises ETablesError when the folder
// has too little room, a table cannot be read, or the file cannot be written; ETablesCancelled
// when the progress event says so.
std::vector<TTableCount> ExportTables(const std::string& connection, const std::string& archivePath,
                                      const std::vector<std::string>& tables,
                                      const TExportOptions& options = {});

// Imports the tables of the archive `archivePath` into the open connection `connection`: all of
// them in archive order, or only those named in `tables` (UTF-8; each must be in the archive, or
// nothing is imported). Returns the rows read per table. Raises ETablesError (ETablesCancelled)
// as the top of this file describes.
std::vector<TTableCount> ImportTables(const std::string& connection, const std::string& archivePath,
                                      const std::vector<std::string>& tables,
                                      const TImportOptions& options = {});

// The entry name of table `table` (UTF-8) in an archive.
[[nodiscard]] std::string TableEntryName(const std::string& table);

}  // namespace mv::tables
