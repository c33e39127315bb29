// The cost of taking narrow paths to the system's file names: the conversion alone, and a whole
// existence check on an ASCII path and on a Big5 path under code page 950.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "platform/files/file_names.h"
#include "platform/files/paths.h"

namespace {

namespace fs = std::filesystem;

// A folder "報關/server" (UTF-8 on disk) under a fresh temporary folder, removed at the end.
class Big5Folder {
 public:
  Big5Folder() {
    ::setenv("MV_CODEPAGE", "950", 1);
    std::string pattern = (fs::temp_directory_path() / "mvbench.XXXXXX").string();
    root_ = ::mkdtemp(pattern.data());
    fs::create_directories(root_ + "/報關/server");
    fs::create_directories(root_ + "/ascii/server");
  }
  ~Big5Folder() { fs::remove_all(root_); }
  std::string Big5Path() const { return root_ + "/\xB3\xF8\xC3\xF6/server"; }
  std::string AsciiPath() const { return root_ + "/ascii/server"; }

 private:
  std::string root_;
};

void BM_EncodeBig5Path(benchmark::State& state) {
  const Big5Folder folder;
  const std::string path = folder.Big5Path();
  for (auto _ : state) benchmark::DoNotOptimize(mv::files::EncodeFileName(path));
}
BENCHMARK(BM_EncodeBig5Path);

void BM_DirectoryExistsAscii(benchmark::State& state) {
  const Big5Folder folder;
  const std::string path = folder.AsciiPath();
  for (auto _ : state) benchmark::DoNotOptimize(mv::files::DirectoryExists(path));
}
BENCHMARK(BM_DirectoryExistsAscii);

void BM_DirectoryExistsBig5(benchmark::State& state) {
  const Big5Folder folder;
  const std::string path = folder.Big5Path();
  if (!mv::files::DirectoryExists(path)) state.SkipWithError("the Big5 folder is not found");
  for (auto _ : state) benchmark::DoNotOptimize(mv::files::DirectoryExists(path));
}
BENCHMARK(BM_DirectoryExistsBig5);

}  // namespace

BENCHMARK_MAIN();
