// Speed of the preference store on SQLite with a 64 KB preference text (about 1,000 entries of
// grid layouts, as a user with many screens has): GetUserPreference, SaveUserPreference and a
// save followed by a read, each a whole database round trip; and the text format alone (load,
// set one entry, write back) for comparison. The database is a copy of the demo installation's,
// in a temporary folder removed at exit; the demo user "DEMO" is signed in.
#include <benchmark/benchmark.h>

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "common/frame/shared_state.h"
#include "common/settings/preference_text.h"
#include "common/settings/user_preference.h"
#include "platform/db/command.h"
#include "platform/db/connections.h"
#include "platform/dialogs/dialogs.h"

namespace {

namespace fs = std::filesystem;

constexpr size_t kTextSize = 64 * 1024;
// Read near the end of the text, saved in its middle: a look-up walks most lines.
constexpr std::string_view kLastKey = "GridLayout0999";
constexpr std::string_view kMiddleKey = "GridLayout0500";

// About kTextSize bytes of entries GridLayoutNNNN=column,width,... followed by CR LF.
std::u16string PreferenceText() {
  std::u16string text;
  for (int i = 0; text.size() < kTextSize; ++i) {
    char line[96];
    std::snprintf(line, sizeof line, "GridLayout%04d=MsgRef,120,Sender,80,MsgDate,72,Status,%d\r\n",
                  i, i % 97);
    text.append(line, line + std::char_traits<char>::length(line));
  }
  return text;
}

// The demo database copied into a temporary folder, opened as DBMAIN, with the 64 KB text in the
// demo user's row.
class TDemoCopy {
 public:
  TDemoCopy() {
    char folder[] = "/tmp/mv_preferences_bench_XXXXXX";
    if (::mkdtemp(folder) == nullptr) std::abort();
    folder_ = folder;
    fs::copy_file(MV_DEMO_DATABASE, folder_ / "mvdemo.db");
    mv::db::OpenConnection("DBMAIN", "sqlite:" + (folder_ / "mvdemo.db").string());
    mv::UserRecord.UserID = "DEMO";
    mv::db::TMVADOCommand command;
    command.SetCommandText("update sysuser set Preference = :p where userid = 'DEMO'");
    command.SetUnicodeParamValue(0, PreferenceText(), false);
    if (command.Execute() != 1) std::abort();
  }
  ~TDemoCopy() {
    mv::db::CloseConnection("DBMAIN");
    fs::remove_all(folder_);
  }

 private:
  fs::path folder_;
};

void UseDemoCopy(benchmark::State& state) {
  static TDemoCopy copy;
  // An error box would be a failed round trip: record boxes instead of printing them.
  static mv::dialogs::RecordingDialogProvider dialogs;
  static mv::dialogs::ScopedProvider provider(dialogs);
  if (!dialogs.Requests().empty()) state.SkipWithError("the store showed an error box");
}

void BM_GetUserPreference(benchmark::State& state) {
  UseDemoCopy(state);
  for (auto _ : state) {
    if (mv::GetUserPreference(kLastKey).empty()) state.SkipWithError("entry not found");
  }
  state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(kTextSize));
}
BENCHMARK(BM_GetUserPreference)->Unit(benchmark::kMicrosecond);

void BM_SaveUserPreference(benchmark::State& state) {
  UseDemoCopy(state);
  int n = 0;
  for (auto _ : state) mv::SaveUserPreference(kMiddleKey, "MsgRef," + std::to_string(++n));
  UseDemoCopy(state);
  state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(kTextSize));
}
BENCHMARK(BM_SaveUserPreference)->Unit(benchmark::kMicrosecond);

void BM_SaveThenGetUserPreference(benchmark::State& state) {
  UseDemoCopy(state);
  int n = 0;
  for (auto _ : state) {
    const std::string value = "Sender," + std::to_string(++n);
    mv::SaveUserPreference(kMiddleKey, value);
    if (mv::GetUserPreference(kMiddleKey) != value) state.SkipWithError("value not read back");
  }
}
BENCHMARK(BM_SaveThenGetUserPreference)->Unit(benchmark::kMicrosecond);

void BM_PreferenceTextEdit(benchmark::State& state) {
  const std::u16string stored = PreferenceText();
  int n = 0;
  for (auto _ : state) {
    mv::TPreferenceText text(stored);
    text.SetValue(u"GridLayout0500", u"MsgRef," + std::u16string(1, u'0' + (++n % 10)));
    benchmark::DoNotOptimize(text.Text());
  }
  state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(stored.size() * 2));
}
BENCHMARK(BM_PreferenceTextEdit)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
