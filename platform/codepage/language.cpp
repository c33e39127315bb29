#include "platform/codepage/language.h"

#include "platform/codepage/locale_language_p.h"

namespace mv::codepage {

LanguageInfo UserLanguage() {
  return LanguageOfLocale(UserLocaleName());
}

LanguageInfo SystemLanguage() {
  return LanguageOfLocale(SystemLocaleName());
}

}  // namespace mv::codepage
