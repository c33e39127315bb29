// Positions, copies, insertions, deletions and joins counted in characters: Big5 characters and
// surrogate pairs count one, positions at and past the edges, every pairing of the forms.
#include <gtest/gtest.h>

#include <vector>

#include "modules/mv_str_index.h"
#include "tests/modules/strings/big5.h"

namespace mv::modules {
namespace {

using namespace big5;
using IndexTest = Big5Test;

TEST_F(IndexTest, PosFindsWholeCharactersInEveryPairing) {
  const std::string text = kZhong + kXu + "\\x";  // 中許\x
  EXPECT_EQ(MV_Pos(std::string("\\"), text), 3);  // not the second byte of 許
  EXPECT_EQ(MV_Pos(u"許", text), 2);
  EXPECT_EQ(MV_Pos(kXu, u"中許"), 2);
  EXPECT_EQ(MV_Pos(u"x", u"\U00020000x"), 2);
  EXPECT_EQ(MV_Pos(u"\xDC00", u"\U00020000"), 0);  // half of a surrogate pair
  EXPECT_EQ(MV_Pos(std::string(), text), 0);
}

TEST_F(IndexTest, CopyAndDeleteAtTheEdges) {
  const std::string text = kZhong + "ab" + kWen;  // 4 characters
  EXPECT_EQ(MV_Copy(text, 0, 2), kZhong + "a");   // index below 1 counts as 1
  EXPECT_EQ(MV_Copy(text, 4, 9), kWen);
  EXPECT_EQ(MV_Copy(text, 5, 1), "");
  EXPECT_EQ(MV_Copy(u"a\U00020000b", 2, 1), u"\U00020000");
  EXPECT_EQ(MV_Delete(text, 1, 1), "ab" + kWen);
  EXPECT_EQ(MV_Delete(text, 3, 99), kZhong + "a");
  EXPECT_EQ(MV_Delete(text, 5, 1), text);
  EXPECT_EQ(MV_Delete(u"x\U00020000y", 2, 1), u"xy");
}

TEST_F(IndexTest, InsertKeepsTheFormOfTheDestination) {
  EXPECT_EQ(MV_Insert(std::string("-"), kZhong + kWen, 2), kZhong + "-" + kWen);
  EXPECT_EQ(MV_Insert(u"文", kZhong, 9), kZhong + kWen);
  EXPECT_EQ(MV_Insert(kWen, u"中", -1), u"文中");
  EXPECT_EQ(MV_Insert(u"\U0001F600", std::string("a"), 1), "?a");
}

TEST_F(IndexTest, LongTextsKeepCharactersWholeAcrossReadingPieces) {
  std::string text = "a";
  for (int i = 0; i < 3000; ++i) text += kZhong;  // some 中 straddle every 4096-byte piece
  text += kXu + "\\b";
  EXPECT_EQ(MV_Pos(std::string("\\"), text), 3003);
  EXPECT_EQ(MV_Copy(text, 3001, 2), kZhong + kXu);
  EXPECT_EQ(MV_Delete(text, 2, 3000), "a" + kXu + "\\b");
}

TEST(IndexGb18030Test, BytesReadAgainAfterAnIllegalSequenceAtAPieceEnd) {
  test::ScopedEnv codePage("MV_CODEPAGE", "54936");
  // C5 33 at bytes 4094-4095 look like the start of a four-byte character; AA 2B proves them
  // illegal, and "3" is read again as a character of its own.
  std::string text = std::string(4094, 'x') + "\xC5\x33\xAA\x2B\\";
  EXPECT_EQ(MV_Pos(std::string("3"), text), 4096);
  EXPECT_EQ(MV_Copy(text, 4096, 1), "3");
  EXPECT_EQ(MV_Pos(std::string("\\"), text), 4099);
}

TEST_F(IndexTest, ConcatAndLastDelimiter) {
  std::vector<TFormatArg> values{kZhong, std::u16string(u"文"), int64_t{-3}, 0.5};
  EXPECT_EQ(MV_Concat(values), u"中文-30.5");
  EXPECT_EQ(MV_Concat({}), u"");
  EXPECT_EQ(MV_WideLastDelimiter(std::string("\\/"), "a/" + kXu + "b"), 2);
  EXPECT_EQ(MV_WideLastDelimiter(kXu, "a" + kXu + "\\"), 2);
  EXPECT_EQ(MV_WideLastDelimiter(u"\\.", u"中.x\\"), 4);
}

}  // namespace
}  // namespace mv::modules
