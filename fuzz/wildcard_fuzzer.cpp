// libFuzzer target of the wildcard translator. The input is a search pattern, read once as narrow
// text (Big5) and once as wide text (UTF-16 units, two bytes each, made a carrier of plain text).
// Every condition has balanced parentheses outside its literals; in the marked form nothing of
// the pattern stands outside the marks, and once AddWildCard has made the marked literals
// parameters, the command text holds only the column, the fixed words and the parameter names.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

#include "common/search/add_wildcard.h"
#include "common/search/wildcard.h"
#include "common/text/conversions.h"
#include "platform/db/command.h"

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

// Parameter names " :pTmp" + digits in `text` written " P", as literals are in CheckMarked.
void PlaceholdersForParameters(std::u16string& text) {
  constexpr std::u16string_view kName = u" :pTmp";
  for (size_t at = text.find(kName); at != std::u16string::npos; at = text.find(kName, at)) {
    size_t end = at + kName.size();
    while (end < text.size() && text[end] >= u'0' && text[end] <= u'9') ++end;
    if (end == at + kName.size()) std::abort();
    text.replace(at, end - at, u" P");
  }
}

// `outside`, literals written "P", with the column and the fixed words taken out is balanced
// parentheses only.
void CheckOnlyFixedWords(std::u16string outside) {
  for (std::u16string_view word : {u" IS NULL", u" Escape '!'", u"MsgRef", u" like P", u" >= P",
                                   u" <= P", u" = P", u" and ", u" or "})
    RemoveAll(outside, word);
  if (outside.find_first_not_of(u"()") != std::u16string::npos) std::abort();
  CheckQuotedBalance<char16_t>(outside);
}

// The marked condition without its literals holds only the column and the fixed words.
void CheckMarked(std::u16string_view condition) {
  std::u16string outside;
  bool marked = false;
  for (char16_t c : condition) {
    if (c == mv::WideLiteralMark) {
      marked = !marked;
      if (marked) outside += u'P';
    } else if (!marked) {
      outside += c;
    }
  }
  if (marked) std::abort();
  CheckOnlyFixedWords(outside);
}

// AddWildCard makes one parameter per literal and appends nothing of the pattern.
void CheckAttached(std::u16string_view condition, std::u16string_view pattern) {
  static constexpr std::u16string_view kSelect = u"select * from Inbox";
  mv::db::TMVADOCommand query;
  query.SetCommandText(kSelect);
  mv::AddWildCard(query, "MsgRef", pattern, true, false, "");
  std::u16string attached = query.CommandText().substr(kSelect.size());
  if (condition.empty() != attached.empty()) std::abort();
  if (attached.empty()) return;
  if (!attached.starts_with(u" Where ")) std::abort();
  attached.erase(0, 7);
  PlaceholdersForParameters(attached);
  CheckOnlyFixedWords(attached);
  if (std::count(condition.begin(), condition.end(), mv::WideLiteralMark) !=
      2 * query.Parameters().Count())
    std::abort();
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
  std::memcpy(units.data(), data, units.size() * 2);
  const std::u16string pattern = mv::MV_WideStringToWideVc(units);
  CheckQuotedBalance<char16_t>(mv::ChangeWildCard(kColumn, pattern, true, false));
  const std::u16string marked = mv::ChangeWildCard(kColumn, pattern, false, true);
  CheckMarked(marked);
  CheckAttached(marked, pattern);
  return 0;
}
