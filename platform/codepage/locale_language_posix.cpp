#include <cstdlib>
#include <initializer_list>
#include <string>

#include "platform/codepage/locale_language_p.h"

namespace mv::codepage {
namespace {

// The first of the variables that is set and not empty, as the C library's setlocale(..., "")
// chooses; "C" when none is.
std::string FirstSet(std::initializer_list<const char*> names) {
  for (const char* name : names) {
    if (const char* value = std::getenv(name); value != nullptr && *value != '\0') return value;
  }
  return "C";
}

}  // namespace

std::string UserLocaleName() {
  return FirstSet({"LC_ALL", "LC_MESSAGES", "LANG"});
}

std::string SystemLocaleName() {
  return FirstSet({"LC_ALL", "LC_CTYPE", "LANG"});
}

}  // namespace mv::codepage
