// Rows per second that InsertSystemLog appends to the system log of a SQLite copy of the demo
// database, each call a dataset of its own and a committed row (the file is synchronised on every
// row, as the database does by default), with a wide and with a Big5 event.
#include <benchmark/benchmark.h>

#include <unistd.h>

#include <filesystem>
#include <string>

#include "common/frame/shared_state.h"
#include "common/settings/system_log.h"
#include "platform/codepage/codepage.h"
#include "platform/db/connections.h"

namespace {

namespace fs = std::filesystem;

// DBMAIN on a copy of the demo database, signed in as DEMO; removed at exit.
class LogDatabase {
 public:
  LogDatabase()
      : path_(fs::temp_directory_path() / ("mv-log-bench-" + std::to_string(::getpid()) + ".db")) {
    fs::copy_file(MV_DEMO_DATABASE, path_, fs::copy_options::overwrite_existing);
    mv::db::OpenConnection("DBMAIN", "sqlite:" + path_.string());
    mv::UserRecord.UserID = "DEMO";
  }
  ~LogDatabase() {
    mv::db::CloseConnection("DBMAIN");
    fs::remove(path_);
  }

 private:
  fs::path path_;
};

void BM_InsertSystemLogWide(benchmark::State& state) {
  LogDatabase db;
  for (auto _ : state) mv::InsertSystemLog(u"Send", u"TD24000131", "HKTDEC", "OK");
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_InsertSystemLogWide)->Unit(benchmark::kMicrosecond)->UseRealTime();

void BM_InsertSystemLogBig5(benchmark::State& state) {
  LogDatabase db;
  const std::string event = mv::codepage::FromWide(u"送出報關單", 950);
  const std::string status = mv::codepage::FromWide(u"成功", 950);
  for (auto _ : state) mv::InsertSystemLog(event, "TD24000131", "HKTDEC", status);
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_InsertSystemLogBig5)->Unit(benchmark::kMicrosecond)->UseRealTime();

}  // namespace

BENCHMARK_MAIN();
