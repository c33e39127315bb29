#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "platform/codepage/codepage.h"
#include "platform/codepage/simplified.h"
#include "tests/support/temp_dir.h"
#include "tests/support/under_wine.h"

namespace mv::codepage {
namespace {

bool IsOneCodePoint(const std::u16string& w) {
  if (w.size() == 1) return w[0] != u'\uFFFD' && (w[0] < 0xD800 || w[0] > 0xDFFF);
  return w.size() == 2 && w[0] >= 0xD800 && w[0] <= 0xDBFF && w[1] >= 0xDC00 && w[1] <= 0xDFFF;
}

// Converts every lead/trail pair of a double-byte code page to wide text and back, then all the
// pairs that came back as themselves in one string. Returns the characters mapped and how many
// of them are private-use code points.
std::pair<int, int> RoundTripEveryPair(int codePage) {
  std::string canonical;
  int mapped = 0, privateUse = 0, duplicates = 0;
  for (int lead = 0x81; lead <= 0xFE; ++lead) {
    for (int trail = 0x40; trail <= 0xFE; ++trail) {
      const std::string pair{static_cast<char>(lead), static_cast<char>(trail)};
      const std::u16string wide = ToWide(pair, codePage);
      if (!IsOneCodePoint(wide)) continue;
      ++mapped;
      if (wide[0] >= 0xE000 && wide[0] <= 0xF8FF) ++privateUse;
      const std::string back = FromWide(wide, codePage);
      if (back == pair) {
        canonical += pair;
        continue;
      }
      // A second encoding of a character comes back as its first encoding.
      ++duplicates;
      EXPECT_EQ(ToWide(back, codePage), wide) << std::hex << lead << trail;
    }
  }
  EXPECT_LE(duplicates, 16);  // a few box-drawing and numeral characters have two encodings
  EXPECT_EQ(FromWide(ToWide(canonical, codePage), codePage), canonical);
  return {mapped, privateUse};
}

TEST(CodePageRoundTrip, EveryCharacterOfBig5AndGbk) {
  // Big5 proper (13,000-odd characters and symbols) and the user-defined area, where Hong Kong
  // installations keep their HKSCS characters as private-use code points.
  const auto [big5, privateUse] = RoundTripEveryPair(kBig5);
  EXPECT_GT(big5 - privateUse, 13000);
  EXPECT_GT(privateUse, 6000);
  EXPECT_GT(RoundTripEveryPair(kGbk).first, 21000);
}

TEST(CodePageConversion, BadInputAndUnknownCodePages) {
  EXPECT_EQ(ToWide("\xB3\xF8\xC3\xF6", kBig5), u"報關");
  EXPECT_EQ(ToWide("A\xB3", kBig5), u"A\uFFFD");  // a lead byte cut off at the end
  EXPECT_EQ(FromWide(u"報\U0001F600關", kBig5), "\xB3\xF8?\xC3\xF6");
  EXPECT_EQ(FromWide(u"\xD800", kUtf8), "?");  // unpaired surrogate
  EXPECT_EQ(ToWide("", 12345), u"");
  EXPECT_THROW(ToWide("A", 12345), ECodePageError);
  EXPECT_THROW(FromWide(u"A", 12345), ECodePageError);
  EXPECT_THROW(IsMappable(u"A", 12345), ECodePageError);
  const std::string longText(100000, 'x');  // longer than any scratch buffer
  EXPECT_EQ(FromWide(ToWide(longText, kWestern), kWestern), longText);
}

// Wide to 950 takes the code page's best-fit rows, as the platform's own conversion does; the
// expected bytes are those of the platform's published best-fit table for 950.
TEST(CodePageConversion, WideToBig5UsesTheBestFitRows) {
  EXPECT_EQ(FromWide(u"Café ¥100 •", kBig5),
            "Cafe \xA2\x44"
            "100 \xA1\x45");
  EXPECT_EQ(FromWide(u"©®²¢£‾", kBig5), "cR2\xA2\x46\xA2\x47\xA1\xC3");
  EXPECT_EQ(FromWide(u"½", kBig5), "?");  // no row at all
  EXPECT_FALSE(IsMappable(u"é", kBig5));  // a best fit is no exact mapping
  // Narrow to wide is untouched: A145 reads as U+2027, the character it stands for.
  EXPECT_EQ(ToWide("\xA1\x45", kBig5), u"\u2027");
}

TEST(CodePageConversion, MappableOnlyWithoutSubstitution) {
  EXPECT_TRUE(IsMappable(u"報關資料 ABC ?", kBig5));
  EXPECT_TRUE(IsMappable(u"", kBig5));
  EXPECT_FALSE(IsMappable(u"报关", kBig5));  // Simplified forms are not in Big5
  EXPECT_TRUE(IsMappable(u"报关", kGbk));
  EXPECT_FALSE(IsMappable(u"A\xDC00", kUtf8));
  EXPECT_FALSE(IsMappable(std::u16string(5000, u'A') + u"\U0001F600", kWestern));
  EXPECT_FALSE(IsMappable(u"A\uFE00", kBig5));  // a variation selector would be dropped
  EXPECT_EQ(FromWide(u"A\uFE00", kBig5), "A");
  // A one-way row gives another character back: Shift-JIS writes U+F86F as 8782, read as U+2116.
  EXPECT_FALSE(IsMappable(u"\uF86F", 932));
  EXPECT_TRUE(IsMappable(u"\u2116", 932));
}

TEST(Simplified, TraditionalWordsBecomeSimplified) {
  if (test::RunsUnderWine()) {
    GTEST_SKIP() << "Wine's LCMapStringEx does not implement LCMAP_SIMPLIFIED_CHINESE: it gives "
                    "Traditional Chinese back unchanged; this case needs Windows itself";
  }
  EXPECT_EQ(ToSimplified(u"臺灣 發票 ABC 123"), u"台湾 发票 ABC 123");
  // Big5 bytes of 報關資料 -> GBK bytes of 报关资料.
  EXPECT_EQ(Big5ToGbk("\xB3\xF8\xC3\xF6\xB8\xEA\xAE\xC6 A"), "\xB1\xA8\xB9\xD8\xD7\xCA\xC1\xCF A");
}

TEST(Simplified, EmptyTextAndBytesBig5DoesNotMap) {
  EXPECT_EQ(ToSimplified(u""), u"");
  EXPECT_EQ(Big5ToGbk(""), "");
  // A byte Big5 does not map becomes "?"; characters without Chinese forms pass.
  EXPECT_EQ(Big5ToGbk("A\xB3"), "A?");
  EXPECT_EQ(Big5ToGbk("ABC 123"), "ABC 123");
}

}  // namespace
}  // namespace mv::codepage
