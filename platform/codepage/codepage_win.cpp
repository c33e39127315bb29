// Windows: the system's own conversions. MultiByteToWideChar / WideCharToMultiByte apply the code
// page's best-fit rows; the few places where their answer differs from the rules of codepage.h
// (unpaired surrogates, default-ignorable characters the code page lacks, bytes that start no
// character) are settled here, so both builds give the same text.
#include <windows.h>

#include <climits>
#include <string>

#include "platform/codepage/codepage.h"
#include "platform/codepage/locale_codepage_p.h"
#include "platform/codepage/windows_codepage_p.h"

namespace mv::codepage {
namespace {

int CheckedLength(size_t size) {
  if (size > static_cast<size_t>(INT_MAX / 4)) throw ECodePageError("text too long to convert");
  return static_cast<int>(size);
}

bool IsHighSurrogate(char16_t c) {
  return c >= 0xD800 && c <= 0xDBFF;
}
bool IsLowSurrogate(char16_t c) {
  return c >= 0xDC00 && c <= 0xDFFF;
}

// Default-ignorable code points of the BMP (Unicode's Default_Ignorable_Code_Point property):
// invisible format characters that a conversion drops when the code page lacks them.
bool IsDefaultIgnorable(char16_t c) {
  return c == 0x00AD || c == 0x034F || c == 0x061C || (c >= 0x115F && c <= 0x1160) ||
         (c >= 0x17B4 && c <= 0x17B5) || (c >= 0x180B && c <= 0x180F) ||
         (c >= 0x200B && c <= 0x200F) || (c >= 0x202A && c <= 0x202E) ||
         (c >= 0x2060 && c <= 0x206F) || c == 0x3164 || (c >= 0xFE00 && c <= 0xFE0F) ||
         c == 0xFEFF || c == 0xFFA0 || (c >= 0xFFF0 && c <= 0xFFF8);
}

// Code pages whose conversion takes neither a default character nor the best-fit flags.
bool TakesNoFlags(int codePage) {
  return codePage == kUtf8 || codePage == 65000 || codePage == 54936 ||
         (codePage >= 50220 && codePage <= 50229) || codePage == 42;
}

// The bytes of wide `text` through WideCharToMultiByte; `usedDefault` (when given) tells whether a
// character had no row.
std::string SystemFromWide(std::u16string_view text, int codePage, DWORD flags, BOOL* usedDefault) {
  if (text.empty()) return {};
  const auto* wide = reinterpret_cast<const wchar_t*>(text.data());
  const int length = CheckedLength(text.size());
  const char* defaultChar = TakesNoFlags(codePage) ? nullptr : "?";
  if (TakesNoFlags(codePage)) usedDefault = nullptr;
  const int size = ::WideCharToMultiByte(static_cast<UINT>(codePage), flags, wide, length, nullptr,
                                         0, defaultChar, usedDefault);
  if (size <= 0)
    throw ECodePageError("conversion failed, error " + std::to_string(::GetLastError()));
  std::string out(static_cast<size_t>(size), '\0');
  ::WideCharToMultiByte(static_cast<UINT>(codePage), flags, wide, length, out.data(), size,
                        defaultChar, usedDefault);
  return out;
}

// True when the code page holds `c` exactly.
bool HoldsExactly(char16_t c, int codePage) {
  if (TakesNoFlags(codePage)) return true;
  BOOL usedDefault = FALSE;
  const std::u16string one(1, c);
  SystemFromWide(one, codePage, WC_NO_BEST_FIT_CHARS, &usedDefault);
  return !usedDefault;
}

// `text` with unpaired surrogates and characters beyond the BMP as "?" and the default-ignorable
// characters the code page lacks left out: the cases in which the system's answer would differ.
std::u16string Prepared(std::u16string_view text, int codePage) {
  std::u16string out;
  out.reserve(text.size());
  for (size_t i = 0; i < text.size(); ++i) {
    const char16_t c = text[i];
    if (IsHighSurrogate(c) && i + 1 < text.size() && IsLowSurrogate(text[i + 1])) {
      // Only the Unicode code pages hold characters beyond the BMP; elsewhere the pair is one
      // character without a row, one "?" (the system would write one for each unit).
      if (TakesNoFlags(codePage)) {
        out += c;
        out += text[i + 1];
      } else {
        out += u'?';
      }
      ++i;
    } else if (IsHighSurrogate(c) || IsLowSurrogate(c)) {
      out += u'?';
    } else if (!IsDefaultIgnorable(c) || HoldsExactly(c, codePage)) {
      out += c;
    }
  }
  return out;
}

bool HasUnpairedSurrogate(std::u16string_view text) {
  for (size_t i = 0; i < text.size(); ++i) {
    if (IsHighSurrogate(text[i]) && i + 1 < text.size() && IsLowSurrogate(text[i + 1])) {
      ++i;
    } else if (IsHighSurrogate(text[i]) || IsLowSurrogate(text[i])) {
      return true;
    }
  }
  return false;
}

// The ANSI code page of the user's locale; the system's when the locale does not say.
int UserLocaleCodePage() {
  DWORD codePage = 0;
  const int got = ::GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT,
                                    LOCALE_IDEFAULTANSICODEPAGE | LOCALE_RETURN_NUMBER,
                                    reinterpret_cast<LPWSTR>(&codePage), sizeof codePage / 2);
  return got > 0 && codePage != 0 ? static_cast<int>(codePage) : static_cast<int>(::GetACP());
}

}  // namespace

bool IsKnownCodePage(int codePage) {
  return codePage > 0 && codePage < 65536 && ::IsValidCodePage(static_cast<UINT>(codePage));
}

int SystemCodePage() {
  return CodePageOfEnvironment();
}

int UserCodePage() {
  const int codePage = CodePageOverride();
  return codePage != 0 ? codePage : UserLocaleCodePage();
}

std::u16string ToWide(std::string_view text, int codePage) {
  if (text.empty()) return {};
  detail::CheckCodePage(codePage);
  const int length = CheckedLength(text.size());
  const int size = ::MultiByteToWideChar(static_cast<UINT>(codePage), MB_ERR_INVALID_CHARS,
                                         text.data(), length, nullptr, 0);
  if (size > 0) {
    std::u16string out(static_cast<size_t>(size), u'\0');
    ::MultiByteToWideChar(static_cast<UINT>(codePage), MB_ERR_INVALID_CHARS, text.data(), length,
                          reinterpret_cast<wchar_t*>(out.data()), size);
    return out;
  }
  // Some bytes start no character: read one character at a time, so that each such byte becomes
  // U+FFFD and what follows it is read afresh.
  std::u16string out;
  out.reserve(text.size());
  while (!text.empty()) {
    const detail::TDecodedChar one = detail::DecodeOneChar(text, codePage);
    out += one.units;
    text.remove_prefix(one.bytes);
  }
  return out;
}

std::string FromWide(std::u16string_view text, int codePage) {
  if (text.empty()) return {};
  detail::CheckCodePage(codePage);
  return SystemFromWide(Prepared(text, codePage), codePage, 0, nullptr);
}

bool IsMappable(std::u16string_view text, int codePage) {
  detail::CheckCodePage(codePage);
  if (text.empty()) return true;
  if (HasUnpairedSurrogate(text)) return false;
  BOOL usedDefault = FALSE;
  const std::string bytes = SystemFromWide(
      text, codePage, TakesNoFlags(codePage) ? 0 : WC_NO_BEST_FIT_CHARS, &usedDefault);
  // A one-way row (Shift-JIS takes U+F86F as 8782, which reads back as U+2116) gives another
  // character back.
  return !usedDefault && ToWide(bytes, codePage) == text;
}

namespace detail {

void CheckCodePage(int codePage) {
  if (!IsKnownCodePage(codePage)) {
    throw ECodePageError("unknown code page " + std::to_string(codePage));
  }
}

size_t MaxCharBytes(int codePage) {
  CPINFO info{};
  if (!::GetCPInfo(static_cast<UINT>(codePage), &info)) return 1;
  return codePage == kUtf8 ? 4 : static_cast<size_t>(info.MaxCharSize);
}

TDecodedChar DecodeOneChar(std::string_view text, int codePage) {
  const size_t longest = std::min(MaxCharBytes(codePage), text.size());
  for (size_t n = 1; n <= longest; ++n) {
    wchar_t units[4] = {};
    const int got = ::MultiByteToWideChar(static_cast<UINT>(codePage), MB_ERR_INVALID_CHARS,
                                          text.data(), static_cast<int>(n), units, 4);
    if (got > 0) {
      return {std::u16string(reinterpret_cast<const char16_t*>(units), static_cast<size_t>(got)),
              n};
    }
  }
  return {u"\uFFFD", 1};
}

}  // namespace detail
}  // namespace mv::codepage
