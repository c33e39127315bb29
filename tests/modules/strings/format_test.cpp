// Numbers and format texts as text: rounding at the edges of each float form, conversions,
// indexes, widths counted in characters, Big5 and wide texts crossing forms, and the errors of bad
// format texts.
#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>
#include <vector>

#include "modules/mv_format.h"
#include "modules/mv_str_float.h"
#include "tests/support/temp_dir.h"

namespace mv::modules {
namespace {

using Args = std::vector<TFormatArg>;

std::string Fmt(std::string_view format, const Args& args) {
  return MV_WideFmtStr(format, args);
}

TEST(FloatTextTest, GeneralSwitchesToScientificAfterRounding) {
  EXPECT_EQ(_MV_FToStr(999.9, ffGeneral, 3), "1E3");
  EXPECT_EQ(_MV_FToStr(0.00001, ffGeneral, 15), "0.00001");
  EXPECT_EQ(_MV_FToStr(0.000001, ffGeneral, 15), "1E-6");
  EXPECT_EQ(_MV_FToStr(0.1 + 0.2, ffGeneral, 15), "0.3");
  EXPECT_EQ(_MV_FToStr(0.1 + 0.2, ffGeneral, 99), "0.300000000000000044");
  EXPECT_EQ(_MV_FToStr(-2.6, ffGeneral, 0), "-3");
}

TEST(FloatTextTest, OtherFormsZerosAndSpecialValues) {
  EXPECT_EQ(_MV_FToStr(1234567.891, ffNumber, 2), "1,234,567.89");
  EXPECT_EQ(_MV_FToStr(999.999, ffCurrency, 2), "$1,000.00");
  EXPECT_EQ(_MV_FToStr(-0.5, ffCurrency, 2), "-$0.50");
  EXPECT_EQ(_MV_FToStr(2.5, ffFixed, -3), "2");
  EXPECT_EQ(_MV_FToStr(-1e-9, ffExponent, 2), "-1.0E-009");
  EXPECT_EQ(_MV_FToStr(1.5e300, ffExponent, 1), "2E+300");
  // No minus on zeros, names for the special values, and a bad form taken as general.
  EXPECT_EQ(_MV_FToStr(-0.001, ffFixed, 2), "0.00");
  EXPECT_EQ(_MV_FToStr(-0.0, ffGeneral, 15), "0");
  EXPECT_EQ(_MV_FToStr(std::nan(""), ffFixed, 2), "NAN");
  EXPECT_EQ(_MV_FToStr(-std::numeric_limits<double>::infinity(), ffNumber, 2), "-INF");
  EXPECT_EQ(_MV_FToStr(1.0, static_cast<TFloatFormat>(42), 15), "1");
}

TEST(FormatTest, ConversionsOfIntegersTextsAndFloats) {
  EXPECT_EQ(Fmt("%s=%d;%u;%x;%%", {std::string("a"), int64_t{-12}, int64_t{7}, int64_t{255}}),
            "a=-12;7;FF;%");
  EXPECT_EQ(Fmt("%u %x", {int64_t{-1}, int64_t{-1}}), "18446744073709551615 FFFFFFFFFFFFFFFF");
  EXPECT_EQ(Fmt("%d", {int64_t{LLONG_MIN}}), "-9223372036854775808");
  EXPECT_EQ(Fmt("%.3d|%.4x|%D|%S", {int64_t{-5}, int64_t{10}, int64_t{3}, std::string("up")}),
            "-005|000A|3|up");
  // Floats use the point whatever the locale; an integer is accepted too.
  EXPECT_EQ(Fmt("%f|%.1f|%n|%m|%.0n", {1234.567, 1234.567, 1234.567, -1234.567, 999.5}),
            "1234.57|1234.6|1,234.57|-$1,234.57|1,000");
  EXPECT_EQ(Fmt("%g|%g|%g|%.3g", {0.1, 1e20, 1.5e-7, 2.0 / 3}), "0.1|1E20|1.5E-7|0.667");
  EXPECT_EQ(Fmt("%.2f", {int64_t{3}}), "3.00");
}

TEST(FormatTest, WidthsPrecisionsAndIndexes) {
  EXPECT_EQ(Fmt("[%5d][%-5d][%2d]", {int64_t{42}, int64_t{42}, int64_t{12345}}),
            "[   42][42   ][12345]");
  EXPECT_EQ(Fmt("[%-6.2s][%.0s]", {std::string("abcdef"), std::string("abc")}), "[ab    ][]");
  // Indexes count from zero and move the next argument.
  Args args{std::string("a"), std::string("b"), std::string("c")};
  EXPECT_EQ(Fmt("%1:s %0:s %s", args), "b a b");
  EXPECT_EQ(Fmt("%2:s%d", {std::string("a"), std::string("b"), std::string("c"), int64_t{1}}),
            "c1");
  EXPECT_EQ(Fmt("%0:-3s|", args), "a  |");
}

TEST(FormatTest, Big5AndWideTextsCountCharacters) {
  test::ScopedEnv cp("MV_CODEPAGE", "950");
  const std::string chinese = "\xA4\xA4\xA4\xE5\xA6\x72";  // 中文字
  EXPECT_EQ(Fmt("%.2s", {chinese}), "\xA4\xA4\xA4\xE5");
  EXPECT_EQ(Fmt("[%5s]", {chinese}), "[  " + chinese + "]");
  // A "%" after a lead byte is still a conversion: no Big5 trail byte is "%".
  EXPECT_EQ(Fmt("\xA4\xA4%d", {int64_t{1}}), std::string("\xA4\xA4") + "1");
  EXPECT_EQ(Fmt("%s", {std::u16string(u"中文")}), "\xA4\xA4\xA4\xE5");
  Args args{std::string("\xA4\xA4\xA4\xE5"), std::u16string(u"𠀀x"), int64_t{7}};
  EXPECT_EQ(MV_WideFormat(u"中%s|%-3.1s|%03d", args), u"中中文|𠀀  |  7");
}

TEST(FormatTest, BadFormatTextsRaiseFormatError) {
  Args one{int64_t{1}};
  for (std::string_view bad : {"%q", "abc%", "%d %d", "%5:d", "%-", "%.", "%1.", "%99999d",
                               "%.70000f", "%70000:d", "%\xA4"}) {
    EXPECT_THROW(Fmt(bad, one), EFormatError) << bad;
  }
  EXPECT_THROW(Fmt("%d", {std::string("1")}), EFormatError);
  EXPECT_THROW(Fmt("%d", {1.5}), EFormatError);
  EXPECT_THROW(MV_WideFormat(u"%中", one), EFormatError);
  try {
    Fmt("ab%z", one);
    FAIL();
  } catch (const EFormatError& e) {
    EXPECT_NE(std::string(e.what()).find("position 3"), std::string::npos) << e.what();
  }
}

}  // namespace
}  // namespace mv::modules
