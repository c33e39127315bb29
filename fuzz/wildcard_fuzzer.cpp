// libFuzzer target of the wildcard translator. The input is a search pattern, read once as narrow
// text (Big5) and once as wide text (UTF-16 units, two bytes each, made a carrier of plain text).
// Every condition has balanced parentheses outside its literals, and in the marked form nothing
// of the pattern stands outside the marks: only the column and the translator's fixed words.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "common/search/wildcard.h"
#include "common/text/conversions.h"

namespace {

constexpr std::string_view kColumn = "MsgRef";

// Parentheses outside the quoted literals ('...' with '' inside) pair up.
template <class Char>
void CheckQuotedBalance(std::basic_string_view<Char> condition) {
  int depth = 0;
  bool quoted = false;
  for (Char c : condition) {
    if (c == Char('\'')) quoted = !quoted;  // a doubled quote closes and opens again
    if (quoted) continue;
    depth += c == Char('(') ? 1 : c == Char(')') ? -1 : 0;
    if (depth < 0) std::abort();
  }
  if (quoted || depth != 0) std::abort();
}

void RemoveAll(std::u16string& text, std::u16string_view word) {
  for (size_t at = text.find(word); at != std::u16string::npos; at = text.find(word, at))
    text.erase(at, word.size());
}

// The marked condition without its literals is made of the column, the fixed words and
// balanced parentheses only.
void CheckMarked(std::u16string_view condition) {
  std::u16string outside;
  bool marked = false;
  for (char16_t c : condition) {
    if (c == mv::WideLiteralMark) {
      marked = !marked;
    } else if (!marked) {
      outside += c;
    }
  }
  if (marked) std::abort();
  for (std::u16string_view word : {u" IS NULL", u" Escape '!'", u"MsgRef", u" like ", u" >= ",
                                   u" <= ", u" = ", u" and ", u" or "})
    RemoveAll(outside, word);
  int depth = 0;
  for (char16_t c : outside) {
    if (c != u'(' && c != u')') std::abort();
    depth += c == u'(' ? 1 : -1;
    if (depth < 0) std::abort();
  }
  if (depth != 0) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  setenv("MV_CODEPAGE", "950", 1);
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string narrow(reinterpret_cast<const char*>(data), size);
  CheckQuotedBalance<char>(mv::ChangeWildCard(kColumn, narrow, true));

  std::u16string units(size / 2, u'\0');
  for (size_t i = 0; i < units.size(); ++i)
    units[i] = static_cast<char16_t>(data[2 * i] | (data[2 * i + 1] << 8));
  const std::u16string pattern = mv::MV_WideStringToWideVc(units);
  CheckQuotedBalance<char16_t>(mv::ChangeWildCard(kColumn, pattern, true, false));
  CheckMarked(mv::ChangeWildCard(kColumn, pattern, false, true));
  return 0;
}
