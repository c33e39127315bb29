#include "platform/codepage/collation.h"

#include <unicode/ucol.h>
#include <unicode/uloc.h>

#include <climits>
#include <memory>
#include <string>

#include "platform/codepage/codepage.h"
#include "platform/codepage/language.h"
#include "platform/codepage/locale_language_p.h"

namespace mv::codepage {
namespace {

struct CollatorCloser {
  void operator()(UCollator* c) const { ucol_close(c); }
};
using CollatorPtr = std::unique_ptr<UCollator, CollatorCloser>;

// A collator of `tag` ("zh-TW") that ignores case: secondary strength keeps accents, drops case.
CollatorPtr OpenCollator(const std::string& tag) {
  char locale[ULOC_FULLNAME_CAPACITY] = {};
  UErrorCode status = U_ZERO_ERROR;
  uloc_forLanguageTag(tag.c_str(), locale, ULOC_FULLNAME_CAPACITY, nullptr, &status);
  if (U_FAILURE(status)) locale[0] = '\0';  // the root order
  status = U_ZERO_ERROR;
  CollatorPtr collator(ucol_open(locale, &status));
  if (U_FAILURE(status)) {
    status = U_ZERO_ERROR;
    collator.reset(ucol_open("", &status));
  }
  if (U_FAILURE(status)) {
    throw ECodePageError(std::string("no collator: ") + u_errorName(status));
  }
  ucol_setStrength(collator.get(), UCOL_SECONDARY);
  return collator;
}

// The calling thread's collator of the user's language, opened again when the locale changes.
UCollator* UserCollator() {
  thread_local std::string localeName;
  thread_local CollatorPtr collator;
  std::string current = UserLocaleName();
  if (!collator || current != localeName) {
    collator = OpenCollator(UserLanguage().tag);
    localeName = std::move(current);
  }
  return collator.get();
}

int32_t Length(std::u16string_view s) {
  if (s.size() > static_cast<size_t>(INT32_MAX)) throw ECodePageError("text too long to compare");
  return static_cast<int32_t>(s.size());
}

}  // namespace

int CompareTextByLocale(std::u16string_view a, std::u16string_view b) {
  switch (ucol_strcoll(UserCollator(), a.data(), Length(a), b.data(), Length(b))) {
    case UCOL_LESS:
      return -1;
    case UCOL_GREATER:
      return 1;
    default:
      return 0;
  }
}

}  // namespace mv::codepage
