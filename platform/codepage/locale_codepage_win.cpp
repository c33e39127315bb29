// Windows: the system's ANSI code page, unless MV_CODEPAGE names another.
#include <windows.h>

#include "platform/codepage/locale_codepage_p.h"

namespace mv::codepage {

int CodePageOfEnvironment() {
  const int codePage = CodePageOverride();
  return codePage != 0 ? codePage : static_cast<int>(::GetACP());
}

}  // namespace mv::codepage
