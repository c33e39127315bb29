// mvcommon export / import: tables of the main database into an archive and back, with a
// progress bar on standard error. Each prints, per table, its name, a tab and the rows written
// or read. Any failure is a message in English and Chinese on standard error and exit code 1;
// an export leaves no archive then, an import keeps the tables it finished before the failure.
#include <cstdio>
#include <string>

#include "common/tables/table_archive.h"
#include "tools/mvcommon/command_line.h"
#include "tools/mvcommon/database_option.h"
#include "tools/mvcommon/progress_bar.h"

namespace mv::cli {
namespace {

constexpr std::string_view kExportUsage =
    "Usage: mvcommon export [--db CONNECTION] ARCHIVE TABLE...\n"
    "\n"
    "Writes the tables into the zip file ARCHIVE, one table file per table (its structure, then\n"
    "its rows), and prints each table's name and rows. The archive is written beside and renamed\n"
    "into place when complete; too little free space in its folder is refused before writing;\n"
    "Ctrl+C cancels, leaving nothing.\n"
    "\n"
    "Options:\n"
    "  --db CONNECTION   the database: sqlite:PATH or odbc:CONNECTION-STRING (default:\n"
    "                    MV_DBMAIN, else the demo database)\n"
    "  -h, --help        show this text\n";

constexpr std::string_view kImportUsage =
    "Usage: mvcommon import [--db CONNECTION] [--replace] ARCHIVE [TABLE...]\n"
    "\n"
    "Reads the tables of ARCHIVE (all, or those named) into the database, each table in one\n"
    "transaction, and prints each table's name and rows. A missing table is made from the\n"
    "archive's structure; rows are added to an existing one. A damaged table file or a refused\n"
    "row imports nothing of its table and ends the import, naming the file and the row.\n"
    "\n"
    "Options:\n"
    "  --db CONNECTION   the database: sqlite:PATH or odbc:CONNECTION-STRING (default:\n"
    "                    MV_DBMAIN, else the demo database)\n"
    "  --replace         an existing table's rows are deleted first (in the same transaction)\n"
    "  -h, --help        show this text\n";

constexpr std::string_view kOptions[] = {kDatabaseOption};

void PrintCounts(const std::vector<tables::TTableCount>& counts) {
  for (const tables::TTableCount& count : counts) {
    std::printf("%s\t%lld\n", count.Table.c_str(), static_cast<long long>(count.Rows));
  }
}

// Runs `work`; a failure is told in both languages, after the progress line.
template <typename Work>
int Report(Work work) {
  try {
    PrintCounts(work());
    std::fputs("\n", stderr);
    return 0;
  } catch (const tables::ETablesError& error) {
    std::fprintf(stderr, "\nmvcommon: %s\nmvcommon: %s\n", error.English().c_str(),
                 error.Chinese().c_str());
    return 1;
  }
}

int RunExport(const ParsedArgs& args) {
  if (args.positionals.size() < 2) throw UsageError("ARCHIVE and at least one TABLE are needed");
  OpenMainDatabase(args);
  tables::TExportOptions options;
  options.Progress = StderrProgress();
  const std::vector<std::string> names(args.positionals.begin() + 1, args.positionals.end());
  return Report([&] {
    return tables::ExportTables("DBMAIN", PathArgument(args.positionals[0]), names, options);
  });
}

// ParseArgs, with the flag --replace taken out first.
ParsedArgs ParseImport(std::span<char* const> args) {
  std::vector<char*> rest;
  bool replace = false;
  bool positionalOnly = false;
  for (char* arg : args) {
    const std::string_view word = arg;
    if (word == "--replace" && !positionalOnly) {
      replace = true;
      continue;
    }
    positionalOnly = positionalOnly || word == "--";
    rest.push_back(arg);
  }
  ParsedArgs parsed = ParseArgs(rest, kOptions);
  if (replace) parsed.options.insert_or_assign(std::string("replace"), std::string());
  return parsed;
}

int RunImport(const ParsedArgs& args) {
  if (args.positionals.empty()) throw UsageError("ARCHIVE is needed");
  OpenMainDatabase(args);
  tables::TImportOptions options;
  options.Progress = StderrProgress();
  options.Replace = args.Option("replace").has_value();
  const std::vector<std::string> names(args.positionals.begin() + 1, args.positionals.end());
  return Report([&] {
    return tables::ImportTables("DBMAIN", PathArgument(args.positionals[0]), names, options);
  });
}

constinit const Command kExportCommand{"export", "export tables into a zip archive", kExportUsage,
                                       kOptions, &RunExport};
constinit const Command kImportCommand{"import",     "import the tables of a zip archive",
                                       kImportUsage, kOptions,
                                       &RunImport,   &ParseImport};

}  // namespace

MV_CLI_COMMAND(kExportCommand);
MV_CLI_COMMAND(kImportCommand);

}  // namespace mv::cli
