// Floating-point numbers as text. "." is always the decimal point and "," the thousands
// separator, whatever the machine's locale: the texts go into configuration files and SQL.
#pragma once

#include <string>

namespace mv::modules {

// The float formats of _MV_FToStr and of the format conversions "%g", "%e", "%f", "%n", "%m".
enum TFloatFormat { ffGeneral, ffExponent, ffFixed, ffNumber, ffCurrency };

// `value` as narrow text (ASCII only, so the same bytes in every code page):
// - ffGeneral: at most `digits` significant digits, trailing zeros dropped; scientific ("1.5E20",
//   "1E-7") when the decimal exponent is below -5 or at least `digits`;
// - ffExponent: `digits` significant digits as d.ddd, "E", sign, at least three exponent digits
//   ("1.23E+004");
// - ffFixed: `digits` digits after the decimal point ("1234.50");
// - ffNumber: as ffFixed with "," between groups of three integer digits ("1,234.50");
// - ffCurrency: as ffNumber after "$" ("$1,234.50", "-$1,234.50").
// `digits` is held to 1..18 for ffGeneral and ffExponent and to 0..18 for the others; a format
// outside the enumeration counts as ffGeneral. NaN gives "NAN", infinities "INF" and "-INF"; a
// result that shows only zeros carries no minus sign.
std::string _MV_FToStr(double value, TFloatFormat format, int digits);

}  // namespace mv::modules
