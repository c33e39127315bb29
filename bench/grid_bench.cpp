// The data-aware grid over an inbox of 1,000,000 messages in a SQLite file: opening it with a
// client cursor and painting the first screen, then jumping to the last row and painting again,
// against reading the same rows through a raw forward-only QSqlQuery; and the first screen of a
// server cursor. Counters: the cells a paint asks the model for, and the memory a row costs.
#include <benchmark/benchmark.h>
#include <malloc.h>
#include <unistd.h>

#include <QApplication>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "platform/db/command.h"
#include "platform/db/connections.h"
#include "platform/db/dataset.h"
#include "platform/qt/data_grid.h"
#include "platform/qt/dataset_model.h"

namespace {

namespace fs = std::filesystem;

constexpr int kRows = 1'000'000;
constexpr const char* kSelect =
    "select RefNo, DateTime, Sender, MType, Subject, Status, MsgSize from Inbox";

// Resident memory of the process in bytes.
long long ResidentBytes() {
  std::ifstream statm("/proc/self/statm");
  long long pages = 0, resident = 0;
  statm >> pages >> resident;
  return resident * sysconf(_SC_PAGESIZE);
}

// Bytes of the heap in use: memory freed by a close and taken again by the next open counts
// once, which the resident size cannot tell.
long long HeapBytes() {
  return static_cast<long long>(mallinfo2().uordblks);
}

// The inbox file in a temporary folder, made once for the whole run (one transaction, a
// recursive select), open as DBMAIN; removed at exit.
class Inbox {
 public:
  static Inbox& Get() {
    static Inbox inbox;
    return inbox;
  }
  const fs::path& Path() const { return path_; }

 private:
  Inbox() : path_(fs::temp_directory_path() / ("mv-grid-bench-" + std::to_string(getpid()))) {
    fs::create_directories(path_);
    path_ /= "inbox.db";
    std::ofstream(path_).close();  // an empty file is an empty database
    mv::db::OpenConnection("DBMAIN", "sqlite:" + path_.string());
    Run("create table Inbox (RefNo varchar(35) not null, DateTime datetime not null, "
        "Sender varchar(35) not null, MType varchar(10) not null, Subject nvarchar(100), "
        "Status varchar(10), MsgSize int)");
    Run("with recursive n(i) as (select 1 union all select i + 1 from n where i < " +
        std::to_string(kRows) +
        ") insert into Inbox select printf('TD%08d', i), 45000 + i / 1440.0, 'hkgovt', "
        "'HKTDLD', 'Trade declaration ' || i, 'NEW', i % 5000 from n");
  }
  ~Inbox() {
    mv::db::CloseConnection("DBMAIN");
    fs::remove_all(path_.parent_path());
  }
  static void Run(const std::string& sql) {
    mv::db::TMVADOCommand command;
    command.SetCommandText(sql);
    command.Execute();
  }

  fs::path path_;
};

// Every row and column of the inbox through a forward-only query on a connection of its own,
// each value taken out as the dataset takes it.
void BM_RawForwardOnlyRead(benchmark::State& state) {
  Inbox::Get();
  {
    QSqlDatabase db = QSqlDatabase::addDatabase("QSQLITE", "raw");
    db.setDatabaseName(QString::fromStdString(Inbox::Get().Path().string()));
    db.open();
    for (auto _ : state) {
      QSqlQuery query(db);
      query.setForwardOnly(true);
      query.exec(kSelect);
      long long rows = 0;
      while (query.next()) {
        for (int column = 0; column < 7; ++column) benchmark::DoNotOptimize(query.value(column));
        ++rows;
      }
      benchmark::DoNotOptimize(rows);
    }
  }
  QSqlDatabase::removeDatabase("raw");
  state.SetItemsProcessed(state.iterations() * kRows);
}
BENCHMARK(BM_RawForwardOnlyRead)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(3);

// Opens the inbox with a client cursor under a grid of a list form's size, paints the first
// screen, jumps to the last row and paints again.
void BM_ClientGridOpenPaintFirstAndLast(benchmark::State& state) {
  Inbox::Get();
  mv::qt::DataGrid grid;
  grid.resize(900, 600);
  grid.show();
  mv::db::TMVADODataSet inbox;
  inbox.SetCommandText(kSelect);
  inbox.SetReadOnly(true);
  grid.SetDataSet(&inbox);
  long long cells = 0, paints = 0, heapPerRow = 0, residentPerRow = 0;
  for (auto _ : state) {
    inbox.Close();
    const long long heap = HeapBytes(), resident = ResidentBytes();
    inbox.Open();
    heapPerRow = (HeapBytes() - heap) / kRows;
    if (residentPerRow == 0) residentPerRow = (ResidentBytes() - resident) / kRows;
    grid.Model()->ResetCellRequests();
    benchmark::DoNotOptimize(grid.grab());
    inbox.SetRecNo(inbox.RecordCount());
    benchmark::DoNotOptimize(grid.grab());
    cells += grid.Model()->CellRequests();
    paints += 2;
  }
  state.counters["cells_per_paint"] = static_cast<double>(cells) / static_cast<double>(paints);
  state.counters["heap_bytes_per_row"] = static_cast<double>(heapPerRow);
  state.counters["rss_bytes_per_row"] = static_cast<double>(residentPerRow);
  state.SetItemsProcessed(state.iterations() * kRows);
}
BENCHMARK(BM_ClientGridOpenPaintFirstAndLast)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->Iterations(3);

// Opens the inbox with a server cursor and paints the first screen: only the rows on it are
// read.
void BM_ServerGridFirstScreen(benchmark::State& state) {
  Inbox::Get();
  mv::qt::DataGrid grid;
  grid.resize(900, 600);
  grid.show();
  mv::db::TMVADODataSet inbox;
  inbox.SetCommandText(kSelect);
  inbox.SetReadOnly(true);
  inbox.SetCursorLocation(mv::db::clUseServer);
  grid.SetDataSet(&inbox);
  long long rowsRead = 0;
  for (auto _ : state) {
    inbox.Close();
    inbox.Open();
    benchmark::DoNotOptimize(grid.grab());
    rowsRead = inbox.RecNo();
  }
  state.counters["rows_read"] = static_cast<double>(rowsRead);
}
BENCHMARK(BM_ServerGridFirstScreen)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace

int main(int argc, char** argv) {
  setenv("QT_QPA_PLATFORM", "offscreen", 1);
  QApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
