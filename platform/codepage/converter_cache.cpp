#include "platform/codepage/converter_cache_p.h"

#include <unicode/ucnv.h>
#include <unicode/ucnv_cb.h>

#include <memory>
#include <string>
#include <vector>

#include "platform/codepage/codepage.h"

namespace mv::codepage {
namespace {

struct ConverterCloser {
  void operator()(UConverter* c) const { ucnv_close(c); }
};
using ConverterPtr = std::unique_ptr<UConverter, ConverterCloser>;

struct CacheEntry {
  int codePage;
  ConverterUse use;
  ConverterPtr converter;
};

void Check(UErrorCode status, int codePage) {
  if (U_FAILURE(status)) {
    throw ECodePageError("no converter for code page " + std::to_string(codePage) + ": " +
                         u_errorName(status));
  }
}

// Stops at every character the code page does not hold. ICU's own stop callback lets
// default-ignorable characters (variation selectors, joiners) pass silently, and they would be
// lost.
void StopAtAnyLoss(const void*, UConverterFromUnicodeArgs*, const UChar*, int32_t, UChar32,
                   UConverterCallbackReason, UErrorCode*) {
  // Leaving the error code as the converter set it ends the conversion.
}

ConverterPtr OpenConverter(int codePage, ConverterUse use) {
  std::string name = ConverterName(codePage);
  if (name.empty()) throw ECodePageError("unknown code page " + std::to_string(codePage));
  UErrorCode status = U_ZERO_ERROR;
  ConverterPtr conv(ucnv_open(name.c_str(), &status));
  Check(status, codePage);
  if (use == ConverterUse::kSubstitute) {
    // The code page's best-fit rows, as the platform's wide-to-narrow conversion uses them: with
    // 950, "é" becomes "e" and "¥" A244. Only a character without a row becomes "?".
    ucnv_setFallback(conv.get(), true);
    ucnv_setSubstChars(conv.get(), "?", 1, &status);
  } else {
    ucnv_setFromUCallBack(conv.get(), StopAtAnyLoss, nullptr, nullptr, nullptr, &status);
  }
  Check(status, codePage);
  return conv;
}

}  // namespace

UConverter* CachedConverter(int codePage, ConverterUse use) {
  // A process meets a handful of code pages; a short list searched front to back beats a map.
  thread_local std::vector<CacheEntry> cache;
  for (const CacheEntry& entry : cache) {
    if (entry.codePage == codePage && entry.use == use) return entry.converter.get();
  }
  cache.push_back({codePage, use, OpenConverter(codePage, use)});
  return cache.back().converter.get();
}

}  // namespace mv::codepage
