// libFuzzer target of the text format of the user's settings column. The input is UTF-16 units
// (two bytes each, little-endian): the first unit says how the entry to set is chosen, then come
// the key and the value, and the rest is the stored text. The text is loaded, the entry set, the
// text saved and loaded again; the reloaded text must give the value just set, every other
// entry's value as before, and the same lines when saved and loaded once more.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <stdexcept>
#include <string>
#include <string_view>

#include "common/settings/preference_text.h"

namespace {

using mv::TPreferenceText;

void Check(bool condition) {
  if (!condition) std::abort();
}

// The key of line `n` of the text with its ASCII letters' case swapped, when `n` names a line
// that has a key; else `fallback`.
std::u16string KeyOfLine(const TPreferenceText& text, size_t n, std::u16string fallback) {
  if (text.Lines().empty()) return fallback;
  const std::u16string& line = text.Lines()[n % text.Lines().size()];
  const size_t equals = line.find(u'=');
  if (equals == std::u16string::npos) return fallback;
  std::u16string key = line.substr(0, equals);
  for (char16_t& c : key)
    if ((c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z')) c ^= 0x20;
  return key;
}

void CheckSet(const TPreferenceText& before, std::u16string_view key, std::u16string_view value) {
  const bool refused = key.find_first_of(u"=\r\n") != std::u16string_view::npos ||
                       value.find_first_of(u"\r\n") != std::u16string_view::npos;
  TPreferenceText edited = before;
  try {
    edited.SetValue(key, value);
  } catch (const std::invalid_argument&) {
    Check(refused && edited.Lines() == before.Lines());
    return;
  }
  Check(!refused);
  const TPreferenceText reloaded(edited.Text());
  Check(reloaded.Lines() == edited.Lines());
  Check(reloaded.Value(key) == value);
  const size_t had =
      std::count_if(before.Lines().begin(), before.Lines().end(),
                    [&](const auto& line) { return mv::PreferenceLineHasKey(line, key); });
  const size_t expected =
      value.empty() ? before.Lines().size() - had : before.Lines().size() + (had == 0 ? 1 : 0);
  Check(reloaded.Lines().size() == expected);
  for (const std::u16string& line : before.Lines()) {
    const size_t equals = line.find(u'=');
    if (equals == std::u16string::npos) continue;
    const std::u16string_view other = std::u16string_view(line).substr(0, equals);
    if (!mv::PreferenceLineHasKey(line, key)) Check(reloaded.Value(other) == before.Value(other));
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  std::u16string units(size / 2, u'\0');
  std::memcpy(units.data(), data, units.size() * 2);
  if (units.empty()) return 0;
  const char16_t choice = units[0];
  std::u16string_view rest = std::u16string_view(units).substr(1);
  const size_t keyLength = std::min<size_t>(choice & 0x7, rest.size());
  std::u16string key(rest.substr(0, keyLength));
  rest.remove_prefix(keyLength);
  const size_t valueLength = std::min<size_t>((choice >> 3) & 0xF, rest.size());
  const std::u16string value(rest.substr(0, valueLength));
  rest.remove_prefix(valueLength);

  const TPreferenceText text(rest);
  Check(TPreferenceText(text.Text()).Lines() == text.Lines());
  if (choice & 0x8000) key = KeyOfLine(text, choice >> 7, key);
  CheckSet(text, key, value);
  return 0;
}
