// Search patterns attached with AddWildCard and run on a SQLite table of generated message
// references, against a matcher of the pattern language written here over the same rows. The
// matcher follows what SQLite does with the conditions: "=" and the range bounds compare exactly
// (code point order), like ignores the case of ASCII letters only, "_" of like is one character.
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "common/search/add_wildcard.h"
#include "platform/codepage/codepage.h"
#include "platform/db/command.h"
#include "platform/db/connections.h"
#include "platform/db/dataset.h"
#include "tests/support/temp_dir.h"

namespace mv::test {
namespace {

using TRef = std::optional<std::u16string>;  // no value: NULL

// ---- The reference matcher -------------------------------------------------------------------

char16_t Folded(char16_t c) {
  return c >= u'A' && c <= u'Z' ? c + (u'a' - u'A') : c;
}

// "*" any run, "?" one character, everything else itself, ASCII letters in either case.
bool GlobMatches(std::u16string_view glob, std::u16string_view text) {
  std::vector<std::vector<bool>> can(glob.size() + 1, std::vector<bool>(text.size() + 1));
  can[glob.size()][text.size()] = true;
  for (size_t g = glob.size(); g-- > 0;) {
    for (size_t t = text.size() + 1; t-- > 0;) {
      if (glob[g] == u'*') {
        can[g][t] = can[g + 1][t] || (t < text.size() && can[g][t + 1]);
      } else if (t < text.size() && (glob[g] == u'?' || Folded(glob[g]) == Folded(text[t]))) {
        can[g][t] = can[g + 1][t + 1];
      }
    }
  }
  return can[0][0];
}

// The code point order SQLite compares text in (its UTF-8 bytes).
int Compare(std::u16string_view a, std::u16string_view b) {
  return codepage::Utf8FromWide(a).compare(codepage::Utf8FromWide(b));
}

struct TTermTest {
  enum { kEqual, kGlob, kRange } kind;
  std::u16string text, low, high;

  bool Matches(const TRef& ref) const {
    if (!ref) return false;
    if (kind == kEqual) return *ref == text;
    if (kind == kGlob) return GlobMatches(text, *ref);
    return (low.empty() || Compare(*ref, low) >= 0) && (high.empty() || Compare(*ref, high) <= 0);
  }
};

std::optional<TTermTest> TestOfTerm(std::u16string_view term) {
  if (term.empty() || term == u"..") return std::nullopt;
  if (size_t at = term.find(u".."); at != std::u16string_view::npos)
    return TTermTest{TTermTest::kRange, u"", std::u16string(term.substr(0, at)),
                     std::u16string(term.substr(at + 2))};
  const bool glob = term.find_first_of(u"*?_%[!") != std::u16string_view::npos;
  return TTermTest{glob ? TTermTest::kGlob : TTermTest::kEqual, std::u16string(term), u"", u""};
}

bool MatchesAll(std::u16string_view pattern) {
  const size_t first = pattern.find_first_not_of(u' ');
  if (first == std::u16string_view::npos) return true;
  const size_t last = pattern.find_last_not_of(u' ');
  return pattern.substr(first, last - first + 1).find_first_not_of(u'*') == std::u16string::npos;
}

// The ids (positions) of the rows the pattern selects.
std::set<int> ReferenceSelect(std::u16string_view pattern, const std::vector<TRef>& rows) {
  std::vector<TTermTest> tests;
  const bool oneTerm = pattern.find_first_of(u'|') == std::u16string_view::npos &&
                       pattern.find(u"..") == std::u16string_view::npos;
  for (std::u16string_view rest = pattern; !rest.empty();) {
    const size_t bar = rest.find(u'|');
    if (auto test = TestOfTerm(rest.substr(0, bar))) tests.push_back(*test);
    rest = bar == std::u16string_view::npos ? u"" : rest.substr(bar + 1);
  }
  const bool withNull = oneTerm && !pattern.empty() && MatchesAll(pattern);
  std::set<int> ids;
  for (size_t i = 0; i < rows.size(); ++i) {
    const bool hit = tests.empty() || (withNull && !rows[i]) ||
                     std::any_of(tests.begin(), tests.end(),
                                 [&](const TTermTest& t) { return t.Matches(rows[i]); });
    if (hit) ids.insert(static_cast<int>(i));
  }
  return ids;
}

// ---- The database ------------------------------------------------------------------------

constexpr int kRows = 3000;
constexpr std::u16string_view kAlphabet = u"AbZab09TD'!_%[:.|*? -報單關";

std::u16string RandomText(std::mt19937& random, size_t maxLength, std::u16string_view alphabet) {
  std::u16string text(random() % (maxLength + 1), u' ');
  for (char16_t& c : text) c = alphabet[random() % alphabet.size()];
  return text;
}

std::vector<TRef> GenerateRefs(std::mt19937& random) {
  std::vector<TRef> rows;
  for (int i = 0; i < kRows; ++i) {
    const unsigned kind = random() % 20;
    if (kind == 0) {
      rows.emplace_back();
    } else if (kind < 8) {
      rows.emplace_back(u"TD2026" + std::u16string(1, u"0123456789"[random() % 10]) +
                        RandomText(random, 4, u"0123456789"));
    } else {
      rows.emplace_back(RandomText(random, 8, kAlphabet));
    }
  }
  rows.emplace_back(u"");
  rows.emplace_back(u"   ");
  return rows;
}

void Execute(const std::u16string& sql, const std::vector<std::u16string>& values) {
  db::TMVADOCommand command;
  command.SetCommandText(sql);
  for (size_t i = 0; i < values.size(); ++i)
    command.SetUnicodeParamValue(static_cast<int>(i), values[i], false);
  command.Execute();
}

void InsertRows(const std::vector<TRef>& rows) {
  Execute(u"create table Refs (Id integer, MsgRef text)", {});
  for (size_t start = 0; start < rows.size(); start += 100) {
    std::u16string sql = u"insert into Refs (Id, MsgRef) values ";
    std::vector<std::u16string> values;
    for (size_t i = start; i < std::min(rows.size(), start + 100); ++i) {
      const std::string id = std::to_string(i);
      sql += (i > start ? u", (" : u"(") + std::u16string(id.begin(), id.end());
      const std::string place = std::to_string(values.size());
      sql += rows[i] ? u", :v" + std::u16string(place.begin(), place.end()) + u")" : u", null)";
      if (rows[i]) values.push_back(*rows[i]);
    }
    Execute(sql, values);
  }
}

std::set<int> DatabaseSelect(std::u16string_view pattern) {
  db::TMVADODataSet dataset;
  dataset.SetCommandText(u"select Id from Refs");
  AddWildCard(dataset, "MsgRef", pattern, true, false, "");
  dataset.Open();
  std::set<int> ids;
  for (; !dataset.Eof(); dataset.Next())
    ids.insert(static_cast<int>(dataset.Fields(0).AsInteger()));
  dataset.Close();
  return ids;
}

class WildcardOnDatabase : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    folder_ = new TempDir;
    db::OpenConnection("DBMAIN", "sqlite:" + folder_->File("refs.db"));
    std::mt19937 random(20261122);
    rows_ = GenerateRefs(random);
    InsertRows(rows_);
  }
  static void TearDownTestSuite() {
    db::CloseConnection("DBMAIN");
    delete folder_;
  }

  void ExpectSameRows(const std::u16string& pattern) {
    SCOPED_TRACE(codepage::Utf8FromWide(pattern));
    std::set<int> found;
    ASSERT_NO_THROW(found = DatabaseSelect(pattern));
    EXPECT_EQ(found, ReferenceSelect(pattern, rows_));
  }

  static inline TempDir* folder_ = nullptr;
  static inline std::vector<TRef> rows_;
};

TEST_F(WildcardOnDatabase, PatternsOfTheLanguage) {
  for (const char16_t* pattern : {u"",          u"ABC",
                                  u"AB*",       u"A?C",
                                  u"*",         u"50%",
                                  u"A!B",       u"O'NEIL",
                                  u"A..M",      u"A..",
                                  u"..M",       u"..",
                                  u"A*..M",     u"AB|CD*",
                                  u"AB|",       u"|AB",
                                  u"A..C|X",    u"*|X",
                                  u"|",         u"...",
                                  u"a..b..c",   u"TD2026*",
                                  u"td2026?1*", u"*'*",
                                  u"*!*",       u"*_*",
                                  u"*%*",       u"*[*",
                                  u"*:*",       u"*報*",
                                  u"報..關",    u"   ",
                                  u" ** ",      u"TD20261..TD20263|*單",
                                  u"*.*",       u"?",
                                  u"[*",        u"'..'"})
    ExpectSameRows(pattern);
}

// Random patterns built from the same characters, pieces of the stored references among them.
TEST_F(WildcardOnDatabase, RandomPatterns) {
  std::mt19937 random(7);
  for (int i = 0; i < 300; ++i) {
    std::u16string pattern;
    for (unsigned piece = random() % 3 + 1; piece-- > 0;) {
      const TRef& row = rows_[random() % rows_.size()];
      switch (random() % 4) {
        case 0:
          pattern += RandomText(random, 4, kAlphabet);
          break;
        case 1:
          if (row) pattern += row->substr(0, random() % (row->size() + 1));
          break;
        case 2:
          pattern += u"*|?.."[random() % 5];
          break;
        default:
          pattern += RandomText(random, 3, u"*?|.");
      }
    }
    ExpectSameRows(pattern);
  }
}

}  // namespace
}  // namespace mv::test
