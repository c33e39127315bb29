#include <unistd.h>

#include "common/tables/export_size_p.h"
#include "common/tables/row_reader.h"
#include "common/tables/table_archive.h"
#include "common/tables/table_def.h"
#include "common/tables/table_file.h"
#include "platform/archive/zip_archive.h"
#include "platform/codepage/codepage.h"
#include "platform/db/db_error.h"
#include "platform/files/disk_space.h"
#include "platform/files/new_file.h"
#include "platform/files/paths.h"

namespace mv::tables {
namespace {

// Bytes gathered before they go to the zip writer.
constexpr size_t kWriteChunk = 256 * 1024;

std::string Megabytes(uint64_t bytes) {
  return std::to_string((bytes + (1 << 20) - 1) >> 20);
}

void CheckFreeSpace(const std::string& archivePath, uint64_t needed,
                    const TExportOptions& options) {
  std::string folder = files::ExtractFilePath(archivePath);
  if (folder.empty()) folder = ".";
  const std::optional<uint64_t> free =
      options.FreeSpace ? options.FreeSpace(folder) : files::FreeDiskSpace(folder);
  if (!free || *free >= needed) return;
  const std::string shown = codepage::Utf8FromSystem(folder);
  throw ETablesError("Not enough free space in " + shown + ": the archive needs about " +
                         Megabytes(needed) + " MB, " + Megabytes(*free) + " MB are free.",
                     shown + " 的可用空間不足：封存檔約需 " + Megabytes(needed) + " MB，只有 " +
                         Megabytes(*free) + " MB 可用。");
}

// A new empty file beside `archivePath` that no other writer uses.
std::string PartialFile(const std::string& archivePath) {
  const std::string base = archivePath + ".partial-" + std::to_string(::getpid());
  for (int n = 0;; ++n) {
    const std::string name = base + "-" + std::to_string(n);
    if (files::CreateNewFile(name)) return name;
    if (n == 100) {
      const std::string shown = codepage::Utf8FromSystem(archivePath);
      throw ETablesError("Cannot write beside " + shown + ".",
                         "不能寫入 " + shown + " 所在的資料夾。");
    }
  }
}

class TExporter {
 public:
  TExporter(const std::string& connection, archive::TZipWriter& zip, const TExportOptions& options,
            int tableCount)
      : connection_(connection), zip_(zip), options_(options), tableCount_(tableCount) {}

  int64_t Table(const std::string& table, int index, int64_t tableRows);

 private:
  void Report(const TArchiveProgress& progress) {
    if (options_.Progress && !options_.Progress(progress)) throw ETablesCancelled();
  }

  const std::string& connection_;
  archive::TZipWriter& zip_;
  const TExportOptions& options_;
  int tableCount_;
};

int64_t TExporter::Table(const std::string& table, int index, int64_t tableRows) {
  const TTableDef def = ReadTableDef(connection_, table);
  const std::vector<TValueClass> classes = ValueClasses(def);
  TArchiveProgress progress{table, index, tableCount_, 0, tableRows};
  Report(progress);
  zip_.BeginEntry(TableEntryName(table));
  std::string buffer = TableFileHeader(def);
  const int64_t batch = std::max<int64_t>(1, options_.BatchRows);
  ReadRows(connection_, SelectText(def, u""), {}, [&](std::vector<db::Variant>& row) {
    try {
      AppendTableFileRow(classes, row, buffer);
    } catch (const ETableFileError& error) {
      throw ETableFileError("row " + std::to_string(progress.Rows + 1) + ", " + error.what());
    }
    if (buffer.size() >= kWriteChunk) {
      zip_.Write(buffer);
      buffer.clear();
    }
    if (++progress.Rows % batch == 0) Report(progress);
    return true;
  });
  buffer += TableFileEnd(progress.Rows);
  zip_.Write(buffer);
  Report(progress);
  return progress.Rows;
}

ETablesError Failure(const std::string& table, const std::string& reason) {
  return ETablesError("Cannot export table " + table + ": " + reason,
                      "不能匯出資料表 " + table + "：" + reason);
}

std::vector<TTableCount> WriteArchive(const std::string& connection, const std::string& file,
                                      const std::vector<std::string>& tables,
                                      const std::vector<int64_t>& rows,
                                      const TExportOptions& options) {
  std::vector<TTableCount> counts;
  archive::TZipWriter zip(file);
  TExporter exporter(connection, zip, options, static_cast<int>(tables.size()));
  for (size_t i = 0; i < tables.size(); ++i) {
    try {
      counts.push_back({tables[i], exporter.Table(tables[i], static_cast<int>(i), rows[i])});
    } catch (const ETablesError&) {
      throw;
    } catch (const std::exception& error) {
      throw Failure(tables[i], error.what());
    }
  }
  zip.Close();
  return counts;
}

}  // namespace

std::vector<TTableCount> ExportTables(const std::string& connection, const std::string& archivePath,
                                      const std::vector<std::string>& tables,
                                      const TExportOptions& options) {
  if (tables.empty()) throw ETablesError("No table to export.", "沒有要匯出的資料表。");
  std::vector<int64_t> rows;
  uint64_t needed = 0;
  for (const std::string& table : tables) {
    try {
      const TTableSize size = MeasureTable(connection, table);
      needed += size.Bytes;
      rows.push_back(size.Rows);
    } catch (const db::EDatabaseError& error) {
      throw Failure(table, error.what());
    }
  }
  CheckFreeSpace(archivePath, needed, options);
  const std::string partial = PartialFile(archivePath);
  try {
    std::vector<TTableCount> counts = WriteArchive(connection, partial, tables, rows, options);
    if (!files::RenameFile(partial, archivePath)) {
      const std::string shown = codepage::Utf8FromSystem(archivePath);
      throw ETablesError("Cannot write " + shown + ".", "不能寫入 " + shown + "。");
    }
    return counts;
  } catch (const archive::EArchiveError& error) {
    files::RemoveFile(partial);
    throw ETablesError(std::string("Cannot write the archive: ") + error.what(),
                       std::string("不能寫入封存檔：") + error.what());
  } catch (...) {
    files::RemoveFile(partial);
    throw;
  }
}

}  // namespace mv::tables
