#include "platform/codepage/language.h"

#include <unicode/uloc.h>

#include <string>

#include "platform/codepage/locale_language_p.h"

namespace mv::codepage {
namespace {

constexpr int32_t kIdCapacity = ULOC_FULLNAME_CAPACITY;

// "zh_TW.Big5@calendar" -> "zh_TW": the part of a POSIX locale name that names the language.
std::string LanguagePart(std::string_view localeName) {
  std::string_view part = localeName.substr(0, localeName.find_first_of(".@"));
  if (part.empty() || part == "C" || part == "POSIX") return "en_US";
  return std::string(part);
}

// The locale with its likely script and region filled in ("zh_TW" -> "zh_Hant_TW").
std::string Maximized(const std::string& locale) {
  char buffer[kIdCapacity] = {};
  UErrorCode status = U_ZERO_ERROR;
  uloc_addLikelySubtags(locale.c_str(), buffer, kIdCapacity, &status);
  return U_SUCCESS(status) ? std::string(buffer) : locale;
}

using PartGetter = int32_t (*)(const char*, char*, int32_t, UErrorCode*);

std::string Part(const std::string& locale, PartGetter getter) {
  char buffer[kIdCapacity] = {};
  UErrorCode status = U_ZERO_ERROR;
  getter(locale.c_str(), buffer, kIdCapacity, &status);
  return U_SUCCESS(status) ? std::string(buffer) : std::string();
}

std::string Joined(const std::string& a, const std::string& b) {
  return b.empty() ? a : a + "_" + b;
}

std::u16string DisplayName(const std::string& locale) {
  UChar buffer[256] = {};
  UErrorCode status = U_ZERO_ERROR;
  int32_t n = uloc_getDisplayName(locale.c_str(), "en", buffer, 256, &status);
  if (U_FAILURE(status)) return {};
  return std::u16string(reinterpret_cast<const char16_t*>(buffer), static_cast<size_t>(n));
}

std::string LanguageTag(const std::string& locale) {
  char buffer[kIdCapacity] = {};
  UErrorCode status = U_ZERO_ERROR;
  int32_t n = uloc_toLanguageTag(locale.c_str(), buffer, kIdCapacity, false, &status);
  return U_SUCCESS(status) ? std::string(buffer, static_cast<size_t>(n)) : std::string();
}

}  // namespace

LanguageInfo LanguageOfLocale(std::string_view localeName) {
  const std::string full = Maximized(LanguagePart(localeName));
  const std::string language = Part(full, uloc_getLanguage);
  const std::string script = Part(full, uloc_getScript);
  const std::string region = Part(full, uloc_getCountry);
  const std::string specific = Joined(language, region);  // "zh_TW", "en_US"
  uint32_t id = uloc_getLCID(specific.c_str());
  if (id == 0) id = uloc_getLCID(full.c_str());
  if (id == 0) return {kLangEnglishUs, u"English (United States)", "en-US"};
  // Windows names every Chinese language with its script ("Chinese (Simplified, China)").
  const std::string named = language == "zh" ? Joined(Joined(language, script), region) : specific;
  // The low 16 bits are the language identifier; the bits above name a sort order.
  return {static_cast<uint16_t>(id & 0xFFFF), DisplayName(named), LanguageTag(specific)};
}

}  // namespace mv::codepage
