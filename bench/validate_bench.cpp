// Speed of the input checks over 1 MB of field text: the two check-character routines over
// 13-character references, ChkFormat over 16-character values and their mask, and ChkChiCharset
// over mixed English, Traditional and common Chinese text with the demo's generated code list
// (TCCS.map), whose look-up is one table probe per character. Bytes processed count the field
// text: one byte per narrow character, two per UTF-16 unit.
#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "common/frame/shared_state.h"
#include "common/validate/check_digits.h"
#include "common/validate/chinese_code_list.h"
#include "common/validate/syntax_checks.h"

namespace {

constexpr size_t kFieldText = 1 << 20;

// References of 13 letters and digits, kFieldText bytes in all.
const std::vector<std::string>& References() {
  static const std::vector<std::string> references = [] {
    std::vector<std::string> out;
    const std::string letters = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ";
    for (size_t i = 0; out.size() * 13 < kFieldText; ++i) {
      std::string ref(13, '0');
      for (size_t j = 0; j < ref.size(); ++j) ref[j] = letters[(i * 7 + j * 13 + i / 36) % 36];
      out.push_back(ref);
    }
    return out;
  }();
  return references;
}

template <char (*Check)(std::string_view)>
void BM_CheckCharacter(benchmark::State& state) {
  const auto& references = References();
  for (auto _ : state) {
    for (const std::string& ref : references) benchmark::DoNotOptimize(Check(ref));
  }
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * references.size() * 13));
}
BENCHMARK(BM_CheckCharacter<mv::Modulus11>)->Name("Modulus11/1MB");
BENCHMARK(BM_CheckCharacter<mv::Modulus36>)->Name("Modulus36/1MB");

void BM_ChkFormat(benchmark::State& state) {
  const std::u16string mask = u"AA9999O*XXXX-999";
  std::vector<std::u16string> values;
  for (size_t i = 0; values.size() * mask.size() * 2 < kFieldText; ++i) {
    std::u16string value = u"hk" + std::u16string(4, static_cast<char16_t>(u'0' + i % 10)) +
                           u"/報" + u"A1b2" + u"-" + std::u16string(3, u'7');
    values.push_back(value);
  }
  const mv::TCharSet others = mv::MakeCharSet("/-.");
  for (auto _ : state) {
    for (const std::u16string& value : values)
      benchmark::DoNotOptimize(mv::ChkFormat(value, mask, others));
  }
  state.SetBytesProcessed(
      static_cast<int64_t>(state.iterations() * values.size() * mask.size() * 2));
}
BENCHMARK(BM_ChkFormat)->Name("ChkFormat/1MB");

void BM_ChkChiCharset(benchmark::State& state) {
  mv::ServerPath = MV_DEMO_SERVER_DIR "/";
  if (mv::InstalledChineseCodeList().Empty()) {
    state.SkipWithError("the demo's TCCS.map is missing");
    return;
  }
  // Fields of 64 units: English words, common and Traditional characters, full-width commas.
  const std::u16string field =
      u"Invoice TD2026-0001 貨物說明：電子零件，台灣製造 發票 "
      u"Qty 120 pcs 每箱十二件，共十箱 報單編號 12345 ";
  std::vector<std::u16string> fields(kFieldText / 2 / field.size(), field);
  for (auto _ : state) {
    char charset = mv::kCharsetEnglish;
    for (const std::u16string& text : fields) mv::ChkChiCharset(text, u"Goods", charset);
    benchmark::DoNotOptimize(charset);
  }
  state.SetBytesProcessed(
      static_cast<int64_t>(state.iterations() * fields.size() * field.size() * 2));
}
BENCHMARK(BM_ChkChiCharset)->Name("ChkChiCharset/1MB");

}  // namespace

BENCHMARK_MAIN();
