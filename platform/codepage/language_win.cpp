// Windows: languages through the system's locale data (ResolveLocaleName, LocaleNameToLCID).
#include <windows.h>

#include <string>

#include "platform/codepage/codepage.h"
#include "platform/codepage/language.h"

namespace mv::codepage {
namespace {

// "zh_TW.Big5@stroke" -> "zh-TW": the part of a locale name that names the language, as a
// language tag; empty for the C locale.
std::string LanguagePart(std::string_view localeName) {
  std::string part(localeName.substr(0, localeName.find_first_of(".@")));
  if (part == "C" || part == "POSIX") return {};
  for (char& c : part) {
    if (c == '_') c = '-';
  }
  return part;
}

std::wstring WideOfAscii(const std::string& text) {
  return std::wstring(text.begin(), text.end());
}

std::string AsciiOfWide(const wchar_t* text) {
  std::string out;
  for (; *text != L'\0'; ++text) out += static_cast<char>(*text);
  return out;
}

std::u16string EnglishName(const wchar_t* locale) {
  wchar_t name[LOCALE_NAME_MAX_LENGTH * 4] = {};
  const int n =
      ::GetLocaleInfoEx(locale, LOCALE_SENGLISHDISPLAYNAME, name, LOCALE_NAME_MAX_LENGTH * 4);
  return n > 1 ? std::u16string(reinterpret_cast<const char16_t*>(name), static_cast<size_t>(n - 1))
               : std::u16string();
}

const LanguageInfo& EnglishUs() {
  static const LanguageInfo english{kLangEnglishUs, u"English (United States)", "en-US"};
  return english;
}

}  // namespace

LanguageInfo LanguageOfLocale(std::string_view localeName) {
  const std::string tag = LanguagePart(localeName);
  if (tag.empty()) return EnglishUs();
  // A bare language takes its likely region: "zh" -> "zh-CN", "en" -> "en-US".
  wchar_t resolved[LOCALE_NAME_MAX_LENGTH] = {};
  if (::ResolveLocaleName(WideOfAscii(tag).c_str(), resolved, LOCALE_NAME_MAX_LENGTH) <= 1) {
    return EnglishUs();
  }
  const LCID id = ::LocaleNameToLCID(resolved, 0);
  if (id == 0 || id == LOCALE_CUSTOM_UNSPECIFIED || id == LOCALE_CUSTOM_DEFAULT) return EnglishUs();
  return {static_cast<uint16_t>(LANGIDFROMLCID(id)), EnglishName(resolved), AsciiOfWide(resolved)};
}

}  // namespace mv::codepage
