// Big5 narrow <-> wide conversion through the library (MV_CodePageToWideString /
// MV_WideStringToCodePage) against ICU's converter called directly, already open, on the same
// text in the same run. Bytes per second count the narrow text's bytes.
// Run: build/bench/codepage_bench (a Release build gives the figures worth quoting).
#include <benchmark/benchmark.h>
#include <unicode/ucnv.h>

#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "common/text/conversions.h"

namespace {

constexpr uint16_t kBig5 = 950;

struct ConverterCloser {
  void operator()(UConverter* c) const { ucnv_close(c); }
};
using ConverterPtr = std::unique_ptr<UConverter, ConverterCloser>;

ConverterPtr OpenBig5() {
  UErrorCode status = U_ZERO_ERROR;
  ConverterPtr conv(ucnv_open("windows-950-2000", &status));
  if (U_FAILURE(status)) throw std::runtime_error(u_errorName(status));
  return conv;
}

// A trade-document-like text of about `bytes` Big5 bytes: Chinese words, Latin codes and digits.
std::u16string WideText(size_t bytes) {
  const std::u16string line =
      u"報關資料 TDEC 電子貿易文件 進口 出口 貨品說明: 棉質襯衫 數量 1200 件, 價值 HK$ "
      u"35,600.00\r\n";
  std::u16string text;
  while (text.size() * 3 / 2 < bytes) text += line;
  return text;
}

std::string Big5Text(size_t bytes) {
  return mv::MV_WideStringToCodePage(WideText(bytes), kBig5);
}

void LibraryToWide(benchmark::State& state) {
  const std::string narrow = Big5Text(static_cast<size_t>(state.range(0)));
  for (auto _ : state) {
    std::u16string wide = mv::MV_CodePageToWideString(narrow, kBig5);
    benchmark::DoNotOptimize(wide.data());
  }
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * narrow.size()));
}

void IcuToWide(benchmark::State& state) {
  const std::string narrow = Big5Text(static_cast<size_t>(state.range(0)));
  ConverterPtr conv = OpenBig5();
  std::vector<UChar> buffer(narrow.size() + 1);
  for (auto _ : state) {
    UErrorCode status = U_ZERO_ERROR;
    int32_t n = ucnv_toUChars(conv.get(), buffer.data(), static_cast<int32_t>(buffer.size()),
                              narrow.data(), static_cast<int32_t>(narrow.size()), &status);
    benchmark::DoNotOptimize(n);
  }
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * narrow.size()));
}

void LibraryFromWide(benchmark::State& state) {
  const std::u16string wide = WideText(static_cast<size_t>(state.range(0)));
  size_t bytes = 0;
  for (auto _ : state) {
    std::string narrow = mv::MV_WideStringToCodePage(wide, kBig5);
    bytes = narrow.size();
    benchmark::DoNotOptimize(narrow.data());
  }
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * bytes));
}

void IcuFromWide(benchmark::State& state) {
  const std::u16string wide = WideText(static_cast<size_t>(state.range(0)));
  ConverterPtr conv = OpenBig5();
  std::vector<char> buffer(wide.size() * 2 + 16);
  int32_t n = 0;
  for (auto _ : state) {
    UErrorCode status = U_ZERO_ERROR;
    n = ucnv_fromUChars(conv.get(), buffer.data(), static_cast<int32_t>(buffer.size()), wide.data(),
                        static_cast<int32_t>(wide.size()), &status);
    benchmark::DoNotOptimize(n);
  }
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * n));
}

// The same through the user's code page (MV_CODEPAGE=950), which the library looks up per call.
void LibraryToAnsi(benchmark::State& state) {
  setenv("MV_CODEPAGE", "950", 1);
  const std::u16string wide = WideText(static_cast<size_t>(state.range(0)));
  size_t bytes = 0;
  for (auto _ : state) {
    std::string narrow = mv::MV_WideStringToAnsi(wide);
    bytes = narrow.size();
    benchmark::DoNotOptimize(narrow.data());
  }
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * bytes));
}

// A form field (about 40 bytes) and a whole document (about 256 KiB).
BENCHMARK(LibraryToWide)->Arg(40)->Arg(256 << 10);
BENCHMARK(IcuToWide)->Arg(40)->Arg(256 << 10);
BENCHMARK(LibraryFromWide)->Arg(40)->Arg(256 << 10);
BENCHMARK(IcuFromWide)->Arg(40)->Arg(256 << 10);
BENCHMARK(LibraryToAnsi)->Arg(40);

}  // namespace

BENCHMARK_MAIN();
