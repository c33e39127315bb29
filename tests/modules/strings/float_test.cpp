// Floating-point numbers as text: rounding at the edges of each form, signs, digits held in range.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "modules/mv_str_float.h"

namespace mv::modules {
namespace {

TEST(FloatTextTest, GeneralSwitchesToScientificAfterRounding) {
  EXPECT_EQ(_MV_FToStr(9.9999, ffGeneral, 3), "10");
  EXPECT_EQ(_MV_FToStr(999.9, ffGeneral, 3), "1E3");
  EXPECT_EQ(_MV_FToStr(0.00001, ffGeneral, 15), "0.00001");
  EXPECT_EQ(_MV_FToStr(0.000001, ffGeneral, 15), "1E-6");
  EXPECT_EQ(_MV_FToStr(0, ffGeneral, 15), "0");
  EXPECT_EQ(_MV_FToStr(0.1 + 0.2, ffGeneral, 15), "0.3");
  EXPECT_EQ(_MV_FToStr(0.1 + 0.2, ffGeneral, 99), "0.300000000000000044");
  EXPECT_EQ(_MV_FToStr(-2.6, ffGeneral, 0), "-3");
}

TEST(FloatTextTest, FixedNumberAndCurrencyForms) {
  EXPECT_EQ(_MV_FToStr(1234567.891, ffNumber, 2), "1,234,567.89");
  EXPECT_EQ(_MV_FToStr(123456, ffNumber, 0), "123,456");
  EXPECT_EQ(_MV_FToStr(999.999, ffCurrency, 2), "$1,000.00");
  EXPECT_EQ(_MV_FToStr(-0.5, ffCurrency, 2), "-$0.50");
  EXPECT_EQ(_MV_FToStr(2.5, ffFixed, -3), "2");
  EXPECT_EQ(_MV_FToStr(-1e-9, ffExponent, 2), "-1.0E-009");
  EXPECT_EQ(_MV_FToStr(1.5e300, ffExponent, 1), "2E+300");
}

TEST(FloatTextTest, NoMinusOnZerosAndNamesForSpecialValues) {
  EXPECT_EQ(_MV_FToStr(-0.001, ffFixed, 2), "0.00");
  EXPECT_EQ(_MV_FToStr(-0.0, ffGeneral, 15), "0");
  EXPECT_EQ(_MV_FToStr(std::nan(""), ffFixed, 2), "NAN");
  EXPECT_EQ(_MV_FToStr(-std::numeric_limits<double>::infinity(), ffNumber, 2), "-INF");
  EXPECT_EQ(_MV_FToStr(1.0, static_cast<TFloatFormat>(42), 15), "1");
}

}  // namespace
}  // namespace mv::modules
