#include "platform/db/sql_tokens_p.h"

#include "platform/db/wide_literals.h"

namespace mv::db {
namespace {

using K = TSqlTokenKind;

// The token of kind `kind` from `start` to one past the closing `close` of the form that opens
// at `open` (a doubled `close` stays inside); to the end of the text when it is not closed.
TSqlToken Quoted(K kind, std::u16string_view s, size_t start, size_t open, char16_t close) {
  for (size_t i = open + 1; i < s.size(); ++i) {
    if (s[i] != close) continue;
    if (i + 1 < s.size() && s[i + 1] == close) {
      ++i;
      continue;
    }
    return {kind, start, i + 1};
  }
  return {kind, start, s.size(), false};
}

TSqlToken Commented(std::u16string_view s, size_t start, std::u16string_view close) {
  const size_t at = s.find(close, start + 2);
  if (at == std::u16string_view::npos) return {K::Comment, start, s.size(), close == u"\n"};
  return {K::Comment, start, at + close.size()};
}

size_t NameEnd(std::u16string_view s, size_t start) {
  size_t end = start;
  while (end < s.size() && IsSqlNameChar(s[end])) ++end;
  return end;
}

bool StartsNational(std::u16string_view s, size_t i) {
  return (s[i] == u'N' || s[i] == u'n') && i + 1 < s.size() && s[i + 1] == u'\'' &&
         (i == 0 || !IsSqlNameChar(s[i - 1]));
}

bool At(std::u16string_view s, size_t i, std::u16string_view word) {
  return s.substr(i, word.size()) == word;
}

// The token that starts at `i`, or a one-character Text token.
TSqlToken TokenAt(std::u16string_view s, size_t i) {
  const char16_t c = s[i];
  if (c == u'\'') return Quoted(K::Literal, s, i, i, u'\'');
  if (StartsNational(s, i)) return Quoted(K::NationalLiteral, s, i, i + 1, u'\'');
  if (c == u'[') return Quoted(K::Name, s, i, i, u']');
  if (c == u'"') return Quoted(K::Name, s, i, i, u'"');
  if (At(s, i, u"--")) return Commented(s, i, u"\n");
  if (At(s, i, u"/*")) return Commented(s, i, u"*/");
  if (c == WideLiteralMark) {
    const size_t close = s.find(WideLiteralMark, i + 1);
    if (close == std::u16string_view::npos) return {K::StrayMark, i, i + 1};
    return {K::Marked, i, close + 1};
  }
  if (At(s, i, u"::")) return {K::DoubleColon, i, i + 2};
  if (c == u':' && i + 1 < s.size() && IsSqlNameChar(s[i + 1]))
    return {K::Parameter, i, NameEnd(s, i + 1)};
  return {K::Text, i, i + 1};
}

// The inside of a quoted literal read back: "''" as "'", and "::" as ":" after an odd number of
// double quotes.
std::u16string QuotedValue(std::u16string_view inside) {
  std::u16string out;
  out.reserve(inside.size());
  bool oddQuotes = false;
  for (size_t i = 0; i < inside.size(); ++i) {
    const char16_t c = inside[i];
    if (c == u'"') oddQuotes = !oddQuotes;
    out += c;
    const bool doubled = i + 1 < inside.size() && inside[i + 1] == c;
    if ((c == u'\'' || (c == u':' && oddQuotes)) && doubled) ++i;
  }
  return out;
}

}  // namespace

bool IsSqlNameChar(char16_t c) {
  return c == u'_' || (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'z') ||
         (c >= u'A' && c <= u'Z');
}

std::vector<TSqlToken> TokenizeSql(std::u16string_view text) {
  std::vector<TSqlToken> tokens;
  size_t i = 0;
  while (i < text.size()) {
    const TSqlToken token = TokenAt(text, i);
    if (token.Kind == TSqlTokenKind::Text && !tokens.empty() &&
        tokens.back().Kind == TSqlTokenKind::Text) {
      tokens.back().End = token.End;
    } else {
      tokens.push_back(token);
    }
    i = token.End;
  }
  return tokens;
}

std::u16string LiteralValue(std::u16string_view text, const TSqlToken& token) {
  if (token.Kind == TSqlTokenKind::Marked)
    return std::u16string(text.substr(token.Start + 1, token.End - token.Start - 2));
  const size_t open = token.Kind == TSqlTokenKind::NationalLiteral ? token.Start + 1 : token.Start;
  return QuotedValue(text.substr(open + 1, token.End - open - 2));
}

}  // namespace mv::db
