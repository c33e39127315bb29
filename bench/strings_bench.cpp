// Speed of the case routines over 1 MiB of mixed English and Chinese text, as Big5 narrow text
// and as the same text in UTF-16; the sort of a string list by the user's language.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <string>

#include "common/frame/string_list.h"
#include "common/text/str_utils.h"
#include "platform/codepage/codepage.h"

namespace {

constexpr size_t kNarrowBytes = 1 << 20;

// 1 MiB of Big5 text: English words, Chinese words, digits and punctuation.
const std::string& MixedBig5() {
  static const std::string text = [] {
    std::u16string line = u"Trade declaration 報關單 no. 12345 for IMPORT goods 進口貨物, o'neil ";
    std::string unit = mv::codepage::FromWide(line, mv::codepage::kBig5);
    std::string out;
    while (out.size() + unit.size() <= kNarrowBytes) out += unit;
    return out;
  }();
  return text;
}

const std::u16string& MixedWide() {
  static const std::u16string text = mv::codepage::ToWide(MixedBig5(), mv::codepage::kBig5);
  return text;
}

const std::string& EnglishOnly() {
  static const std::string text = [] {
    std::string out;
    while (out.size() < kNarrowBytes) out += "Trade declaration no. 12345 for IMPORT goods ";
    return out;
  }();
  return text;
}

template <class Text, class Routine>
void Run(benchmark::State& state, const Text& text, Routine routine) {
  for (auto _ : state) benchmark::DoNotOptimize(routine(text));
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) *
                          static_cast<int64_t>(text.size() * sizeof(typename Text::value_type)));
}

void BM_ChangeCaseBig5(benchmark::State& state) {
  Run(state, MixedBig5(), [](const std::string& s) { return mv::ChangeCase(s); });
}
void BM_ChangeCaseWide(benchmark::State& state) {
  Run(state, MixedWide(), [](const std::u16string& s) { return mv::ChangeCase(s); });
}
void BM_ChangeCaseEnglishOnly(benchmark::State& state) {
  Run(state, EnglishOnly(), [](const std::string& s) { return mv::ChangeCase(s); });
}
void BM_WideUpperCaseBig5(benchmark::State& state) {
  Run(state, MixedBig5(), [](const std::string& s) { return mv::MV_WideUpperCase(s); });
}
void BM_WideUpperCaseWide(benchmark::State& state) {
  Run(state, MixedWide(), [](const std::u16string& s) { return mv::MV_WideUpperCase(s); });
}

// A list of 2,000 "key=value" lines in Big5, numbered keys and Chinese values, shuffled.
void BM_SortStringList(benchmark::State& state) {
  mv::TStringList lines;
  const std::string value = mv::codepage::FromWide(u"報關單 TDEC_SERVICE,0", mv::codepage::kBig5);
  for (int i = 0; i < 2000; ++i) lines.push_back(std::to_string((i * 7919) % 2000) + "=" + value);
  for (auto _ : state) {
    mv::TStringList copy = lines;
    mv::SortStringList(copy);
    benchmark::DoNotOptimize(copy);
  }
  state.SetItemsProcessed(static_cast<int64_t>(state.iterations()) * 2000);
}

BENCHMARK(BM_ChangeCaseBig5)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SortStringList)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ChangeCaseWide)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ChangeCaseEnglishOnly)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_WideUpperCaseBig5)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_WideUpperCaseWide)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  // Narrow text is Big5 for every routine measured here.
  setenv("MV_CODEPAGE", "950", 1);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
