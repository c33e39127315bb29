#include <langinfo.h>

#include <algorithm>
#include <cctype>
#include <clocale>
#include <cstdlib>
#include <string>

#include "platform/codepage/locale_codepage.h"

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

int CodePageOfEnvironment() {
  if (const char* env = std::getenv("MV_CODEPAGE"); env != nullptr && *env != '\0') {
    char* end = nullptr;
    long value = std::strtol(env, &end, 10);
    if (end != env && *end == '\0' && value > 0 && value < 65536) return static_cast<int>(value);
  }
  // The locale of the environment, without changing the process's own locale.
  locale_t loc = newlocale(LC_CTYPE_MASK, "", static_cast<locale_t>(0));
  if (loc == static_cast<locale_t>(0)) return 1252;
  std::string charset = nl_langinfo_l(CODESET, loc);
  freelocale(loc);
  return CodePageOfCharset(charset);
}

}  // namespace mv::codepage
