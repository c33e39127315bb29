#include "platform/codepage/case_mapping.h"

#include <unicode/uchar.h>
#include <unicode/ustring.h>

#include "platform/codepage/codepage.h"

namespace mv::codepage {
namespace {

using TCaseFunction = int32_t (*)(UChar*, int32_t, const UChar*, int32_t, const char*, UErrorCode*);

std::u16string MapCase(std::u16string_view text, TCaseFunction function) {
  if (text.empty()) return {};
  std::u16string out(text.size() + 16, u'\0');
  for (int attempt = 0; attempt < 2; ++attempt) {
    UErrorCode status = U_ZERO_ERROR;
    // "" is ICU's root locale: no Turkish dotless i, whatever the environment says.
    int32_t n = function(out.data(), static_cast<int32_t>(out.size()), text.data(),
                         static_cast<int32_t>(text.size()), "", &status);
    if (status == U_BUFFER_OVERFLOW_ERROR) {
      out.assign(static_cast<size_t>(n), u'\0');
      continue;
    }
    if (U_FAILURE(status))
      throw ECodePageError(std::string("case mapping failed: ") + u_errorName(status));
    out.resize(static_cast<size_t>(n));
    return out;
  }
  throw ECodePageError("case mapping failed: result keeps growing");
}

}  // namespace

std::u16string UpperCase(std::u16string_view text) {
  return MapCase(text, u_strToUpper);
}

std::u16string LowerCase(std::u16string_view text) {
  return MapCase(text, u_strToLower);
}

char32_t FoldCase(char32_t c) {
  if (c > 0x10FFFF) return c;
  return static_cast<char32_t>(u_foldCase(static_cast<UChar32>(c), U_FOLD_CASE_DEFAULT));
}

}  // namespace mv::codepage
