// Checks of document fields against the receiving system's rules: length, the English and the
// document syntax character sets, Chinese character classes, positional masks, decimal formats
// and tab-separated import lines. The Boolean checks leave the message to the caller and never
// raise. The character-set checks tell the user themselves: at the first refused character they
// show text 2165 of the text catalogue, filled with the field's label and that character, in an
// error box (one OK button, the application's title as caption, through the dialogs provider)
// and then raise EAbort, the quiet abort.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "common/text/str_cut.h"

namespace mv::db {
class TMVADODataSet;
}

namespace mv {

// Charset codes: the class of the characters of a document's fields so far.
inline constexpr char kCharsetEnglish = 'E';      // nothing above code 127
inline constexpr char kCharsetCommon = 'C';       // characters common to both Chinese scripts
inline constexpr char kCharsetTraditional = 'T';  // Traditional-only characters
inline constexpr char kCharsetSimplified = 'S';   // Simplified-only characters
inline constexpr char kCharsetMixed = 'M';        // both Traditional- and Simplified-only ones

// Nothing when `text` has at most `maxLength` UTF-16 units. Otherwise raises std::runtime_error
// (the general error, no subclass) whose message is "Your input is too long, please shorten." or
// "你所輸入之資料太長。請縮短。" by the current language (narrow text as the language shows it),
// prefixed with `caption` and ": " when `caption` (narrow) is not empty. Shows nothing.
void CheckFieldLength(std::u16string_view text, int maxLength, std::string_view caption);

// Walks narrow `text` byte by byte: printable ASCII (32 ..= 126), line feed and carriage return
// pass; the first other byte is refused (message, EAbort). A refused byte that starts a
// double-byte character of the user's code page is shown as that whole character.
void ChkEngCharSet(std::string_view text, std::u16string_view fieldLabel);

// Passes when `text`, upper-cased (MV_WideUpperCase: one unit for one, so "ß" stays and is
// refused), holds only the document syntax set: blank, 0-9, A-Z, ! " % & ' ( ) * + , - . / : ; < =
// > ? CR and LF. The first other character is refused (message with the character as typed,
// EAbort).
void ChkSyntax(std::u16string_view text, std::u16string_view fieldLabel);

// Checks the Chinese characters of `text` against the installation's code list
// (chinese_code_list.h) and folds their classes into `charset`. Each UTF-16 unit up to 127 is
// checked alone as ChkEngCharSet checks it; a higher one passes unchecked when the code list is
// empty, else it must be listed as C, T or S (refused otherwise: message, EAbort; `charset` is
// left as it was). Then `charset` becomes, by the first rule that holds: M when it is M or when
// both (it is T or a Traditional one was seen) and (it is S or a Simplified one was seen); T when
// it is T or a Traditional one was seen; S likewise; C likewise; else E. Calling it field after
// field with one `charset` gives the class of the whole document.
void ChkChiCharset(std::u16string_view text, std::u16string_view fieldLabel, char& charset);

// True when `line` holds a tab outside double-quoted stretches: pairs of adjacent double quotes
// are dropped first, then every stretch from a quote to the next one; an opening quote without a
// closing one hides nothing after it.
bool IsTabDelimited(std::u16string_view line);

// Checks every field of the current row of `dataSet` in field order, skipping calculated fields
// and fields named in `exclude` (without regard to case). A wide-string field (type code 24) goes
// to ChkChiCharset with its display label and `charset`; a string, bytes, variable bytes or fixed
// string field (codes 1, 12, 13, 23), as narrow text, to ChkEngCharSet. Other fields are not
// looked at. The first refused character stops everything (message, EAbort).
void ChkSynField(db::TMVADODataSet& dataSet, const std::vector<std::string>& exclude,
                 char& charset);
// The same with a Charset of its own that is thrown away.
void ChkSynField(db::TMVADODataSet& dataSet, const std::vector<std::string>& exclude);

// True when the text holds a Chinese character (MV_HasChinese, modules/mv_str_chars.h).
bool HasChinese(std::string_view text);
bool HasChinese(std::u16string_view text);

// True when `value` fits `mask` position by position: "A" a letter A-Z, "9" a digit, "X" a
// letter or digit, "O" a member of `others`, "*" anything, any other mask character itself.
// Letters of `value` count in either case (the value is upper-cased first: wide text by
// MV_WideUpperCase, narrow text in the user's code page by ECharUpperCase, which leaves the bytes
// of double-byte characters alone). "A", "9", "X" and "O" test the low byte of a wide unit, so
// U+4E41 passes "A", U+3431 passes "9". False for a blank or empty value and when the lengths
// (UTF-16 units / bytes) differ.
bool ChkFormat(std::u16string_view value, std::u16string_view mask, const TCharSet& others);
bool ChkFormat(std::string_view value, std::string_view mask, const TCharSet& others);

// True when `value` is a decimal number of at most `n` digits in all, at most `x` of them after
// the point ("." whatever the locale): with the value padded on the left with "9" to n + 1
// characters (n without a point), ChkFormat holds for one of the masks of n - d nines followed,
// for d > 0, by "." and d nines (d from 0 to x). False when n or x is negative, x > n, or the
// value is no floating-point number (blanks around it, sign and exponent allowed there); a sign
// is no digit, so negative numbers never pass.
bool ChkFloatFmt_NDotDotXCommaY(std::u16string_view value, int n, int x);

}  // namespace mv
