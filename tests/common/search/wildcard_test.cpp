// The wildcard translator: every pattern form in both widths and all literal forms.
#include "common/search/wildcard.h"

#include <gtest/gtest.h>

#include <string>

#include "common/text/conversions.h"
#include "platform/codepage/codepage.h"
#include "tests/support/temp_dir.h"

namespace mv::test {
namespace {

struct Row {
  const char* pattern;
  const char* condition;
};

// Column MsgRef, quotes doubled.
constexpr Row kRows[] = {
    {"", ""},
    {"A?C", "(MsgRef like 'A_C')"},
    {"*", "((MsgRef like '%') or (MsgRef IS NULL))"},
    {"O'NEIL", "(MsgRef = 'O''NEIL')"},
    {"5!_%[", "(MsgRef like '5!!!_!%![' Escape '!')"},
    {"A..M", "((MsgRef >= 'A') and (MsgRef <= 'M'))"},
    {"A..", "(MsgRef >= 'A')"},
    {"..M", "(MsgRef <= 'M')"},
    {"..", ""},
    {"AB|CD*", "((MsgRef = 'AB') or (MsgRef like 'CD%'))"},
    {"|AB", "(MsgRef = 'AB')"},
    {"A..C|X", "(((MsgRef >= 'A') and (MsgRef <= 'C')) or (MsgRef = 'X'))"},
    {"*|X", "((MsgRef like '%') or (MsgRef = 'X'))"},
    // Edges of the language.
    {"|", ""},
    {"...", "(MsgRef <= '.')"},
    {"a..b..c", "((MsgRef >= 'a') and (MsgRef <= 'b..c'))"},
    {"   ", "((MsgRef = '   ') or (MsgRef IS NULL))"},
    {" ** ", "((MsgRef like ' %% ') or (MsgRef IS NULL))"},
    {"A|..", "(MsgRef = 'A')"},
    {"!_*..%?", "((MsgRef >= '!_*') and (MsgRef <= '%?'))"},
    {"O'..P'", "((MsgRef >= 'O''') and (MsgRef <= 'P'''))"},
};

std::u16string U(const char* utf8) {
  return codepage::WideFromUtf8(utf8);
}

// The wide translator writes N' for the opening quote of each literal, which follows the
// comparison; the escape clause keeps its plain quotes.
std::u16string Nationalised(std::string condition) {
  for (const std::string_view opening : {"= '", "like '"}) {
    for (size_t at = condition.find(opening); at != std::string::npos;
         at = condition.find(opening, at + opening.size()))
      condition.insert(at + opening.size() - 1, "N");
  }
  return U(condition.c_str());
}

TEST(ChangeWildCard, WorkedResultsInBothWidths) {
  for (const Row& row : kRows) {
    EXPECT_EQ(ChangeWildCard("MsgRef", row.pattern, true), row.condition) << row.pattern;
    EXPECT_EQ(ChangeWildCardW("MsgRef", std::string(row.pattern), true),
              Nationalised(row.condition))
        << row.pattern;
  }
}

// Marked literals: the escape clause follows the closing mark; marks typed into the pattern are
// dropped, so they can neither open nor close a literal.
TEST(ChangeWildCard, MarkedLiterals) {
  EXPECT_EQ(ChangeWildCard("MsgRef", u"50%", false, true),
            u"(MsgRef like \x02"
            u"50!%\x02 Escape '!')");
  EXPECT_EQ(ChangeWildCard("m.MsgRef", u"A..|B", false, true),
            u"((m.MsgRef >= \x02"
            u"A\x02) or (m.MsgRef = \x02"
            u"B\x02))");
  EXPECT_EQ(ChangeWildCard("MsgRef", u"\x02)|\x02", false, true), u"(MsgRef = \x02)\x02)");
  EXPECT_EQ(ChangeWildCard("MsgRef", u"\x02\x02", false, true), u"");
  EXPECT_EQ(ChangeWildCardW("MsgRef", U("報單*"), true), U("(MsgRef like N'報單%')"));
}

TEST(ChangeWildCard, QuotesPassWhenNotDoubled) {
  EXPECT_EQ(ChangeWildCard("F", "O'NEIL", false), "(F = 'O'NEIL')");
  EXPECT_EQ(ChangeWildCardW("F", u"O'NEIL", false), u"(F = N'O'NEIL')");
  EXPECT_EQ(ChangeWildCard("F", u"O'NEIL", false, true), u"(F = \x02O'NEIL\x02)");
}

// The second byte of a Big5 character may be "|", "_" or "["; it is no sign of the pattern.
TEST(ChangeWildCard, NarrowBig5CharactersStayWhole) {
  ScopedEnv codePage("MV_CODEPAGE", "950");
  const std::string four = "\xA5\x7C";   // 四
  const std::string north = "\xA5\x5F";  // 北
  const std::string add = "\xA5\x5B";    // 加
  EXPECT_EQ(ChangeWildCard("F", four + north + add, true), "(F = '" + four + north + add + "')");
  EXPECT_EQ(ChangeWildCard("F", four + "|" + north + "*", true),
            "((F = '" + four + "') or (F like '" + north + "%'))");
  EXPECT_EQ(ChangeWildCard("F", north + "_", true), "(F like '" + north + "!_' Escape '!')");
  EXPECT_EQ(ChangeWildCard("F", four + ".." + add, true),
            "((F >= '" + four + "') and (F <= '" + add + "'))");
  EXPECT_EQ(ChangeWildCardW("F", four + "?", true), U("(F like N'四_')"));
  EXPECT_EQ(UnescapeRangeTerm(north + "!_%"), north + "_*");
  // A lead byte without its second byte is dropped: before the "_" written for "?" it would
  // read as one character with it.
  EXPECT_EQ(ChangeWildCard("F", "A\xB3?", true), "(F like 'A_')");
  EXPECT_EQ(ChangeWildCard("F", four + "\xA5", true), "(F = '" + four + "')");
}

TEST(RangeCondition, BoundsAndUnescaping) {
  EXPECT_EQ(RangeCondition("F", "!!..!%"), "((F >= '!') and (F <= '%'))");
  EXPECT_EQ(RangeCondition("F", u"%..", false), u"(F >= N'*')");
  EXPECT_EQ(RangeCondition("F", u"..Z", true), u"(F <= \x02Z\x02)");
  EXPECT_EQ(UnescapeRangeTerm("!!!_!%![_%"), "!_%[?*");
  EXPECT_EQ(UnescapeRangeTerm(u"A!"), u"A");
  EXPECT_EQ(UnescapeRangeTerm(u""), u"");
}

}  // namespace
}  // namespace mv::test
