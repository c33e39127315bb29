#include "tests/common/search/search_oracle.h"

#include <algorithm>

#include "common/search/add_wildcard.h"
#include "common/search/query_text.h"
#include "common/search/wildcard.h"
#include "common/text/conversions.h"
#include "common/text/str_utils.h"
#include "platform/codepage/codepage.h"
#include "platform/codepage/narrow_chars.h"
#include "platform/db/command.h"
#include "platform/db/dataset.h"

namespace mv::test {
namespace {

// ---- The reference matcher -------------------------------------------------------------------

char32_t Folded(char32_t c) {
  return c >= U'A' && c <= U'Z' ? c + (U'a' - U'A') : c;
}

// Code points of well-formed UTF-16, up to the first NUL (as like reads a text).
std::u32string LikeText(std::u16string_view text) {
  std::u32string out;
  for (size_t i = 0; i < text.size() && text[i] != u'\0'; ++i) {
    const char16_t c = text[i];
    if (c >= 0xD800 && c <= 0xDBFF && i + 1 < text.size()) {
      out += char32_t(0x10000 + ((c - 0xD800) << 10) + (text[++i] - 0xDC00));
    } else {
      out += c;
    }
  }
  return out;
}

// "*" any run, "?" one character, everything else itself, ASCII letters in either case.
bool GlobMatches(std::u32string_view glob, std::u32string_view text) {
  if (glob.empty()) return text.empty();
  if (glob[0] == U'*')
    return GlobMatches(glob.substr(1), text) ||
           (!text.empty() && GlobMatches(glob, text.substr(1)));
  return !text.empty() && (glob[0] == U'?' || Folded(glob[0]) == Folded(text[0])) &&
         GlobMatches(glob.substr(1), text.substr(1));
}

bool LikeEqual(std::u16string_view a, std::u16string_view b) {
  const std::u32string x = LikeText(a), y = LikeText(b);
  return std::ranges::equal(x, y, [](char32_t p, char32_t q) { return Folded(p) == Folded(q); });
}

// The code point order SQLite compares text in (its UTF-8 bytes).
int Compare(std::u16string_view a, std::u16string_view b) {
  return codepage::Utf8FromWide(a).compare(codepage::Utf8FromWide(b));
}

// One alternative of a pattern, neither empty nor "..": a range, a like or an exact match.
bool TermMatches(std::u16string_view term, std::u16string_view ref) {
  if (const size_t at = term.find(u".."); at != std::u16string_view::npos) {
    const std::u16string_view low = term.substr(0, at);
    const std::u16string_view high = term.substr(at + 2);
    return (low.empty() || Compare(ref, low) >= 0) && (high.empty() || Compare(ref, high) <= 0);
  }
  if (term.find_first_of(u"*?_%[!") != std::u16string_view::npos)
    return GlobMatches(LikeText(term), LikeText(ref));
  return ref == term;
}

// Blanks, or stars between blanks, match every row, NULLs too.
bool MatchesAll(std::u16string_view pattern) {
  const size_t stars = std::min(pattern.find_first_not_of(u' '), pattern.size());
  const size_t after = pattern.find_first_not_of(u'*', stars);
  return !pattern.empty() && (after == std::u16string_view::npos ||
                              pattern.find_first_not_of(u' ', after) == std::u16string_view::npos);
}

template <class Hit>
std::set<int> IdsWhere(const std::vector<TRef>& rows, Hit hit) {
  std::set<int> ids;
  for (size_t i = 0; i < rows.size(); ++i)
    if (hit(rows[i])) ids.insert(static_cast<int>(i));
  return ids;
}

// The wide pattern as the wide translator reads it: marks dropped, lone surrogates U+FFFD.
std::u16string SearchText(std::u16string_view pattern) {
  std::u16string text = StoredText(pattern);
  std::erase(text, u'\x02');
  return text;
}

// Narrow text without its lead bytes that lack a second byte (each alone reads as U+FFFD), which
// the narrow wildcard translator drops.
std::string WholeCharacters(const std::string& narrow) {
  const int codePage = codepage::UserCodePage();
  const std::vector<size_t> starts = codepage::CharStarts(narrow, codePage);
  std::string whole;
  for (size_t i = 0; i < starts.size(); ++i) {
    const size_t end = i + 1 < starts.size() ? starts[i + 1] : narrow.size();
    const std::string_view character(narrow.data() + starts[i], end - starts[i]);
    const bool broken = character.size() == 1 && static_cast<unsigned char>(character[0]) >= 0x80 &&
                        codepage::ToWide(character, codePage) == u"\uFFFD";
    if (!broken) whole += character;
  }
  return whole;
}

// ---- The queries -----------------------------------------------------------------------------

constexpr const char16_t* kSelect = u"select Id from Refs";

std::set<int> Ids(db::TMVADODataSet& dataset) {
  std::set<int> ids;
  for (dataset.Open(); !dataset.Eof(); dataset.Next())
    ids.insert(static_cast<int>(dataset.Fields(0).AsInteger()));
  return ids;
}

std::set<int> IdsWhereText(const std::u16string& condition) {
  db::TMVADODataSet dataset;
  dataset.SetCommandText(condition.empty() ? std::u16string(kSelect)
                                           : kSelect + (u" where " + condition));
  return Ids(dataset);
}

std::set<int> IdsWhereNarrow(const std::string& condition) {
  db::TMVADODataSet dataset;
  dataset.SetCommandText(condition.empty() ? "select Id from Refs"
                                           : "select Id from Refs where " + condition);
  return Ids(dataset);
}

std::set<int> IdsOfAttached(const std::u16string& pattern, TBuilder builder) {
  db::TMVADODataSet dataset;
  dataset.SetCommandText(u"select Id from Refs where Id >= :first");
  dataset.Parameters()[0].Value = db::Variant(0);
  const std::string field = "MsgRef";
  if (builder == TBuilder::AddWildCardField) {
    AddWildCard(dataset, field, pattern, false, false, "and");
  } else if (builder == TBuilder::AddWildCardArrays) {
    const std::string fields[] = {field, field};
    const std::u16string patterns[] = {pattern, u""};
    const std::string joiners[] = {"and", "or"};
    AddWildCard(dataset, fields, patterns, joiners);
  } else {
    AddWildCard(dataset, AddWildCard(field, pattern, "and"));
  }
  return Ids(dataset);
}

}  // namespace

std::u16string StoredText(std::u16string_view text) {
  std::u16string out(text);
  for (size_t i = 0; i < out.size(); ++i) {
    const bool high = out[i] >= 0xD800 && out[i] <= 0xDBFF;
    const bool low = out[i] >= 0xDC00 && out[i] <= 0xDFFF;
    if (high && i + 1 < out.size() && out[i + 1] >= 0xDC00 && out[i + 1] <= 0xDFFF) {
      ++i;
    } else if (high || low) {
      out[i] = 0xFFFD;
    }
  }
  return out;
}

std::set<int> ReferenceSelect(std::u16string_view pattern, const std::vector<TRef>& rows) {
  std::vector<std::u16string_view> terms;
  for (size_t from = 0; from <= pattern.size();) {
    const size_t bar = std::min(pattern.find(u'|', from), pattern.size());
    const std::u16string_view term = pattern.substr(from, bar - from);
    if (!term.empty() && term != u"..") terms.push_back(term);
    from = bar + 1;
  }
  return IdsWhere(rows, [&](const TRef& row) {
    if (terms.empty()) return true;
    if (!row) return MatchesAll(pattern);
    return std::ranges::any_of(terms, [&](auto term) { return TermMatches(term, *row); });
  });
}

TInjectionTable::TInjectionTable(std::vector<TRef> rows) {
  db::TMVADOCommand command;
  command.SetCommandText("create table Refs (Id integer, MsgRef text)");
  command.Execute();
  command.SetCommandText("create table Canary (Secret text)");
  command.Execute();
  command.SetCommandText("insert into Canary values ('kept')");
  command.Execute();
  for (const TRef& row : rows) {
    if (row) {
      Push(*row);
    } else {
      command.SetCommandText("insert into Refs (Id, MsgRef) values (:id, NULL)");
      command.Parameters()[0].Value = db::Variant(static_cast<int>(rows_.size()));
      command.Execute();
      rows_.emplace_back();
    }
  }
}

void TInjectionTable::Push(const std::u16string& text) {
  db::TMVADOCommand command;
  command.SetCommandText(u"insert into Refs (Id, MsgRef) values (:id, :ref)");
  command.Parameters()[0].Value = db::Variant(static_cast<int>(rows_.size()));
  command.Parameters()[1].Value = db::Variant(text);
  command.Execute();
  rows_.push_back(StoredText(text));
}

void TInjectionTable::Pop() {
  db::TMVADOCommand command;
  command.SetCommandText(u"delete from Refs where Id = :id");
  command.Parameters()[0].Value = db::Variant(static_cast<int>(rows_.size() - 1));
  command.Execute();
  rows_.pop_back();
}

std::set<int> TInjectionTable::Select(TBuilder builder, const std::u16string& wide,
                                      const std::string& narrow) {
  const std::string field = "MsgRef";
  switch (builder) {
    case TBuilder::StrSQLCond:
      return IdsWhereNarrow(StrSQLCond(field, wide));
    case TBuilder::CheckQuotWide:
      return IdsWhereText(u"MsgRef = N'" + CheckQuot(wide) + u"'");
    case TBuilder::CheckQuotNarrow:
      return IdsWhereNarrow("MsgRef = '" + CheckQuot(narrow) + "'");
    case TBuilder::NQuotedWide:
      return IdsWhereText(u"MsgRef = " + MV_NQuotedStr(std::u16string_view(wide)));
    case TBuilder::NQuotedNarrow:
      return IdsWhereNarrow("MsgRef = " + MV_NQuotedStr(std::string_view(narrow)));
    case TBuilder::WildCardNarrow:
      return IdsWhereNarrow(ChangeWildCard(field, narrow, true));
    case TBuilder::WildCardWide:
      return IdsWhereText(ChangeWildCard(field, wide, true, false));
    case TBuilder::WildCardMarked:
      return IdsWhereText(ChangeWildCard(field, wide, false, true));
    case TBuilder::WildCardWNarrow:
      return IdsWhereText(ChangeWildCardW(field, narrow, true));
    case TBuilder::WildCardWWide:
      return IdsWhereText(ChangeWildCardW(field, std::u16string_view(wide), true));
    default:
      return IdsOfAttached(wide, builder);
  }
}

std::set<int> TInjectionTable::Expected(TBuilder builder, const std::u16string& wide,
                                        const std::string& narrow) const {
  const std::u16string fromNarrow = StoredText(MV_AnsiToWideString(narrow));
  switch (builder) {
    case TBuilder::StrSQLCond: {
      const std::u16string value = StoredText(MV_AnsiToWideString(MV_WideStringToAnsi(wide)));
      if (wide.empty()) return IdsWhere(rows_, [](const TRef& r) { return !r || r->empty(); });
      const bool like = value.find_first_of(u"!_%[") != std::u16string::npos;
      return IdsWhere(
          rows_, [&](const TRef& r) { return r && (like ? LikeEqual(*r, value) : *r == value); });
    }
    case TBuilder::CheckQuotWide:
    case TBuilder::NQuotedWide:
      return IdsWhere(rows_, [&](const TRef& r) { return r && *r == StoredText(wide); });
    case TBuilder::CheckQuotNarrow:
    case TBuilder::NQuotedNarrow:
      return IdsWhere(rows_, [&](const TRef& r) { return r && *r == fromNarrow; });
    case TBuilder::WildCardNarrow:
      return ReferenceSelect(StoredText(MV_AnsiToWideString(WholeCharacters(narrow))), rows_);
    case TBuilder::WildCardWNarrow:
      return ReferenceSelect(SearchText(fromNarrow), rows_);
    default:
      return ReferenceSelect(SearchText(wide), rows_);
  }
}

bool TInjectionTable::CanaryIntact() {
  db::TMVADODataSet dataset;
  dataset.SetCommandText("select Secret from Canary");
  dataset.Open();
  const bool kept = !dataset.Eof() && dataset.Fields(0).AsWideString() == u"kept";
  dataset.Next();
  return kept && dataset.Eof();
}

}  // namespace mv::test
