#include "platform/db/sql_text.h"

#include <cctype>

#include "modules/mv_widevc.h"

namespace mv::db {
namespace {

bool IsNameChar(char16_t c) {
  return c == u'_' || (c < 128 && std::isalnum(static_cast<unsigned char>(c)));
}

bool IsBlank(char16_t c) {
  return c == u' ' || c == u'\t' || c == u'\r' || c == u'\n';
}

char16_t Lower(char16_t c) {
  return c >= u'A' && c <= u'Z' ? c + 32 : c;
}

// The end of the quoted literal that opens at `start` (one past its closing quote; a doubled
// quote stays inside).
size_t QuotedEnd(std::u16string_view s, size_t start, char16_t quote) {
  size_t i = start + 1;
  while (i < s.size()) {
    if (s[i] == quote) {
      if (i + 1 < s.size() && s[i + 1] == quote) {
        i += 2;
        continue;
      }
      return i + 1;
    }
    ++i;
  }
  return s.size();
}

bool WordAt(std::u16string_view s, size_t i, std::u16string_view word) {
  if (i + word.size() > s.size()) return false;
  for (size_t k = 0; k < word.size(); ++k) {
    if (Lower(s[i + k]) != word[k]) return false;
  }
  const bool startOk = i == 0 || !IsNameChar(s[i - 1]);
  const bool endOk = i + word.size() == s.size() || !IsNameChar(s[i + word.size()]);
  return startOk && endOk;
}

// After "convert" at `i`: the end of the bare type name (with its size, "varchar(20)") that opens
// the argument list and is followed by a comma; 0 when the text is not of that shape.
size_t ConvertTypeEnd(std::u16string_view s, size_t i) {
  while (i < s.size() && IsBlank(s[i])) ++i;
  if (i == s.size() || s[i] != u'(') return 0;
  ++i;
  while (i < s.size() && IsBlank(s[i])) ++i;
  const size_t start = i;
  while (i < s.size() && IsNameChar(s[i])) ++i;
  if (i == start || !std::isalpha(static_cast<unsigned char>(s[start]))) return 0;
  size_t end = i;
  while (i < s.size() && IsBlank(s[i])) ++i;
  if (i < s.size() && s[i] == u'(') {
    const size_t close = s.find(u')', i);
    if (close == std::u16string_view::npos) return 0;
    end = i = close + 1;
    while (i < s.size() && IsBlank(s[i])) ++i;
  }
  return i < s.size() && s[i] == u',' ? end : 0;
}

}  // namespace

TPreparedSql PrepareSql(std::u16string_view commandText) {
  const std::u16string text = modules::MV_WideVcLiteralsToSql(commandText);
  TPreparedSql out;
  size_t i = 0;
  while (i < text.size()) {
    const char16_t c = text[i];
    if (c == u'\'') {
      const size_t end = QuotedEnd(text, i, u'\'');
      out.Sql.append(text, i, end - i);
      i = end;
    } else if (c == u':' && i + 1 < text.size() && text[i + 1] == u':') {
      out.Sql += u':';
      i += 2;
    } else if (c == u':' && i + 1 < text.size() && IsNameChar(text[i + 1])) {
      size_t end = i + 1;
      while (end < text.size() && IsNameChar(text[end])) ++end;
      out.Places.emplace_back(text.begin() + i + 1, text.begin() + end);
      out.Sql += u'?';
      i = end;
    } else {
      out.Sql += c;
      ++i;
    }
  }
  return out;
}

std::u16string SqliteDialect(std::u16string_view sql) {
  std::u16string out;
  size_t i = 0;
  while (i < sql.size()) {
    const char16_t c = sql[i];
    if ((c == u'N' || c == u'n') && i + 1 < sql.size() && sql[i + 1] == u'\'' &&
        (i == 0 || !IsNameChar(sql[i - 1]))) {
      ++i;  // the national prefix; the literal follows as it is
      continue;
    }
    if (c == u'\'') {
      const size_t end = QuotedEnd(sql, i, u'\'');
      out.append(sql, i, end - i);
      i = end;
      continue;
    }
    if (WordAt(sql, i, u"convert")) {
      if (const size_t typeEnd = ConvertTypeEnd(sql, i + 7); typeEnd != 0) {
        const size_t open = sql.find(u'(', i + 7);
        size_t start = open + 1;
        while (IsBlank(sql[start])) ++start;
        out.append(sql, i, start - i);
        out += u'\'';
        out.append(sql, start, typeEnd - start);
        out += u'\'';
        i = typeEnd;
        continue;
      }
    }
    out += c;
    ++i;
  }
  return out;
}

std::u16string SingleTableOf(std::u16string_view sql) {
  size_t i = 0;
  int depth = 0;
  while (i < sql.size()) {
    const char16_t c = sql[i];
    if (c == u'\'' || c == u'"') {
      i = QuotedEnd(sql, i, c);
      continue;
    }
    if (c == u'(') ++depth;
    if (c == u')') --depth;
    if (depth == 0 && WordAt(sql, i, u"from")) break;
    ++i;
  }
  if (i >= sql.size()) return {};
  i += 4;
  while (i < sql.size() && IsBlank(sql[i])) ++i;
  const size_t start = i;
  while (i < sql.size() && (IsNameChar(sql[i]) || sql[i] == u'.' || sql[i] == u'[' ||
                            sql[i] == u']' || sql[i] >= 128)) {
    ++i;
  }
  if (start == i) return {};
  const std::u16string table(sql.substr(start, i - start));
  while (i < sql.size() && IsBlank(sql[i])) ++i;
  if (i == sql.size() || sql[i] == u';') return table;
  for (std::u16string_view next : {u"where", u"order", u"group", u"having", u"with"}) {
    if (WordAt(sql, i, next)) return table;
  }
  return {};
}

}  // namespace mv::db
