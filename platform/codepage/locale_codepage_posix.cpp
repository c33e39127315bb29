#include <langinfo.h>

#include <algorithm>
#include <cctype>
#include <clocale>
#include <cstdlib>
#include <initializer_list>
#include <string>
#include <utility>

#include "platform/codepage/locale_codepage_p.h"

namespace mv::codepage {

int CodePageOfCharset(std::string_view charset) {
  std::string upper(charset);
  std::transform(upper.begin(), upper.end(), upper.begin(),
                 [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
  if (upper == "BIG5" || upper == "BIG5-HKSCS" || upper == "BIG5HKSCS") return 950;
  if (upper == "GBK" || upper == "GB2312" || upper == "GB18030") return 936;
  if (upper == "UTF-8" || upper == "UTF8") return 65001;
  return 1252;
}

namespace {

// The code page of the environment's locale, without changing the process's own locale.
int CodePageOfLocale() {
  locale_t loc = newlocale(LC_CTYPE_MASK, "", static_cast<locale_t>(0));
  if (loc == static_cast<locale_t>(0)) return 1252;
  std::string charset = nl_langinfo_l(CODESET, loc);
  freelocale(loc);
  return CodePageOfCharset(charset);
}

// The values of the variables that choose the environment's locale, each followed by a zero byte
// ("\1" for an unset one).
std::string LocaleVariables() {
  std::string key;
  for (const char* name : {"LC_ALL", "LC_CTYPE", "LANG", "LOCPATH"}) {
    const char* value = std::getenv(name);
    key += value != nullptr ? value : "\1";
    key += '\0';
  }
  return key;
}

}  // namespace

int CodePageOfEnvironment() {
  if (int codePage = CodePageOverride(); codePage != 0) return codePage;
  // Opening the environment's locale reads locale files and takes up to a millisecond, and every
  // conversion in the user's code page asks; the answer is kept until one of the variables
  // changes.
  thread_local std::string cachedKey;
  thread_local int cachedCodePage = 0;
  std::string key = LocaleVariables();
  if (cachedCodePage == 0 || key != cachedKey) {
    cachedCodePage = CodePageOfLocale();
    cachedKey = std::move(key);
  }
  return cachedCodePage;
}

}  // namespace mv::codepage
