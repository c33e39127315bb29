// Chinese characters in either form, and base-36 numbers at their limits.
#include <gtest/gtest.h>

#include "modules/mv_str_chars.h"
#include "tests/modules/strings/big5.h"

namespace mv::modules {
namespace {

using namespace big5;
using CharsTest = Big5Test;

TEST_F(CharsTest, HasChineseInEitherForm) {
  EXPECT_TRUE(MV_HasChinese("abc" + kWu));
  EXPECT_TRUE(MV_HasChinese(kFullA));
  EXPECT_FALSE(MV_HasChinese("\xA3\x55"));  // Σ is a Big5 character but no Chinese one
  EXPECT_FALSE(MV_HasChinese(std::string("plain ASCII")));
  EXPECT_TRUE(MV_HasChinese(u"x\U00020000"));
  EXPECT_TRUE(MV_HasChinese(u"，"));
  EXPECT_FALSE(MV_HasChinese(u"éΣ\U0001F600"));
  EXPECT_FALSE(MV_HasChinese(u""));
}

TEST(Get36Test, Base36ValuesAndRejects) {
  EXPECT_EQ(MV_Get36(std::string("Z")), 35);
  EXPECT_EQ(MV_Get36(u"10"), 36);
  EXPECT_EQ(MV_Get36(std::string("zz")), 36 * 36 - 1);
  EXPECT_EQ(MV_Get36(std::string("1Y2P0IJ32E8E7")), INT64_MAX);
  EXPECT_EQ(MV_Get36(std::string("1Y2P0IJ32E8E8")), -1);
  EXPECT_EQ(MV_Get36(std::string("")), -1);
  EXPECT_EQ(MV_Get36(u" 1"), -1);
  EXPECT_EQ(MV_Get36(u"１"), -1);
}

}  // namespace
}  // namespace mv::modules
