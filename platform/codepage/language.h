// The language of the user and of the system: a Windows language identifier with its English name
// and language tag, as the Windows client reads them from the machine's locale settings.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace mv::codepage {

// Language identifiers the library meets by name.
inline constexpr uint16_t kLangChineseTaiwan = 0x0404;
inline constexpr uint16_t kLangEnglishUs = 0x0409;

struct LanguageInfo {
  uint16_t id = kLangEnglishUs;  // Windows language identifier: 0x0404 Chinese (Taiwan)
  std::u16string name;           // English name, script shown for Chinese: "Chinese (Traditional,
                                 // Taiwan)", "English (United States)"
  std::string tag;               // BCP 47 language tag: "zh-TW", "en-US"
};

// The language of a POSIX locale name ("zh_TW", "zh_TW.Big5", "de_DE.UTF-8@euro"). The character
// set and modifier are ignored; a bare language takes its likely region ("zh" -> zh-CN, "en" ->
// en-US). "C", "POSIX", an empty name and any language without a Windows identifier give English
// (United States).
LanguageInfo LanguageOfLocale(std::string_view localeName);

// The user's language: the locale named by LC_ALL, else LC_MESSAGES, else LANG (the language the
// user reads messages in, as the Windows user default language). Empty variables count as unset.
LanguageInfo UserLanguage();

// The system's language: the locale named by LC_ALL, else LC_CTYPE, else LANG (the locale that
// also decides the code page, as the Windows system locale does).
LanguageInfo SystemLanguage();

}  // namespace mv::codepage
