// String utilities over narrow text (bytes in the user's code page, Big5 for Chinese) and wide
// text (UTF-16). Each routine forwards to the primitive of the modules package named `_MV_` +
// its name and returns that result unchanged; the `MV_` routines are the primitives themselves,
// brought into namespace mv. The full contracts are the primitives' (modules/mv_strings.h,
// mv_str_pad.h, mv_str_case.h, mv_str_compare.h, mv_str_float.h and the others included below).
// None of them throws, except the format routines for a bad format text (EFormatError).
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "modules/mv_format.h"
#include "modules/mv_str_case.h"
#include "modules/mv_str_chars.h"
#include "modules/mv_str_compare.h"
#include "modules/mv_str_float.h"
#include "modules/mv_str_index.h"
#include "modules/mv_str_quote.h"
#include "modules/mv_str_replace.h"
#include "modules/mv_str_wrap.h"

namespace mv::db {
class TMVADODataSet;
}

namespace mv {

// The text without trailing / leading / leading and trailing blanks (spaces).
std::string RTrim(std::string_view s);
std::u16string RTrim(std::u16string_view s);
std::string LTrim(std::string_view s);
std::u16string LTrim(std::u16string_view s);
std::string AllTrim(std::string_view s);
std::u16string AllTrim(std::u16string_view s);

// The text without the characters `c` at its start (never a byte of a Big5 character).
std::string LTrimChar(std::string_view s, char c);
std::u16string LTrimChar(std::u16string_view s, char16_t c);

// The text padded with blanks on the right / left / both sides (odd blank right) to `n` storage
// units (bytes of narrow, UTF-16 units of wide text); a longer text is not cut.
std::string PadR(std::string_view s, int n);
std::u16string PadR(std::u16string_view s, int n);
std::string PadL(std::string_view s, int n);
std::u16string PadL(std::u16string_view s, int n);
std::string PadC(std::string_view s, int n);
std::u16string PadC(std::u16string_view s, int n);

// The text padded with `c` on the right / left to `n` storage units; a longer text is not cut.
std::string PadRChar(std::string_view s, char c, int n);
std::u16string PadRChar(std::u16string_view s, char16_t c, int n);
std::string PadLChar(std::string_view s, char c, int n);
std::u16string PadLChar(std::u16string_view s, char16_t c, int n);

// Pads the zero-terminated text in `buffer` with `c` to `n` units in place, within the buffer;
// returns the new length (buffer.size() for a buffer without terminator, left as it is).
size_t StrRPadChar(std::span<char> buffer, char c, int n);
size_t StrRPadChar(std::span<char16_t> buffer, char16_t c, int n);

// The text with every character `from` replaced by `to` (never a byte of a Big5 character).
std::string FillStr(std::string_view s, char from, char to);
std::u16string FillStr(std::u16string_view s, char16_t from, char16_t to);

// The text in title case: the first English letter of every word upper, the others lower.
std::string ChangeCase(std::string_view s);
std::u16string ChangeCase(std::u16string_view s);

// The text with its English letters a-z in upper case, every other character untouched.
std::string ECharUpperCase(std::string_view s);
std::u16string ECharUpperCase(std::u16string_view s);

// True when the text holds anything but blanks.
bool NotEmpty(std::string_view s);
bool NotEmpty(std::u16string_view s);

// The number of characters at the start of both texts that are the same.
int Match(std::string_view s1, std::string_view s2);
int Match(std::u16string_view s1, std::u16string_view s2);

// `value` as narrow ASCII text in `format` with `digits` digits, "." as the decimal point.
std::string FToStr(double value, modules::TFloatFormat format, int digits);

using modules::EFormatError;
using modules::ffCurrency;
using modules::ffExponent;
using modules::ffFixed;
using modules::ffGeneral;
using modules::ffNumber;
using modules::MV_CheckQuot;
using modules::MV_Concat;
using modules::MV_Copy;
using modules::MV_Delete;
using modules::MV_Get36;
using modules::MV_HasChinese;
using modules::MV_Insert;
using modules::MV_NQuotedStr;
using modules::MV_Pos;
using modules::MV_WideCompareStr;
using modules::MV_WideCompareText;
using modules::MV_WideDequotedStr;
using modules::MV_WideFmtStr;
using modules::MV_WideFormat;
using modules::MV_WideLastDelimiter;
using modules::MV_WideLowerCase;
using modules::MV_WideQuotedStr;
using modules::MV_WideSameStr;
using modules::MV_WideSameText;
using modules::MV_WideStringReplace;
using modules::MV_WideUpperCase;
using modules::MV_WideWrapText;
using modules::rfIgnoreCase;
using modules::rfReplaceAll;
using modules::TFloatFormat;
// The sum of a numeric field over the rows of a dataset, as _MV_Totals (modules/mv_totals.h).
double Totals(db::TMVADODataSet& dataset, std::string_view field);

using modules::TFormatArg;
using modules::TFormatArgs;
using modules::TReplaceFlags;

}  // namespace mv
