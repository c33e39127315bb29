#include <strings.h>

#include <algorithm>
#include <optional>

#include "common/tables/row_inserter.h"
#include "common/tables/table_archive.h"
#include "common/tables/table_def.h"
#include "common/tables/table_file.h"
#include "common/tables/transaction.h"
#include "platform/archive/zip_archive.h"
#include "platform/codepage/codepage.h"
#include "platform/db/command.h"
#include "platform/db/db_error.h"

namespace mv::tables {
namespace {

constexpr size_t kReadChunk = 256 * 1024;

bool SameName(const std::string& a, const std::string& b) {
  return a.size() == b.size() && strncasecmp(a.data(), b.data(), a.size()) == 0;
}

void Run(const std::string& connection, const std::string& sql) {
  db::TMVADOCommand command;
  command.SetConnectionName(connection);
  command.SetCommandText(codepage::WideFromUtf8(sql));
  command.Execute();
}

bool TableExists(const std::string& connection, const std::string& table) {
  try {
    ReadTableDef(connection, table);
    return true;
  } catch (const db::EDatabaseError&) {
    return false;
  }
}

// The entry names of the archive, in order.
std::vector<std::string> EntryNames(const std::string& archivePath) {
  archive::TZipReader zip(archivePath);
  std::vector<std::string> names;
  for (std::string name; zip.NextEntry(name);) names.push_back(name);
  return names;
}

// One table file into its table, inside the caller's transaction.
class TTableImport {
 public:
  TTableImport(const std::string& connection, const TImportOptions& options,
               TArchiveProgress progress)
      : connection_(connection), options_(options), progress_(std::move(progress)) {}

  int64_t Run(archive::TZipReader& zip);
  // The table the file holds, once its header is read.
  const std::string& Table() const { return progress_.Table; }

 private:
  void Header(const TTableDef& def);
  void Row(std::vector<db::Variant>& row);

  const std::string& connection_;
  const TImportOptions& options_;
  TArchiveProgress progress_;
  std::optional<TRowInserter> inserter_;
};

void TTableImport::Header(const TTableDef& def) {
  if (!TableExists(connection_, def.Name)) {
    tables::Run(connection_, CreateTableText(def, def.Name));
  } else if (options_.Replace) {
    tables::Run(connection_, "DELETE FROM " + BracketedName(def.Name));
  }
  inserter_.emplace(connection_, def.Name, def.Columns);
  progress_.Table = def.Name;
}

void TTableImport::Row(std::vector<db::Variant>& row) {
  inserter_->Add(std::move(row));
  if (++progress_.Rows % std::max<int64_t>(1, options_.BatchRows) == 0 && options_.Progress &&
      !options_.Progress(progress_)) {
    throw ETablesCancelled();
  }
}

int64_t TTableImport::Run(archive::TZipReader& zip) {
  TTableFileReader reader([this](const TTableDef& def) { Header(def); },
                          [this](std::vector<db::Variant>& row) { Row(row); });
  std::string buffer(kReadChunk, '\0');
  for (size_t n; (n = zip.Read(buffer.data(), buffer.size())) > 0;) {
    reader.Feed(std::string_view(buffer.data(), n));
  }
  reader.Finish();
  inserter_->Flush();
  if (options_.Progress && !options_.Progress(progress_)) throw ETablesCancelled();
  return reader.Rows();
}

ETablesError Failure(const std::string& entry, const std::string& reason) {
  return ETablesError(
      "Table file " + entry + " cannot be imported (" + reason +
          "); nothing of its table was imported.",
      "資料表檔 " + entry + " 不能匯入（" + reason + "），其資料表沒有匯入任何資料。");
}

std::vector<std::string> ChosenEntries(const std::vector<std::string>& names,
                                       const std::vector<std::string>& tables) {
  if (tables.empty()) return names;
  std::vector<std::string> chosen;
  for (const std::string& table : tables) {
    const std::string entry = TableEntryName(table);
    const auto found = std::find_if(names.begin(), names.end(),
                                    [&](const std::string& n) { return SameName(n, entry); });
    if (found == names.end()) {
      throw ETablesError("The archive holds no table " + table + ".",
                         "封存檔中沒有資料表 " + table + "。");
    }
    chosen.push_back(*found);
  }
  return chosen;
}

}  // namespace

std::vector<TTableCount> ImportTables(const std::string& connection, const std::string& archivePath,
                                      const std::vector<std::string>& tables,
                                      const TImportOptions& options) {
  std::vector<TTableCount> counts;
  try {
    const std::vector<std::string> chosen = ChosenEntries(EntryNames(archivePath), tables);
    archive::TZipReader zip(archivePath);
    int index = 0;
    for (std::string entry; zip.NextEntry(entry);) {
      if (std::find(chosen.begin(), chosen.end(), entry) == chosen.end()) continue;
      TArchiveProgress progress{entry, index++, static_cast<int>(chosen.size()), 0, -1};
      try {
        TTransaction transaction(connection);
        TTableImport import(connection, options, progress);
        const int64_t rows = import.Run(zip);
        transaction.Commit();
        counts.push_back({import.Table(), rows});
      } catch (const ETablesError&) {
        throw;
      } catch (const std::exception& error) {
        throw Failure(entry, error.what());
      }
    }
  } catch (const archive::EArchiveError& error) {
    throw ETablesError(std::string("Cannot read the archive: ") + error.what(),
                       std::string("不能讀取封存檔：") + error.what());
  }
  return counts;
}

}  // namespace mv::tables
