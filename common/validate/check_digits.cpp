#include "common/validate/check_digits.h"

#include <algorithm>

#include "common/frame/shared_state.h"
#include "common/text/str_utils.h"
#include "platform/files/paths.h"
#include "platform/modules/module_loader.h"

namespace mv {
namespace {

constexpr std::string_view kLetters = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ";
constexpr size_t kCheckedPositions = 13;

// The index of every byte in Letter36, -1 for the others.
constexpr std::array<int8_t, 256> kIndex36 = [] {
  std::array<int8_t, 256> index{};
  index.fill(-1);
  for (size_t i = 0; i < kLetters.size(); ++i)
    index[static_cast<unsigned char>(kLetters[i])] = static_cast<int8_t>(i);
  return index;
}();

// The first 13 characters of `s` as their Letter36 values (-1 for a character outside it or a
// position past the end of `s`).
std::array<int, kCheckedPositions> Values36(std::string_view s) {
  std::array<int, kCheckedPositions> values;
  values.fill(-1);
  for (size_t i = 0; i < std::min(s.size(), kCheckedPositions); ++i) values[i] = Get36(s[i]);
  return values;
}

}  // namespace

const TCharSet Alphas = MakeCharSet("ABCDEFGHIJKLMNOPQRSTUVWXYZ");
const TCharSet AllDigits = MakeCharSet("0123456789");
const TCharSet EvenDigits = MakeCharSet("02468");
const TCharSet OddDigits = MakeCharSet("13579");
const std::array<std::string_view, 36> Letter36 = [] {
  std::array<std::string_view, 36> table;
  for (size_t i = 0; i < table.size(); ++i) table[i] = kLetters.substr(i, 1);
  return table;
}();
const std::array<std::string_view, 10> LetterY = {"J", "L", "N", "P", "R", "T", "B", "D", "F", "H"};

bool ChkDigits(std::string_view s) {
  return std::all_of(s.begin(), s.end(),
                     [](char c) { return AllDigits.test(static_cast<unsigned char>(c)); });
}

int Get36(char c) {
  return kIndex36[static_cast<unsigned char>(c)];
}

char Put36Y(int i, std::span<const std::string_view> table, int /*high*/) {
  return table[static_cast<size_t>(i)][0];
}

std::string mod36(int64_t n) {
  if (n <= 0) return "0";
  std::string out;
  for (; n > 0; n /= 36) out += kLetters[static_cast<size_t>(n % 36)];
  std::reverse(out.begin(), out.end());
  return out;
}

char Modulus11(std::string_view s) {
  const auto values = Values36(s);
  int sum = 0;
  // Position 13 weighs 2, each position to its left one more, 10 being followed by 2 again.
  for (size_t position = kCheckedPositions; position >= 1; --position) {
    const int weight = 2 + static_cast<int>((kCheckedPositions - position) % 9);
    if (values[position - 1] >= 0) sum += values[position - 1] * weight;
  }
  return kLetters[static_cast<size_t>(11 - sum % 11)];
}

char Modulus36(std::string_view s) {
  const auto values = Values36(s);
  int odd = 0;
  int even = 0;
  for (size_t position = 1; position <= kCheckedPositions; ++position) {
    const int value = values[position - 1];
    if (value < 0) continue;
    (position % 2 == 1 ? odd : even) += value;
  }
  const int total = odd + 7 * even;
  return kLetters[static_cast<size_t>((36 - total % 36) % 36)];
}

bool ChkBRNDigit(std::string_view s) {
  const std::string path = files::ResolveFileName(ServerPath + modules::ModuleFileName("ChkBRN"));
  const modules::ModuleHandle library = modules::LoadModule(path);
  if (library == 0) return true;
  bool answer = true;
  try {
    if (auto check = reinterpret_cast<TChkBRNProc>(modules::GetExport(library, "ChkBRN"))) {
      const std::string number = AllTrim(s);
      answer = check(number.c_str()) != 0;
    }
  } catch (...) {
    answer = true;
  }
  modules::FreeModule(library);
  return answer;
}

}  // namespace mv
