// Wrapping: where the break text goes, long words, existing line ends, and Big5 characters that
// count one column and never break apart.
#include <gtest/gtest.h>

#include "modules/mv_str_wrap.h"
#include "tests/modules/strings/big5.h"

namespace mv::modules {
namespace {

using namespace big5;
using WrapTest = Big5Test;

TEST(WrapRulesTest, BreaksAfterTheLastBreakCharacterThatFits) {
  EXPECT_EQ(MV_WideWrapText(u"The quick brown fox", 10), u"The quick \r\nbrown fox");
  EXPECT_EQ(MV_WideWrapText(u"abc def", 3), u"abc \r\ndef");
  EXPECT_EQ(MV_WideWrapText(u"well-known fact", 6), u"well-\r\nknown \r\nfact");
  EXPECT_EQ(MV_WideWrapText(u"a b", 3), u"a b");
  EXPECT_EQ(MV_WideWrapText(u"a b ", 1), u"a \r\nb ");  // no break text at the end
}

TEST(WrapRulesTest, LongWordsLineEndsAndOddLimits) {
  EXPECT_EQ(MV_WideWrapText(u"abcdefgh ij", 3), u"abcdefgh \r\nij");
  EXPECT_EQ(MV_WideWrapText(u"abcdefgh", 3), u"abcdefgh");
  EXPECT_EQ(MV_WideWrapText(u"ab cd\r\nef gh", 5), u"ab cd\r\nef gh");
  EXPECT_EQ(MV_WideWrapText(u"a,b,c", u"|", u",", 2), u"a,|b,|c");
  EXPECT_EQ(MV_WideWrapText(u"a b", 0), u"a b");
  EXPECT_EQ(MV_WideWrapText(u"", 5), u"");
}

TEST_F(WrapTest, Big5CharactersCountOneColumn) {
  std::string text = kZhong + kWen + " " + kZhong + kWen;
  EXPECT_EQ(MV_WideWrapText(text, 3), kZhong + kWen + " \r\n" + kZhong + kWen);
  EXPECT_EQ(MV_WideWrapText(text, 5), text);
  // The second byte of 弋 is "|": no break there.
  EXPECT_EQ(MV_WideWrapText(kYiBar + kYiBar + "|x", "#", "|", 2), kYiBar + kYiBar + "|#x");
  EXPECT_EQ(MV_WideWrapText(u"中文 中文", u"<br>", u" ", 2), u"中文 <br>中文");
}

}  // namespace
}  // namespace mv::modules
