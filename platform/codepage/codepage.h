// Conversions between narrow text (bytes in a Windows code page) and wide text (UTF-16), and the
// machine's code pages; code pages are Windows code-page numbers. On POSIX ICU does every
// conversion (each thread keeps the converters it has opened, so repeated conversions cost no
// set-up); on Windows the system's own conversion does, with the same answers.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace mv::codepage {

// Code pages the library meets by name.
inline constexpr int kBig5 = 950;
inline constexpr int kGbk = 936;
inline constexpr int kWestern = 1252;
inline constexpr int kUtf8 = 65001;

// Raised for a code page number that no converter serves.
class ECodePageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// The ICU converter name of a Windows code page ("windows-950-2000" for 950 ...); empty when the
// number is not known. POSIX builds convert through these converters.
std::string ConverterName(int codePage);

// True when the conversions below serve code page `codePage` (POSIX: it has an ICU converter;
// Windows: the system has the code page).
[[nodiscard]] bool IsKnownCodePage(int codePage);

// The system's ANSI code page: the environment variable MV_CODEPAGE when it holds a number, else
// on POSIX the character set of the locale (BIG5 / BIG5-HKSCS -> 950, GBK / GB2312 / GB18030 ->
// 936, UTF-8 -> 65001, anything else -> 1252), on Windows the system's ANSI code page (GetACP).
int SystemCodePage();

// The user's ANSI code page: MV_CODEPAGE when it holds a number, else on POSIX the same rules as
// SystemCodePage, on Windows the ANSI code page of the user's locale.
int UserCodePage();

// Wide text of narrow text in `codePage`. Bytes that the code page does not map become U+FFFD.
// Throws ECodePageError for an unknown code page.
std::u16string ToWide(std::string_view text, int codePage);

// Narrow text in `codePage` of wide text, as the platform's conversion gives it: a character the
// code page holds only as a best fit becomes that fit (with 950, "é" -> "e", "¥" -> A244,
// "•" -> A145), a character without any row becomes "?", and default-ignorable ones it lacks
// (variation selectors, joiners) are dropped. On POSIX ICU's fallback mappings are the best-fit
// rows; for 950 they agree with the platform's published best-fit table, which Windows applies
// itself. Unpaired surrogates become "?".
// Throws ECodePageError for an unknown code page.
[[nodiscard]] std::string FromWide(std::u16string_view text, int codePage);

// True when every character of `text` has an exact mapping to `codePage`, so that FromWide
// substitutes or drops nothing and the result converts back to `text`: the conversion stops at the
// first loss, and what it gives must read back as `text`. Characters the code page holds only as a
// best fit or a one-way row, default-ignorable characters it lacks (variation selectors, which
// FromWide drops) and unpaired surrogates are not mappable. Empty text is mappable.
// Throws ECodePageError for an unknown code page.
bool IsMappable(std::u16string_view text, int codePage);

// Narrow text moved from one code page to another (through UTF-16); returns `text` unchanged when
// both are the same.
std::string Convert(std::string_view text, int fromCodePage, int toCodePage);

// UTF-8 <-> UTF-16 (ill-formed input becomes U+FFFD).
std::u16string WideFromUtf8(std::string_view text);
std::string Utf8FromWide(std::u16string_view text);

// Narrow text in the system code page <-> UTF-8, for files and terminals that speak UTF-8.
std::string Utf8FromSystem(std::string_view text);
std::string SystemFromUtf8(std::string_view text);

}  // namespace mv::codepage
