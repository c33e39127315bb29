// Blanks, single characters, fields, padding and wrapping: edges of widths and buffers, and Big5
// text whose second bytes look like the character looked for.
#include <gtest/gtest.h>

#include "modules/mv_str_pad.h"
#include "modules/mv_str_wrap.h"
#include "modules/mv_strings.h"
#include "tests/modules/strings/big5.h"

namespace mv::modules {
namespace {

using namespace big5;
using TrimPadTest = Big5Test;

TEST_F(TrimPadTest, TrimsDropBlanksOnly) {
  EXPECT_EQ(_MV_AllTrim(u"  中 文\t "), u"中 文\t");
  EXPECT_EQ(_MV_RTrim(u"   "), u"");
  EXPECT_EQ(_MV_LTrim(std::string(" \t")), "\t");
  EXPECT_FALSE(_MV_NotEmpty(u"   "));
  EXPECT_FALSE(_MV_NotEmpty(std::string()));
  EXPECT_TRUE(_MV_NotEmpty(" " + kZhong));
}

TEST_F(TrimPadTest, SingleCharactersNeverMatchASecondByte) {
  EXPECT_EQ(_MV_FillStr(kXu + "\\a\\", '\\', '/'), kXu + "/a/");
  EXPECT_EQ(_MV_LTrimChar("aa" + kWu + "a", 'a'), kWu + "a");
  EXPECT_EQ(_MV_LTrimChar(std::string("\xA4\xA4\xA4"), '\xA4'), "\xA4\xA4\xA4");
  EXPECT_EQ(_MV_LTrimChar(u"００1", u'０'), u"1");
  EXPECT_EQ(_MV_FillStr(u"a-b-", u'-', u'中'), u"a中b中");
}

TEST_F(TrimPadTest, FieldsSplitAtWholeDelimiters) {
  std::string text = "A|" + kYiBar + "|" + kZhong + "|";
  EXPECT_EQ(MV_UserTitle(text, '|', 2), kYiBar);
  EXPECT_EQ(MV_UserTitle(text, '|', 4), "");
  EXPECT_EQ(MV_UserTitle(text, '|', 5), "");
  EXPECT_EQ(MV_UserTitle(u"a,,b", u',', 3), u"b");
  EXPECT_EQ(MV_UserTitle(u"a", u',', 0), u"");
}

TEST(PadTest, WidthCountsStorageUnitsAndNeverCuts) {
  EXPECT_EQ(_MV_PadR("ab", 4), "ab  ");
  EXPECT_EQ(_MV_PadL("\xA4\xA4", 3), " \xA4\xA4");  // a Big5 character fills two
  EXPECT_EQ(_MV_PadR(u"中", 3), u"中  ");
  EXPECT_EQ(_MV_PadC("ab", 5), " ab  ");
  EXPECT_EQ(_MV_PadC(u"", 2), u"  ");
  EXPECT_EQ(_MV_PadLChar("12345", '0', 4), "12345");
  EXPECT_EQ(_MV_PadRChar(u"x", u'*', 0), u"x");
  EXPECT_EQ(_MV_PadLChar(u"7", u'0', -3), u"7");
}

TEST(PadTest, BufferPaddingStaysInsideTheBuffer) {
  char narrow[6] = "ab";  // the normal case is in the facade test
  EXPECT_EQ(_MV_StrRPadChar(narrow, '#', 99), 5u);
  EXPECT_STREQ(narrow, "ab###");
  char16_t wide[4] = u"abc";
  EXPECT_EQ(_MV_StrRPadChar(wide, u'-', 2), 3u);
  EXPECT_EQ(std::u16string(wide), u"abc");
  char full[3] = {'a', 'b', 'c'};
  EXPECT_EQ(_MV_StrRPadChar(full, '.', 5), 3u);
  EXPECT_EQ(std::string(full, 3), "abc");
  EXPECT_EQ(_MV_StrRPadChar(std::span<char>(), '.', 5), 0u);
}

TEST(WrapTest, BreaksAfterTheLastBreakCharacterThatFitsOnly) {
  EXPECT_EQ(MV_WideWrapText(u"The quick brown fox", 10), u"The quick \r\nbrown fox");
  EXPECT_EQ(MV_WideWrapText(u"well-known fact", 6), u"well-\r\nknown \r\nfact");
  EXPECT_EQ(MV_WideWrapText(u"a b", 3), u"a b");
  EXPECT_EQ(MV_WideWrapText(u"a b ", 1), u"a \r\nb ");  // no break text at the end
  // Long words, existing line ends and odd limits stay.
  EXPECT_EQ(MV_WideWrapText(u"abcdefgh ij", 3), u"abcdefgh \r\nij");
  EXPECT_EQ(MV_WideWrapText(u"ab cd\r\nef gh", 5), u"ab cd\r\nef gh");
  EXPECT_EQ(MV_WideWrapText(u"a,b,c", u"|", u",", 2), u"a,|b,|c");
  EXPECT_EQ(MV_WideWrapText(u"a b", 0), u"a b");
  EXPECT_EQ(MV_WideWrapText(u"", 5), u"");
}

TEST_F(TrimPadTest, WrapCountsABig5CharacterAsOneColumn) {
  std::string text = kZhong + kWen + " " + kZhong + kWen;
  EXPECT_EQ(MV_WideWrapText(text, 3), kZhong + kWen + " \r\n" + kZhong + kWen);
  // The second byte of 弋 is "|": no break there.
  EXPECT_EQ(MV_WideWrapText(kYiBar + kYiBar + "|x", "#", "|", 2), kYiBar + kYiBar + "|#x");
  EXPECT_EQ(MV_WideWrapText(u"中文 中文", u"<br>", u" ", 2), u"中文 <br>中文");
}

}  // namespace
}  // namespace mv::modules
