// Exporting a 1,000,000-row inbox into an archive and importing it into an empty database, beside
// the sqlite3 program's own ".dump" piped through gzip and read back into an empty file, in the
// same run on the same file. MV_BENCH_ROWS sets another row count. The counter peak_rss_MB is the
// largest resident size of this process so far (of the sqlite3 and gzip processes for theirs):
// it stays flat as the rows grow because export and import hold one batch, not the table. The
// counter cpu_s is the CPU time of the run (of the child processes for sqlite3 and gzip), the
// fairer figure on a machine shared with other work.
#include <benchmark/benchmark.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "common/tables/table_archive.h"
#include "common/tables/table_copy.h"
#include "platform/db/command.h"
#include "platform/db/connections.h"

namespace {

namespace fs = std::filesystem;

int64_t Rows() {
  const char* rows = std::getenv("MV_BENCH_ROWS");
  return rows != nullptr ? std::atoll(rows) : 1000000;
}

// CPU seconds (user and system) of this process, or of its finished children.
double CpuSeconds(int who) {
  rusage usage{};
  getrusage(who, &usage);
  const auto seconds = [](const timeval& t) { return t.tv_sec + t.tv_usec / 1e6; };
  return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

double PeakMegabytes(int who) {
  rusage usage{};
  getrusage(who, &usage);
  return static_cast<double>(usage.ru_maxrss) / 1024.0;
}

// A SQLite file with table Inbox (the demo's columns, no indexes) of Rows() rows; removed at exit.
class InboxFile {
 public:
  InboxFile() : dir_(fs::temp_directory_path() / ("mv-tables-bench-" + std::to_string(::getpid()))) {
    fs::create_directories(dir_);
    fs::copy_file(MV_DEMO_DATABASE, File("demo.db"));
    std::fclose(std::fopen(File("inbox.db").c_str(), "w"));
    mv::db::OpenConnection("DEMO", "sqlite:" + File("demo.db"));
    mv::db::OpenConnection("DBMAIN", "sqlite:" + File("inbox.db"));
    mv::tables::CopyTableStructure("DEMO", "Inbox", "DBMAIN", "Inbox");
    mv::db::CloseConnection("DEMO");
    mv::db::TMVADOCommand fill;
    fill.SetCommandText(
        "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " +
        std::to_string(Rows()) +
        ") INSERT INTO Inbox SELECT 'TD' || (24000000 + i), 45600 + i / 1440.0, 'HKG' || (i % 97), "
        "'HKTDEC', 'MEROVAN', 'TDEC', '報關單 ' || i || ' 發票', 'OK', 'IN' || i || '.XML', "
        "1000 + i % 5000, 'DEMO', 'PO-' || i, NULL, '參考 ' || (i % 13), NULL, NULL FROM n");
    fill.Execute();
  }
  ~InboxFile() {
    mv::db::CloseConnection("DBMAIN");
    fs::remove_all(dir_);
  }
  std::string File(const std::string& name) const { return (dir_ / name).string(); }

 private:
  fs::path dir_;
};

InboxFile& Inbox() {
  static InboxFile inbox;
  return inbox;
}

void Shell(benchmark::State& state, const std::string& command) {
  if (std::system(command.c_str()) != 0) state.SkipWithError(command.c_str());
}

void BM_ExportInbox(benchmark::State& state) {
  const std::string archive = Inbox().File("inbox.zip");
  Inbox();
  const double cpu = CpuSeconds(RUSAGE_SELF);
  for (auto _ : state) mv::tables::ExportTables("DBMAIN", archive, {"Inbox"});
  state.counters["cpu_s"] = CpuSeconds(RUSAGE_SELF) - cpu;
  state.counters["rows"] = static_cast<double>(Rows());
  state.counters["archive_MB"] = static_cast<double>(fs::file_size(archive)) / (1 << 20);
  state.counters["peak_rss_MB"] = PeakMegabytes(RUSAGE_SELF);
}

void BM_ImportInbox(benchmark::State& state) {
  const std::string target = Inbox().File("imported.db");
  const double cpu = CpuSeconds(RUSAGE_SELF);
  for (auto _ : state) {
    state.PauseTiming();
    fs::remove(target);
    std::fclose(std::fopen(target.c_str(), "w"));
    mv::db::OpenConnection("TARGET", "sqlite:" + target);
    state.ResumeTiming();
    mv::tables::ImportTables("TARGET", Inbox().File("inbox.zip"), {});
    mv::db::CloseConnection("TARGET");
  }
  state.counters["cpu_s"] = CpuSeconds(RUSAGE_SELF) - cpu;
  state.counters["peak_rss_MB"] = PeakMegabytes(RUSAGE_SELF);
}

void BM_SqliteDumpGzip(benchmark::State& state) {
  Inbox();
  const double cpu = CpuSeconds(RUSAGE_CHILDREN);
  for (auto _ : state) {
    Shell(state, "sqlite3 '" + Inbox().File("inbox.db") + "' .dump | gzip > '" +
                     Inbox().File("inbox.sql.gz") + "'");
  }
  state.counters["cpu_s"] = CpuSeconds(RUSAGE_CHILDREN) - cpu;
  state.counters["archive_MB"] =
      static_cast<double>(fs::file_size(Inbox().File("inbox.sql.gz"))) / (1 << 20);
  state.counters["peak_rss_MB"] = PeakMegabytes(RUSAGE_CHILDREN);
}

void BM_SqliteReadBackDump(benchmark::State& state) {
  const std::string target = Inbox().File("restored.db");
  const double cpu = CpuSeconds(RUSAGE_CHILDREN);
  for (auto _ : state) {
    state.PauseTiming();
    fs::remove(target);
    state.ResumeTiming();
    Shell(state, "gunzip -c '" + Inbox().File("inbox.sql.gz") + "' | sqlite3 '" + target + "'");
  }
  state.counters["cpu_s"] = CpuSeconds(RUSAGE_CHILDREN) - cpu;
  state.counters["peak_rss_MB"] = PeakMegabytes(RUSAGE_CHILDREN);
}

// Each runs once per repetition: a run takes seconds, and the import reads the export's archive.
BENCHMARK(BM_ExportInbox)->Iterations(1)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_ImportInbox)->Iterations(1)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_SqliteDumpGzip)->Iterations(1)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_SqliteReadBackDump)->Iterations(1)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace

BENCHMARK_MAIN();
