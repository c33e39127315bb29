#include "common/search/query_text.h"

#include "common/search/wildcard.h"
#include "common/search/wildcard_terms.h"
#include "common/text/conversions.h"
#include "platform/db/wide_literals.h"

namespace mv {
namespace {

// The value escaped for a like condition with Escape '!' and its quotes doubled; "*" and "?"
// stay as they are, as the value holds no wildcards.
std::u16string EscapedValue(std::u16string_view value) {
  std::u16string out;
  for (char16_t c : value) {
    if (c == u'!' || c == u'_' || c == u'%' || c == u'[') out += search::WildEscapeChar;
    out += c;
    if (c == u'\'') out += c;
  }
  return out;
}

}  // namespace

std::u16string AddWildCard(std::string_view fieldName, std::u16string_view pattern,
                           std::string_view joiner) {
  std::u16string condition = ChangeWildCard(fieldName, pattern, false, true);
  if (condition.empty()) return {};
  // Appended piece by piece: a chain of operator+ on temporaries makes GCC 12 at -O3 see an
  // overlapping copy (-Wrestrict) where there is none.
  const std::u16string word = MV_AnsiToWideString(joiner);
  std::u16string out;
  out.reserve(word.size() + condition.size() + 2);
  out += u' ';
  out += word;
  out += u' ';
  out += condition;
  return out;
}

std::string StrSQLCond(std::string_view fieldName, std::u16string_view value) {
  const std::string field(fieldName);
  if (value.empty()) return "((" + field + " = '') or (" + field + " IS NULL))";
  const std::u16string text = RepeatColonAfterOddDBQuote(EscapedValue(value));
  const std::string literal = MV_WideStringToAnsi(text);
  if (text.find(search::WildEscapeChar) == std::u16string::npos)
    return "(" + field + " = '" + literal + "')";
  return "(" + field + " like '" + literal + "' Escape '!')";
}

std::u16string RepeatColonAfterOddDBQuote(std::u16string_view text) {
  if (text.find(u'"') == std::u16string_view::npos || text.find(u':') == std::u16string_view::npos)
    return std::u16string(text);
  return db::ColonsDoubledAfterOddDoubleQuote(text);
}

std::u16string CheckQuot(std::u16string_view text) {
  return db::InlineLiteralBody(text);
}

// The quote, double quote and colon bytes never stand as the second byte of a double-byte
// character in the code pages the client uses (Big5, GBK and UTF-8 second bytes are 0x40 and
// above), so bytes will do.
std::string CheckQuot(std::string_view text) {
  return db::InlineLiteralBody(text);
}

}  // namespace mv
