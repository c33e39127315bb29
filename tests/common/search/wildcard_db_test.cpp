// Search patterns attached with AddWildCard and run on a SQLite table of generated message
// references, against a matcher of the pattern language written here over the same rows. The
// matcher follows what SQLite does with the conditions: "=" and the range bounds compare exactly
// (code point order), like ignores the case of ASCII letters only, "_" of like is one character.
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <random>
#include <ranges>
#include <set>
#include <string>
#include <vector>

#include "common/search/add_wildcard.h"
#include "platform/codepage/codepage.h"
#include "platform/db/dataset.h"
#include "tests/platform/db/db_fixture.h"

namespace mv::test {
namespace {

using TRef = std::optional<std::u16string>;  // no value: NULL

// ---- The reference matcher -------------------------------------------------------------------

char16_t Folded(char16_t c) {
  return c >= u'A' && c <= u'Z' ? c + (u'a' - u'A') : c;
}

// "*" any run, "?" one character, everything else itself, ASCII letters in either case.
bool GlobMatches(std::u16string_view glob, std::u16string_view text) {
  if (glob.empty()) return text.empty();
  if (glob[0] == u'*')
    return GlobMatches(glob.substr(1), text) ||
           (!text.empty() && GlobMatches(glob, text.substr(1)));
  return !text.empty() && (glob[0] == u'?' || Folded(glob[0]) == Folded(text[0])) &&
         GlobMatches(glob.substr(1), text.substr(1));
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
  if (term.find_first_of(u"*?_%[!") != std::u16string_view::npos) return GlobMatches(term, ref);
  return ref == term;
}

// Blanks, or stars between blanks, match every row, NULLs too.
bool MatchesAll(std::u16string_view pattern) {
  const size_t stars = std::min(pattern.find_first_not_of(u' '), pattern.size());
  const size_t after = pattern.find_first_not_of(u'*', stars);
  return !pattern.empty() && (after == std::u16string_view::npos ||
                              pattern.find_first_not_of(u' ', after) == std::u16string_view::npos);
}

// The ids (positions) of the rows the pattern selects.
std::set<int> ReferenceSelect(std::u16string_view pattern, const std::vector<TRef>& rows) {
  std::vector<std::u16string_view> terms;
  for (const auto piece : std::views::split(pattern, u'|')) {
    const std::u16string_view term(piece.begin(), piece.end());
    if (!term.empty() && term != u"..") terms.push_back(term);
  }
  const auto hit = [&](const TRef& row) {
    if (terms.empty()) return true;
    if (!row) return MatchesAll(pattern);
    return std::ranges::any_of(terms, [&](auto term) { return TermMatches(term, *row); });
  };
  std::set<int> ids;
  for (size_t i = 0; i < rows.size(); ++i)
    if (hit(rows[i])) ids.insert(static_cast<int>(i));
  return ids;
}

// ---- The database ------------------------------------------------------------------------

constexpr std::u16string_view kAlphabet = u"AbZab09TD'!_%[:.|*? -報單關";

std::u16string RandomText(std::mt19937& random, size_t maxLength, std::u16string_view alphabet) {
  std::u16string text(random() % (maxLength + 1), u' ');
  for (char16_t& c : text) c = alphabet[random() % alphabet.size()];
  return text;
}

class WildcardOnDatabase : public ::testing::Test {
 protected:
  // 3000 references, one in 20 NULL, a third like "TD20261234", the rest random text; then an
  // empty and a blank one.
  WildcardOnDatabase() {
    std::mt19937 random(20261122);
    for (int i = 0; i < 3000; ++i) {
      const unsigned kind = random() % 20;
      rows_.push_back(kind == 0  ? TRef()
                      : kind < 8 ? u"TD2026" + RandomText(random, 5, u"0123456789")
                                 : RandomText(random, 8, kAlphabet));
    }
    rows_.insert(rows_.end(), {u"", u"   "});
    Exec("create table Refs (Id integer, MsgRef text)");
    Exec("begin");
    db::TMVADOCommand insert;
    insert.SetCommandText(u"insert into Refs (Id, MsgRef) values (:id, :ref)");
    for (size_t i = 0; i < rows_.size(); ++i) {
      insert.Parameters()[0].Value = db::Variant(static_cast<int>(i));
      insert.Parameters()[1].Value = rows_[i] ? db::Variant(*rows_[i]) : db::Variant();
      insert.Execute();
    }
    Exec("commit");
  }

  void ExpectSameRows(const std::u16string& pattern) {
    SCOPED_TRACE(codepage::Utf8FromWide(pattern));
    std::set<int> found;
    db::TMVADODataSet dataset;
    dataset.SetCommandText(u"select Id from Refs");
    ASSERT_NO_THROW({
      AddWildCard(dataset, "MsgRef", pattern, true, false, "");
      for (dataset.Open(); !dataset.Eof(); dataset.Next())
        found.insert(static_cast<int>(dataset.Fields(0).AsInteger()));
    });
    EXPECT_EQ(found, ReferenceSelect(pattern, rows_));
  }

  TempDir dir_;
  SqliteBackend db_{dir_};
  std::vector<TRef> rows_;
};

// One of each form and edge of the language, and each character SQL or the parameters treat
// specially.
constexpr const char16_t* kPatterns[] = {
    u"",    u"..",  u"TD20261", u"td20261", u"td2026?1*", u"?",      u"*",   u"   ",   u" ** ",
    u"*|X", u"*'*", u"*!*",     u"*_*",     u"*%*",       u"*[*",    u"*:*", u"A..M",  u"A..",
    u"..M", u"...", u"a..b..c", u"A*..M",   u"'..'",      u"AB|CD*", u"|AB", u"A..C|X"};

TEST_F(WildcardOnDatabase, PatternsOfTheLanguage) {
  for (const char16_t* pattern : kPatterns) ExpectSameRows(pattern);
  for (const char16_t* chinese : {u"*報*", u"報..關", u"TD20261..TD3|*單"}) ExpectSameRows(chinese);
}

// Random patterns built from the same characters, pieces of the stored references among them.
TEST_F(WildcardOnDatabase, RandomPatterns) {
  std::mt19937 random(7);
  for (int i = 0; i < 300; ++i) {
    std::u16string pattern;
    for (unsigned piece = random() % 3 + 1; piece-- > 0;) {
      const TRef& row = rows_[random() % rows_.size()];
      if (const unsigned kind = random() % 3; kind == 0) {
        pattern += RandomText(random, 4, kAlphabet);
      } else if (kind == 1 && row) {
        pattern += row->substr(0, random() % (row->size() + 1));
      } else {
        pattern += RandomText(random, 3, u"*?|..");
      }
    }
    ExpectSameRows(pattern);
  }
}

}  // namespace
}  // namespace mv::test
