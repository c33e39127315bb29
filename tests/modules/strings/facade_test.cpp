// The library's façades over the string primitives: each overload reaches the primitive of its own
// text form.
#include <gtest/gtest.h>

#include "common/text/str_utils.h"

namespace mv {
namespace {

TEST(StrUtilsTest, OverloadsReachTheirOwnForm) {
  EXPECT_EQ(PadL(std::string("7"), 3), "  7");
  EXPECT_EQ(PadL(u"7", 3), u"  7");
  EXPECT_EQ(PadLChar("7", '0', 3), "007");
  EXPECT_EQ(PadC(u"中", 3), u" 中 ");
  EXPECT_EQ(LTrimChar(u"００1", u'０'), u"1");
  EXPECT_EQ(FillStr(u"a-b", u'-', u'中'), u"a中b");
  char buffer[5] = "ab";
  EXPECT_EQ(StrRPadChar(buffer, '.', 4), 4u);
  EXPECT_STREQ(buffer, "ab..");
  EXPECT_EQ(ChangeCase(u"hELLO 中文"), u"Hello 中文");
  EXPECT_EQ(FToStr(1234.5, ffNumber, 1), "1,234.5");
}

}  // namespace
}  // namespace mv
