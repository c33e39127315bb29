#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlIndex>
#include <algorithm>

#include "platform/db/connection_qt_p.h"
#include "platform/db/row_keys_p.h"
#include "platform/db/run_query_p.h"

namespace mv::db {
namespace {

bool IsBlank(char16_t c) {
  return c == u' ' || c == u'\t' || c == u'\r' || c == u'\n';
}

bool IsNameChar(char16_t c) {
  return c == u'_' || (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'z') ||
         (c >= u'A' && c <= u'Z');
}

// True when the word at `i` of `text` is `word` (lower case), compared without regard to case.
bool WordAt(std::u16string_view text, size_t i, std::u16string_view word) {
  if (i + word.size() > text.size()) return false;
  for (size_t k = 0; k < word.size(); ++k) {
    const char16_t c = text[i + k];
    if ((c >= u'A' && c <= u'Z' ? c + 32 : c) != word[k]) return false;
  }
  return i + word.size() == text.size() || !IsNameChar(text[i + word.size()]);
}

size_t SkipBlanks(std::u16string_view text, size_t i) {
  while (i < text.size() && IsBlank(text[i])) ++i;
  return i;
}

// The end of the quoted stretch (a literal, a [name] or a "name") that opens at `start`: one past
// its closing quote, a doubled closing quote staying inside.
size_t QuotedEnd(std::u16string_view text, size_t start) {
  const char16_t close = text[start] == u'[' ? u']' : text[start];
  for (size_t i = start + 1; i < text.size(); ++i) {
    if (text[i] != close) continue;
    if (i + 1 < text.size() && text[i + 1] == close) {
      ++i;
      continue;
    }
    return i + 1;
  }
  return text.size();
}

// True when the words of `text` from `i` on, quoted stretches left out, are a plain select list
// (column names, "*", aliases) up to FROM, and no GROUP BY, HAVING or UNION follows: the rows
// such a select returns stay the same rows with more columns.
bool KeepsItsRows(std::u16string_view text, size_t i) {
  bool inList = true;
  while (i < text.size()) {
    const char16_t c = text[i];
    if (c == u'\'' || c == u'"' || c == u'[') {
      if (inList && c == u'\'') return false;
      i = QuotedEnd(text, i);
    } else if (IsNameChar(c)) {
      if (WordAt(text, i, u"group") || WordAt(text, i, u"having") || WordAt(text, i, u"union")) {
        return false;
      }
      if (WordAt(text, i, u"from")) inList = false;
      while (i < text.size() && IsNameChar(text[i])) ++i;
    } else {
      if (inList && !IsBlank(c) && c != u',' && c != u'.' && c != u'*') return false;
      ++i;
    }
  }
  return !inList;
}

// The table name without the brackets that quote its parts ("[dbo].[T]" -> "dbo.T").
QString Unbracketed(std::u16string_view table) {
  std::u16string name;
  for (size_t i = 0; i < table.size(); ++i) {
    if (table[i] == u'[' || (table[i] == u']' && (i + 1 == table.size() || table[i + 1] != u']'))) {
      continue;
    }
    name += table[i];
    if (table[i] == u']') ++i;  // "]]" inside brackets is one "]"
  }
  return QStringView(name).toString();
}

}  // namespace

std::vector<std::string> PrimaryKeyOf(const std::string& connection, std::u16string_view table,
                                      int timeout) {
  const QString name = Unbracketed(table);
  std::vector<std::string> keys;
  if (Connection(connection).Backend == TBackend::Odbc) {
    const QSqlIndex index = DatabaseOf(connection).primaryIndex(name);
    for (int i = 0; i < index.count(); ++i) keys.push_back(index.fieldName(i).toStdString());
    return keys;
  }
  // SQLite: the columns with a place in the key (pk, from 1) in that order. Run as a statement so
  // that a locked file is waited for and reported as any statement's.
  QSqlQuery info = RunSql(connection, u"PRAGMA table_info(" + QuotedName(name.toStdString()) + u")",
                          {}, timeout, true);
  std::vector<std::pair<int, std::string>> ranked;
  while (info.next()) {
    if (const int place = info.value(5).toInt(); place > 0) {
      ranked.emplace_back(place, info.value(1).toString().toStdString());
    }
  }
  std::sort(ranked.begin(), ranked.end());
  for (auto& [place, column] : ranked) keys.push_back(std::move(column));
  return keys;
}

std::u16string WithKeyColumns(std::u16string_view commandText,
                              const std::vector<std::string>& keys) {
  size_t i = SkipBlanks(commandText, 0);
  if (keys.empty() || !WordAt(commandText, i, u"select")) return {};
  i = SkipBlanks(commandText, i + 6);
  if (WordAt(commandText, i, u"distinct") || WordAt(commandText, i, u"top")) return {};
  if (WordAt(commandText, i, u"all")) i = SkipBlanks(commandText, i + 3);
  if (!KeepsItsRows(commandText, i)) return {};
  std::u16string keyed(commandText.substr(0, i));
  if (!IsBlank(keyed.back())) keyed += u' ';
  for (const std::string& key : keys) keyed += QuotedName(key) + u", ";
  keyed += commandText.substr(i);
  return keyed;
}

std::u16string QuotedName(std::string_view column) {
  std::u16string out = u"[";
  for (char16_t c :
       QString::fromUtf8(column.data(), static_cast<qsizetype>(column.size())).toStdU16String()) {
    out += c;
    if (c == u']') out += u']';
  }
  return out + u"]";
}

}  // namespace mv::db
