#include <gtest/gtest.h>

#include <string>

#include "common/text/conversions.h"
#include "common/text/str_cut.h"

namespace mv {
namespace {

const std::string kBig5 = "\xB3\xF8\xC3\xF6";  // 報關: two characters, four bytes

// Left and Right cut bytes; StrLeft and StrRight cut characters of the wide carrier.
TEST(LeftRight, CutBytesOrCarrierCharacters) {
  EXPECT_EQ(Right(kBig5, 2), "\xC3\xF6");
  EXPECT_EQ(Right("AB", 5), "AB");
  EXPECT_EQ(Right("AB", -3), "");
  EXPECT_EQ(Right("", 2), "");
  EXPECT_EQ(Left(kBig5, 2), "\xB3\xF8");
  EXPECT_EQ(Left("AB", 0), "");
  EXPECT_EQ(Left(std::string("A\0B", 3), 3), std::string("A\0B", 3));

  EXPECT_EQ(StrLeft(u"報關資料", 2), u"報關");
  const std::u16string literal = u"x=\u0002O'Neil\u0002";
  EXPECT_EQ(StrLeft(literal, 100), literal);  // marks kept
  EXPECT_EQ(StrRight(literal, 8), u"\u0002O'Neil\u0002");
  EXPECT_EQ(StrLeft(literal, 4), u"x=O");  // the cut leaves the literal open: its mark goes
  EXPECT_EQ(StrRight(literal, 3), u"il");
}

TEST(Strip, RemovesMembersOnly) {
  EXPECT_EQ(Strip("A-B C-", MakeCharSet("- ")), "ABC");
  EXPECT_EQ(Strip("A\xB3\xF8", TCharSet()), "A\xB3\xF8");
  EXPECT_EQ(Strip("", MakeCharSet("A")), "");
  EXPECT_EQ(Strip(std::string("A\0\xFF", 3), MakeCharSet(std::string("\0\xFF", 2))), "A");
}

TEST(MovePChar, CutsConsecutiveFields) {
  const char record[] = "ABC\xB3\xF8";  // a three-letter field and one of a Big5 character
  const char* p = record;
  std::string field = "previous content";
  MovePChar(3, p, field);
  EXPECT_EQ(field, "ABC");
  MovePChar(2, p, field);
  EXPECT_EQ(field, "\xB3\xF8");
  MovePChar(0, p, field);
  EXPECT_EQ(field, "");
  EXPECT_EQ(p, record + 5);

  const char padded[] = {'A', '\0', 'Z', 'Q'};  // a text shorter than the field
  p = padded;
  MovePChar(3, p, field);
  EXPECT_EQ(field, std::string("A\0Z", 3));
}

}  // namespace
}  // namespace mv
