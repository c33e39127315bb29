// Speed of the working-day calendar on a SQLite copy of the demo database whose English holiday
// table holds 2,000 holidays (every fifth day from 1 January 2020, so stretches of days off are
// short and lookups mostly miss): GetMonthDay, which reads the table with one query per call,
// against GetMonthDayRpt on a holiday dataset the caller keeps open (a Locate per day looked up).
// Items are calls.
#include <benchmark/benchmark.h>

#include <unistd.h>

#include <filesystem>
#include <string>

#include "common/datasets/apply_modes.h"
#include "common/dates/working_days.h"
#include "common/text/lang_changer.h"
#include "platform/db/command.h"
#include "platform/db/connections.h"
#include "platform/db/dataset.h"

namespace {

namespace fs = std::filesystem;

constexpr int kHolidays = 2000;
const int64_t kFirstHoliday = mv::DayNumberOf({2020, 1, 1});

void Exec(const std::string& sql) {
  mv::db::TMVADOCommand command;
  command.SetCommandText(sql);
  command.Execute();
}

// DBMAIN on a copy of the demo database with kHolidays rows in Holiday; removed at exit.
class HolidayDatabase {
 public:
  HolidayDatabase()
      : path_(fs::temp_directory_path() /
              ("mv-workdays-bench-" + std::to_string(::getpid()) + ".db")) {
    fs::copy_file(MV_DEMO_DATABASE, path_, fs::copy_options::overwrite_existing);
    mv::db::OpenConnection("DBMAIN", "sqlite:" + path_.string());
    Exec("delete from Holiday");
    Exec("with recursive n(i) as (select 0 union all select i + 1 from n where i < " +
         std::to_string(kHolidays - 1) + ") insert into Holiday (HolDate) select " +
         std::to_string(kFirstHoliday) + " + 5 * i from n");
    mv::LangChanger().SetLanguage(mv::kLangEnglish);
  }
  ~HolidayDatabase() {
    mv::db::CloseConnection("DBMAIN");
    fs::remove(path_);
  }

 private:
  fs::path path_;
};

// End dates walking through the holiday years, each a little later than the last.
mv::TDateTime EndDate(int64_t call) {
  return mv::DateOf(kFirstHoliday + 30 + (call * 7) % (5 * kHolidays - 60), 0.5);
}

void BM_GetMonthDay(benchmark::State& state) {
  HolidayDatabase db;
  uint16_t months = 0, days = 0;
  int64_t call = 0;
  for (auto _ : state) {
    mv::GetMonthDay(EndDate(call++), mv::DateOf(kFirstHoliday, 0), months, days);
    benchmark::DoNotOptimize(months + days);
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_GetMonthDay)->Unit(benchmark::kMicrosecond)->UseRealTime();

void BM_GetMonthDayRptOpenSet(benchmark::State& state) {
  HolidayDatabase db;
  mv::db::TMVADODataSet holidays;
  mv::ApplyRead(holidays);
  holidays.SetCommandText("Select HolDate from Holiday order by HolDate");
  holidays.Open();
  uint16_t months = 0, days = 0;
  int64_t call = 0;
  for (auto _ : state) {
    mv::GetMonthDayRpt(holidays, EndDate(call++), mv::DateOf(kFirstHoliday, 0), months, days);
    benchmark::DoNotOptimize(months + days);
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_GetMonthDayRptOpenSet)->Unit(benchmark::kMicrosecond)->UseRealTime();

}  // namespace

BENCHMARK_MAIN();
