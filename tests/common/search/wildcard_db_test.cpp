// Search patterns attached with AddWildCard and run on a SQLite table of generated message
// references, against the reference matcher of the pattern language (search_oracle.h) over the
// same rows.
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
#include "tests/common/search/search_oracle.h"
#include "tests/platform/db/db_fixture.h"

namespace mv::test {
namespace {

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
