// User text through every search builder on a SQLite table that also holds a canary table: the
// rows found are exactly those the reference matcher selects, no statement fails, and the canary
// is never touched. Values and patterns are built from the characters that SQL, the parameter
// reader and the UTF-16 readers treat specially.
#include <gtest/gtest.h>

#include <random>

#include "common/text/conversions.h"
#include "platform/codepage/codepage.h"
#include "tests/common/search/search_oracle.h"
#include "tests/platform/db/db_fixture.h"

namespace mv::test {
namespace {

using namespace std::string_literals;

// Pieces of wide text: one character each, or a known way out of a literal.
const std::u16string kWidePieces[] = {u"'",
                                      u"\"",
                                      u":",
                                      u"\x02",
                                      u"\0"s,
                                      u"[",
                                      u"]",
                                      u"-",
                                      u"/",
                                      u"*",
                                      u"?",
                                      u"%",
                                      u"_",
                                      u"!",
                                      u"|",
                                      u"..",
                                      u"(",
                                      u")",
                                      u" ",
                                      u"A",
                                      u"a",
                                      u"1",
                                      u"報",
                                      u"關",
                                      u"😀",
                                      u"\xD800",
                                      u"\xDC00",
                                      u"N'",
                                      u"') OR (1=1) --",
                                      u"\x02) OR (1=1) --\x02",
                                      u"\"a:b\"",
                                      u"::",
                                      u"'; drop table Canary; --",
                                      u"/*",
                                      u"*/"};

// Pieces of narrow text in Big5: single bytes, whole characters, and lead bytes on their own.
const std::string kNarrowPieces[] = {"'",
                                     "\"",
                                     ":",
                                     "\x02",
                                     "\0"s,
                                     "[",
                                     "*",
                                     "?",
                                     "%",
                                     "_",
                                     "!",
                                     "|",
                                     "..",
                                     " ",
                                     "A",
                                     "a",
                                     "\xB3\xF8",
                                     "\xA5\x5C",
                                     "\xA4",
                                     "\xA4'",
                                     "\xF9",
                                     "\x81",
                                     "') OR (1=1) --",
                                     "\"x::y\""};

template <class Text, size_t N>
Text RandomText(std::mt19937& random, const Text (&pieces)[N], size_t maxPieces) {
  Text text;
  for (size_t n = random() % (maxPieces + 1); n > 0; --n) text += pieces[random() % N];
  return text;
}

class SqlInjectionOnDatabase : public ::testing::Test {
 protected:
  // Rows of wide and of narrow pieces, a NULL, an empty and a blank row.
  static std::vector<TRef> Rows(std::mt19937& random) {
    std::vector<TRef> rows{TRef(), u"", u"   "};
    for (int i = 0; i < 150; ++i) rows.push_back(RandomText(random, kWidePieces, 4));
    for (int i = 0; i < 100; ++i)
      rows.push_back(MV_AnsiToWideString(RandomText(random, kNarrowPieces, 4)));
    return rows;
  }

  void ExpectSameRows(TBuilder builder, const std::u16string& wide, const std::string& narrow) {
    SCOPED_TRACE(::testing::Message() << "builder " << static_cast<int>(builder) << " wide "
                                      << codepage::Utf8FromWide(wide) << " narrow " << narrow);
    std::set<int> found;
    ASSERT_NO_THROW(found = table_.Select(builder, wide, narrow));
    EXPECT_EQ(found, table_.Expected(builder, wide, narrow));
    ASSERT_TRUE(TInjectionTable::CanaryIntact());
  }

  ScopedEnv codePage_{"MV_CODEPAGE", "950"};
  TempDir dir_;
  SqliteBackend db_{dir_};
  std::mt19937 random_{20261124};
  TInjectionTable table_{Rows(random_)};
};

TEST_F(SqlInjectionOnDatabase, KnownWaysOutOfALiteralFindOnlyTheirRow) {
  for (const std::u16string& value :
       {u"\x02) OR (1=1) --\x02"s, u"\xD800') OR (1=1) -- "s, u"\"a:b\""s, u"a\0b"s, u"it's"s}) {
    for (int b = 0; b < kBuilderCount; ++b) {
      ExpectSameRows(static_cast<TBuilder>(b), value, MV_WideStringToAnsi(value));
    }
  }
}

TEST_F(SqlInjectionOnDatabase, RandomValuesThroughEveryBuilder) {
  const std::vector<TRef>& rows = table_.Rows();
  for (int i = 0; i < 400; ++i) {
    const TRef& row = rows[random_() % rows.size()];
    const std::u16string wide = random_() % 2 && row ? *row : RandomText(random_, kWidePieces, 5);
    const std::string narrow = RandomText(random_, kNarrowPieces, 5);
    ExpectSameRows(static_cast<TBuilder>(i % kBuilderCount), wide, narrow);
  }
}

}  // namespace
}  // namespace mv::test
