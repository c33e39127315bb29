#include <QtSql/QSqlDatabase>
#include <QtSql/QSqlIndex>

#include "platform/db/connection_qt.h"
#include "platform/db/row_keys_p.h"

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
  return QString::fromStdU16String(name);
}

}  // namespace

std::vector<std::string> PrimaryKeyOf(const std::string& connection, std::u16string_view table) {
  const QSqlIndex index = DatabaseOf(connection).primaryIndex(Unbracketed(table));
  std::vector<std::string> keys;
  for (int i = 0; i < index.count(); ++i) keys.push_back(index.fieldName(i).toStdString());
  return keys;
}

std::u16string WithKeyColumns(std::u16string_view commandText,
                              const std::vector<std::string>& keys) {
  size_t i = SkipBlanks(commandText, 0);
  if (keys.empty() || !WordAt(commandText, i, u"select")) return {};
  i = SkipBlanks(commandText, i + 6);
  if (WordAt(commandText, i, u"distinct") || WordAt(commandText, i, u"top")) return {};
  if (WordAt(commandText, i, u"all")) i = SkipBlanks(commandText, i + 3);
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
