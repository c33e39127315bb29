// The list report over a large inbox: 54,000 rows in a SQLite file, 1,000 A4 pages.
//  - BM_ListReportPages: time from Start to the first page shown and to the last page, with the
//    event loop running between slices as under the preview; the memory of the recorded pages.
//  - BM_ExportVersusDirectPdf: the same 1,000 pages into a PDF file twice in one run, replayed
//    from the recording (ExportPdf) and drawn straight into a QPdfWriter page by page while they
//    are generated; the counter `ratio` is export time / direct time.
#include <benchmark/benchmark.h>

#include <unistd.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QPainter>
#include <QPdfWriter>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

#include "platform/codepage/codepage.h"
#include "platform/db/command.h"
#include "platform/db/connections.h"
#include "platform/db/dataset.h"
#include "platform/report/list_report.h"
#include "platform/report/print_job.h"

namespace {

namespace fs = std::filesystem;
using mv::report::TListReport;

constexpr int kRows = 54 * 1000;  // 54 rows fill an A4 page

// DBMAIN on a new SQLite file holding the inbox; removed at exit.
class Inbox {
 public:
  Inbox() : folder_(fs::temp_directory_path() / ("mv-report-bench-" + std::to_string(getpid()))) {
    fs::create_directories(folder_);
    const fs::path file = folder_ / "inbox.db";
    std::ofstream(file).close();
    mv::db::OpenConnection("DBMAIN", "sqlite:" + file.string());
    Exec(
        u"create table Inbox (RefNo varchar(10) primary key, MsgType varchar(10), "
        u"Subject nvarchar(80), Sender nvarchar(40), Received float, Amount float)");
    Exec(u"with recursive n(i) as (select 1 union all select i + 1 from n where i < " +
         mv::codepage::WideFromUtf8(std::to_string(kRows)) +
         u") insert into Inbox select printf('TD%08d', i), 'TDEC', N'報關單 Declaration ' || i, "
         u"N'永發貿易有限公司 Wing Fat Trading', 45000 + i / 100.0, i * 1.25 from n");
  }
  ~Inbox() {
    mv::db::CloseConnection("DBMAIN");
    fs::remove_all(folder_);
  }
  std::unique_ptr<mv::db::TMVADODataSet> Open() const {
    auto rows = std::make_unique<mv::db::TMVADODataSet>();
    rows->SetCommandText("select * from Inbox order by RefNo");
    rows->Open();
    return rows;
  }
  std::string File(const char* name) const { return (folder_ / name).string(); }

 private:
  static void Exec(const std::u16string& sql) {
    mv::db::TMVADOCommand command;
    command.SetCommandText(sql);
    command.Execute();
  }
  fs::path folder_;
};

Inbox& TheInbox() {
  static Inbox inbox;
  return inbox;
}

// The list report drawn straight onto a painter: each page is recorded and at once played onto
// the writer, then dropped.
class DirectListReport : public TListReport {
 public:
  using TListReport::TListReport;
  int DrawInto(QPdfWriter& writer) {
    Begin();
    QPainter painter(&writer);
    int page = 0;
    while (!Done()) {
      mv::report::TPageRecording recording;
      if (!RecordPage(page + 1, recording)) break;
      if (page++ > 0) writer.newPage();
      painter.save();
      painter.scale(writer.logicalDpiX() / 72.0, writer.logicalDpiY() / 72.0);
      recording.Play(painter);
      PaintFrame(page, 0, painter);
      painter.restore();
    }
    return page;
  }
};

void BM_ListReportPages(benchmark::State& state) {
  auto rows = TheInbox().Open();
  for (auto _ : state) {
    TListReport report(*rows);
    report.SetTitle(QStringLiteral("收件匣 Inbox"));
    QElapsedTimer clock;
    double firstPage = -1;
    QEventLoop loop;
    QObject::connect(&report, &TListReport::pageAvailable, [&] {
      if (firstPage < 0) firstPage = clock.nsecsElapsed() / 1e6;
    });
    QObject::connect(&report, &TListReport::finished, &loop, &QEventLoop::quit);
    clock.start();
    report.Start();
    loop.exec();
    const double lastPage = clock.nsecsElapsed() / 1e6;
    state.SetIterationTime(lastPage / 1e3);
    state.counters["first_page_ms"] = firstPage;
    state.counters["last_page_ms"] = lastPage;
    state.counters["pages"] = report.PageCount();
    state.counters["recorded_MB"] = report.RecordedBytes() / 1e6;
    state.counters["bytes_per_page"] =
        static_cast<double>(report.RecordedBytes()) / report.PageCount();
  }
}
BENCHMARK(BM_ListReportPages)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(3);

void BM_ExportVersusDirectPdf(benchmark::State& state) {
  auto rows = TheInbox().Open();
  TListReport report(*rows);
  report.GenerateAll();
  DirectListReport direct(*rows);
  const QString exported = QString::fromStdString(TheInbox().File("exported.pdf"));
  const QString drawn = QString::fromStdString(TheInbox().File("direct.pdf"));
  for (auto _ : state) {
    QElapsedTimer clock;
    clock.start();
    if (!mv::report::ExportPdf(report, exported)) state.SkipWithError("export failed");
    const double exportSeconds = clock.nsecsElapsed() / 1e9;
    clock.restart();
    int pages = 0;
    {
      QPdfWriter writer(drawn);
      pages = direct.DrawInto(writer);
    }
    const double directSeconds = clock.nsecsElapsed() / 1e9;
    state.SetIterationTime(exportSeconds);
    state.counters["export_s"] = exportSeconds;
    state.counters["direct_s"] = directSeconds;
    state.counters["ratio"] = exportSeconds / directSeconds;
    state.counters["pages"] = pages;
  }
}
BENCHMARK(BM_ExportVersusDirectPdf)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(2);

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
