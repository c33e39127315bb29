// Lock files and temporary files: taking and giving up a free lock (the library routine and the
// bare platform lock), and making temporary files in a folder that already holds many files or
// fills up within one second.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>

#include "common/frame/shared_state.h"
#include "common/processes/concurrent_right.h"
#include "common/processes/temporary_file.h"
#include "platform/files/lock_file.h"
#include "platform/files/new_file.h"

namespace {

namespace fs = std::filesystem;

// A fresh folder under the temporary folder, removed with its files at the end.
class BenchFolder {
 public:
  BenchFolder() {
    std::string pattern = (fs::temp_directory_path() / "mvbench.XXXXXX").string();
    path_ = ::mkdtemp(pattern.data());
  }
  ~BenchFolder() { fs::remove_all(path_); }
  const std::string& path() const { return path_; }

 private:
  std::string path_;
};

void BM_SetAndResetConcurrentRight(benchmark::State& state) {
  BenchFolder folder;
  mv::BasePath = folder.path() + "/";
  for (auto _ : state) {
    int32_t handle = -1;
    if (!mv::SetConcurrentRight("Stock", handle)) state.SkipWithError("lock busy");
    mv::ResetConcurrentRight(handle);
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_SetAndResetConcurrentRight);

void BM_LockFileExclusive(benchmark::State& state) {
  BenchFolder folder;
  const std::string file = folder.path() + "/Stock.lck";
  for (auto _ : state) mv::files::UnlockFile(mv::files::LockFileExclusive(file));
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_LockFileExclusive);

// One temporary file in a folder already holding state.range(0) other files; the file is removed
// again (untimed) so that every call succeeds at its first attempt.
void BM_GetTemporaryFileBesideOthers(benchmark::State& state) {
  BenchFolder folder;
  for (int i = 0; i < state.range(0); ++i) {
    mv::files::CreateNewFile(folder.path() + "/other" + std::to_string(i) + ".dat");
  }
  for (auto _ : state) {
    std::string name;
    if (mv::GetTemporaryFile(folder.path(), ".tmp", name) != 0) state.SkipWithError("failed");
    state.PauseTiming();
    fs::remove(name);
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_GetTemporaryFileBesideOthers)->Arg(0)->Arg(1000);

// 200 temporary files in a fresh folder, as fast as they come: later calls of one second pass over
// the names earlier calls took.
void BM_GetTemporaryFileBurstOf200(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    auto folder = std::make_unique<BenchFolder>();
    state.ResumeTiming();
    for (int i = 0; i < 200; ++i) {
      std::string name;
      if (mv::GetTemporaryFile(folder->path(), ".tmp", name) != 0) state.SkipWithError("failed");
    }
    state.PauseTiming();
    folder.reset();
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * 200);
}
BENCHMARK(BM_GetTemporaryFileBurstOf200)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
