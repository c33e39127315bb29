#include "platform/codepage/codepage.h"

#include <unicode/ucnv.h>
#include <unicode/ustring.h>

#include <climits>
#include <cstdint>

#include "platform/codepage/converter_cache_p.h"
#include "platform/codepage/locale_codepage_p.h"

namespace mv::codepage {
namespace {

int32_t CheckedLength(size_t size) {
  if (size > static_cast<size_t>(INT32_MAX)) throw ECodePageError("text too long to convert");
  return static_cast<int32_t>(size);
}

void ThrowIfFailed(UErrorCode status) {
  if (U_FAILURE(status))
    throw ECodePageError(std::string("conversion failed: ") + u_errorName(status));
}

}  // namespace

bool IsKnownCodePage(int codePage) {
  return !ConverterName(codePage).empty();
}

int SystemCodePage() {
  return CodePageOfEnvironment();
}

int UserCodePage() {
  return CodePageOfEnvironment();
}

std::u16string ToWide(std::string_view text, int codePage) {
  if (text.empty()) return {};
  UConverter* conv = CachedConverter(codePage, ConverterUse::kSubstitute);
  const int32_t length = CheckedLength(text.size());
  // Every converter of the table gives at most one UTF-16 unit per byte; the retry covers any
  // that would not.
  std::u16string out(text.size() + 1, u'\0');
  UErrorCode status = U_ZERO_ERROR;
  int32_t n = ucnv_toUChars(conv, out.data(), static_cast<int32_t>(out.size()), text.data(), length,
                            &status);
  if (status == U_BUFFER_OVERFLOW_ERROR) {
    out.assign(static_cast<size_t>(n) + 1, u'\0');
    status = U_ZERO_ERROR;
    n = ucnv_toUChars(conv, out.data(), static_cast<int32_t>(out.size()), text.data(), length,
                      &status);
  }
  ThrowIfFailed(status);
  out.resize(static_cast<size_t>(n));
  return out;
}

std::string FromWide(std::u16string_view text, int codePage) {
  if (text.empty()) return {};
  UConverter* conv = CachedConverter(codePage, ConverterUse::kSubstitute);
  const int32_t length = CheckedLength(text.size());
  std::string out(
      static_cast<size_t>(UCNV_GET_MAX_BYTES_FOR_STRING(length, ucnv_getMaxCharSize(conv))), '\0');
  UErrorCode status = U_ZERO_ERROR;
  int32_t n =
      ucnv_fromUChars(conv, out.data(), CheckedLength(out.size()), text.data(), length, &status);
  ThrowIfFailed(status);
  out.resize(static_cast<size_t>(n));
  return out;
}

bool IsMappable(std::u16string_view text, int codePage) {
  UConverter* conv = CachedConverter(codePage, ConverterUse::kStrict);
  ucnv_resetFromUnicode(conv);
  const UChar* source = text.data();
  const UChar* sourceEnd = source + CheckedLength(text.size());
  std::string bytes;
  char scratch[1024];
  for (;;) {
    char* target = scratch;
    UErrorCode status = U_ZERO_ERROR;
    ucnv_fromUnicode(conv, &target, scratch + sizeof scratch, &source, sourceEnd, nullptr, true,
                     &status);
    bytes.append(scratch, target);
    if (status == U_BUFFER_OVERFLOW_ERROR) continue;
    if (U_FAILURE(status)) return false;
    break;
  }
  // A one-way row (Shift-JIS takes U+F86F as 8782, which reads back as U+2116) passes the strict
  // converter but does not give the character back.
  return ToWide(bytes, codePage) == text;
}

}  // namespace mv::codepage
