// Windows: the user's and the system's locale as the system names them ("zh-TW").
#include <windows.h>

#include <string>

#include "platform/codepage/locale_language_p.h"

namespace mv::codepage {
namespace {

std::string AsciiOfWide(const wchar_t* text) {
  std::string out;
  for (; *text != L'\0'; ++text) out += static_cast<char>(*text);
  return out;
}

}  // namespace

std::string UserLocaleName() {
  wchar_t name[LOCALE_NAME_MAX_LENGTH] = {};
  return ::GetUserDefaultLocaleName(name, LOCALE_NAME_MAX_LENGTH) > 1 ? AsciiOfWide(name) : "C";
}

std::string SystemLocaleName() {
  wchar_t name[LOCALE_NAME_MAX_LENGTH] = {};
  return ::GetSystemDefaultLocaleName(name, LOCALE_NAME_MAX_LENGTH) > 1 ? AsciiOfWide(name) : "C";
}

}  // namespace mv::codepage
