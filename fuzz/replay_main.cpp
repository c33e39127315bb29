// The main program of a fuzz target built without libFuzzer: it runs the target once over every
// kept input named on the command line (a file, or each file of a folder, in name order), so that
// the normal and sanitizer builds replay every crash and edge case the fuzzers were ever given.
// Exit code 0 when every input ran through, 1 when the target refused one, 2 when there was no
// input to run (a missing or empty corpus folder must not pass unnoticed).
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <system_error>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);
// Optional in a target, as with libFuzzer.
extern "C" __attribute__((weak)) int LLVMFuzzerInitialize(int* argc, char*** argv);

namespace {

namespace fs = std::filesystem;

// The files an argument names: itself, or the regular files of the folder in name order.
std::vector<fs::path> InputsOf(const fs::path& argument) {
  std::error_code error;
  if (!fs::is_directory(argument, error)) {
    return fs::is_regular_file(argument, error) ? std::vector<fs::path>{argument}
                                                : std::vector<fs::path>{};
  }
  std::vector<fs::path> files;
  for (const fs::directory_entry& entry : fs::directory_iterator(argument, error)) {
    if (entry.is_regular_file(error)) files.push_back(entry.path());
  }
  std::sort(files.begin(), files.end());
  return files;
}

// Runs the target over the bytes of `file`, given in a buffer of exactly their size so that
// AddressSanitizer sees a read past the end. False when the file cannot be read or the target
// answers neither 0 nor -1 (the two answers libFuzzer accepts).
bool Replay(const fs::path& file) {
  std::fprintf(stderr, "replaying %s\n", file.c_str());
  std::ifstream in(file, std::ios::binary);
  const std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  if (!in.good() && !in.eof()) return false;
  const std::unique_ptr<uint8_t[]> data(new uint8_t[bytes.size()]);
  std::copy(bytes.begin(), bytes.end(), data.get());
  const int answer = LLVMFuzzerTestOneInput(data.get(), bytes.size());
  return answer == 0 || answer == -1;
}

}  // namespace

int main(int argc, char** argv) {
  if (LLVMFuzzerInitialize != nullptr) LLVMFuzzerInitialize(&argc, &argv);
  size_t replayed = 0;
  for (int i = 1; i < argc; ++i) {
    for (const fs::path& file : InputsOf(argv[i])) {
      if (!Replay(file)) {
        std::fprintf(stderr, "%s: the target refused this input\n", file.c_str());
        return 1;
      }
      ++replayed;
    }
  }
  if (replayed == 0) {
    std::fprintf(stderr, "usage: %s FILE|FOLDER...: no input found to replay\n", argv[0]);
    return 2;
  }
  std::printf("%zu inputs replayed\n", replayed);
  return 0;
}
