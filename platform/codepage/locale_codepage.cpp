#include <cstdlib>

#include "platform/codepage/locale_codepage_p.h"

namespace mv::codepage {

int CodePageOverride() {
  const char* env = std::getenv("MV_CODEPAGE");
  if (env == nullptr || *env == '\0') return 0;
  char* end = nullptr;
  long value = std::strtol(env, &end, 10);
  return end != env && *end == '\0' && value > 0 && value < 65536 ? static_cast<int>(value) : 0;
}

}  // namespace mv::codepage
