#include "platform/codepage/simplified.h"

#include <unicode/translit.h>
#include <unicode/unistr.h>

#include <memory>

#include "platform/codepage/codepage.h"

namespace mv::codepage {
namespace {

// The calling thread's transliterator: creating one reads its rules and takes tens of
// milliseconds, and a transliterator must not be used by two threads at once.
const icu::Transliterator& HantToHans() {
  thread_local std::unique_ptr<icu::Transliterator> transliterator;
  if (!transliterator) {
    UErrorCode status = U_ZERO_ERROR;
    transliterator.reset(icu::Transliterator::createInstance("Hant-Hans", UTRANS_FORWARD, status));
    if (U_FAILURE(status) || !transliterator) {
      transliterator.reset();
      throw ECodePageError(std::string("no Hant-Hans transliterator: ") + u_errorName(status));
    }
  }
  return *transliterator;
}

}  // namespace

std::u16string ToSimplified(std::u16string_view text) {
  if (text.empty()) return {};
  const icu::Transliterator& transliterator = HantToHans();
  icu::UnicodeString buffer(false, text.data(), static_cast<int32_t>(text.size()));
  transliterator.transliterate(buffer);  // copies on write: `text` stays untouched
  return std::u16string(buffer.getBuffer(), static_cast<size_t>(buffer.length()));
}

}  // namespace mv::codepage
