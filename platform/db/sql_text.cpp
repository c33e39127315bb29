#include "platform/db/sql_text_p.h"

#include <algorithm>
#include <cctype>

#include "platform/db/sql_tokens_p.h"

namespace mv::db {
namespace {

using K = TSqlTokenKind;

bool IsBlank(char16_t c) {
  return c == u' ' || c == u'\t' || c == u'\r' || c == u'\n';
}

char16_t Lower(char16_t c) {
  return c >= u'A' && c <= u'Z' ? c + 32 : c;
}

bool IsHigh(char16_t c) {
  return c >= 0xD800 && c <= 0xDBFF;
}

bool IsLow(char16_t c) {
  return c >= 0xDC00 && c <= 0xDFFF;
}

bool WordAt(std::u16string_view s, size_t i, std::u16string_view word) {
  if (i + word.size() > s.size()) return false;
  for (size_t k = 0; k < word.size(); ++k) {
    if (Lower(s[i + k]) != word[k]) return false;
  }
  const bool startOk = i == 0 || !IsSqlNameChar(s[i - 1]);
  const bool endOk = i + word.size() == s.size() || !IsSqlNameChar(s[i + word.size()]);
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
  while (i < s.size() && IsSqlNameChar(s[i])) ++i;
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

// Appends the Text token `t` of `sql` with the type name of each CONVERT(type, ...) quoted.
void AppendDialectText(std::u16string_view sql, const TSqlToken& t, std::u16string& out) {
  size_t i = t.Start;
  while (i < t.End) {
    if (WordAt(sql, i, u"convert")) {
      if (const size_t typeEnd = ConvertTypeEnd(sql, i + 7); typeEnd != 0 && typeEnd <= t.End) {
        size_t start = sql.find(u'(', i + 7) + 1;
        while (IsBlank(sql[start])) ++start;
        out.append(sql, i, start - i);
        out += u'\'';
        out.append(sql, start, typeEnd - start);
        out += u'\'';
        i = typeEnd;
        continue;
      }
    }
    out += sql[i++];
  }
}

bool Bound(std::u16string_view value, bool bindNonAscii) {
  if (bindNonAscii)
    return std::any_of(value.begin(), value.end(), [](char16_t c) { return c == 0 || c > 0x7F; });
  return value.find(u'\0') != std::u16string_view::npos;
}

// Appends the quoted literal `t` of `text`: bound as a place when `Bound`, written back with its
// value requoted when "::" in it reads as ":", else as it stands.
void AppendLiteral(std::u16string_view text, const TSqlToken& t, bool bindNonAscii,
                   TPreparedSql& out) {
  const std::u16string_view written = text.substr(t.Start, t.End - t.Start);
  if (!t.Closed) {
    out.Sql += written;
    return;
  }
  const std::u16string value = LiteralValue(text, t);
  if (Bound(value, bindNonAscii)) {
    out.Sql += u'?';
    out.Places.push_back({{}, value});
    return;
  }
  if (written.find(u"::") == std::u16string_view::npos) {
    out.Sql += written;
    return;
  }
  if (t.Kind == K::NationalLiteral) out.Sql += written[0];
  out.Sql += u'\'';
  for (char16_t c : value) {
    out.Sql += c;
    if (c == u'\'') out.Sql += c;
  }
  out.Sql += u'\'';
}

// The end of the table name that starts at `i` (letters, digits, "_", ".", brackets, non-ASCII).
size_t TableNameEnd(std::u16string_view sql, size_t i) {
  while (i < sql.size() && (IsSqlNameChar(sql[i]) || sql[i] == u'.' || sql[i] == u'[' ||
                            sql[i] == u']' || sql[i] >= 128)) {
    ++i;
  }
  return i;
}

// Where the word "from" of the outermost select stands, or npos.
size_t OuterFrom(std::u16string_view sql) {
  int depth = 0;
  for (const TSqlToken& t : TokenizeSql(sql)) {
    if (t.Kind != K::Text) continue;
    for (size_t i = t.Start; i < t.End; ++i) {
      if (sql[i] == u'(') ++depth;
      if (sql[i] == u')') --depth;
      if (depth == 0 && WordAt(sql, i, u"from")) return i;
    }
  }
  return std::u16string_view::npos;
}

}  // namespace

std::u16string WellFormedText(std::u16string_view text) {
  std::u16string out(text);
  for (size_t i = 0; i < out.size(); ++i) {
    if (IsHigh(out[i]) && i + 1 < out.size() && IsLow(out[i + 1])) {
      ++i;
    } else if (IsHigh(out[i]) || IsLow(out[i])) {
      out[i] = u'\xFFFD';
    }
  }
  return out;
}

TPreparedSql PrepareSql(std::u16string_view commandText, bool bindNonAscii) {
  const std::u16string text = WellFormedText(commandText);
  TPreparedSql out;
  out.Sql.reserve(text.size());
  for (const TSqlToken& t : TokenizeSql(text)) {
    switch (t.Kind) {
      case K::Literal:
      case K::NationalLiteral:
        AppendLiteral(text, t, bindNonAscii, out);
        break;
      case K::Marked:
        out.Sql += u'?';
        out.Places.push_back({{}, LiteralValue(text, t)});
        break;
      case K::Parameter:
        out.Sql += u'?';
        out.Places.push_back({std::string(text.begin() + t.Start + 1, text.begin() + t.End), {}});
        break;
      case K::DoubleColon:
        out.Sql += u':';
        break;
      case K::StrayMark:
        break;
      default:
        out.Sql.append(text, t.Start, t.End - t.Start);
    }
  }
  return out;
}

std::u16string SqliteDialect(std::u16string_view sql) {
  std::u16string out;
  out.reserve(sql.size());
  for (const TSqlToken& t : TokenizeSql(sql)) {
    if (t.Kind == K::Text) {
      AppendDialectText(sql, t, out);
    } else {
      const size_t from = t.Kind == K::NationalLiteral ? t.Start + 1 : t.Start;  // drop the N
      out.append(sql, from, t.End - from);
    }
  }
  return out;
}

std::u16string SingleTableOf(std::u16string_view sql) {
  size_t i = OuterFrom(sql);
  if (i == std::u16string_view::npos) return {};
  i += 4;
  while (i < sql.size() && IsBlank(sql[i])) ++i;
  const size_t start = i;
  i = TableNameEnd(sql, i);
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
