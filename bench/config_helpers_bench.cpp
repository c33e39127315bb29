// Running numbers without contention: GetIniSeq on a small system configuration file and on one
// of about 5,000 lines. Each call takes the file's write lock, parses the file, writes it back
// (a synced write and a rename) and gives the lock up; the parses per call are reported, as a
// call must parse the file once and no more.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "common/frame/config_helpers.h"
#include "common/frame/shared_state.h"
#include "platform/ini/ini_file.h"

namespace {

namespace fs = std::filesystem;

// A server folder holding a SEDIFSYS.INI with a [TDEC] counter after `filler` other lines;
// removed at the end.
class ServerFolder {
 public:
  explicit ServerFolder(int filler) {
    std::string pattern = (fs::temp_directory_path() / "mvbench.XXXXXX").string();
    if (::mkdtemp(pattern.data()) == nullptr) std::abort();
    path_ = pattern;
    std::string text = "[Filler]\r\n";
    for (int i = 0; i < filler; ++i)
      text += "Key" + std::to_string(i) + "=value " + std::to_string(i) + "\r\n";
    text += "[TDEC]\r\nSeq=34\r\n";
    std::ofstream(path_ + "/SEDIFSYS.INI", std::ios::binary) << text;
    mv::ServerPath = path_ + "/";
    mv::Global_Merovan_Ini = "SEDIFSYS.INI";
  }
  ~ServerFolder() { fs::remove_all(path_); }

 private:
  std::string path_;
};

void BM_GetIniSeq(benchmark::State& state) {
  ServerFolder folder(static_cast<int>(state.range(0)));
  const uint64_t before = mv::ini::TIniFile::ParseCount();
  for (auto _ : state) benchmark::DoNotOptimize(mv::GetIniSeq("TDEC", "Seq"));
  state.counters["parses_per_call"] =
      static_cast<double>(mv::ini::TIniFile::ParseCount() - before) /
      static_cast<double>(state.iterations());
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_GetIniSeq)->Arg(10)->Arg(5000)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
