#include "modules/mv_codepage.h"

#include "platform/codepage/codepage.h"
#include "platform/codepage/language.h"

namespace mv::modules {
namespace {

codepage::LanguageInfo Language(bool user) {
  return user ? codepage::UserLanguage() : codepage::SystemLanguage();
}

// Runs a conversion of the platform and gives an empty result for a code page it refuses.
template <typename Conversion>
auto Guarded(Conversion conversion) -> decltype(conversion()) {
  try {
    return conversion();
  } catch (const codepage::ECodePageError&) {
    return {};
  }
}

}  // namespace

std::string MV_GetCodepage(bool system) {
  return std::to_string(system ? codepage::SystemCodePage() : codepage::UserCodePage());
}

uint16_t MV_GetLanguageID(bool user) {
  return Language(user).id;
}

std::string MV_GetLanguageName(bool user) {
  return MV_WideStringToAnsi(Language(user).name);
}

std::string MV_WideStringToCodePage(std::u16string_view w, uint16_t codePage) {
  return Guarded([&] { return codepage::FromWide(w, codePage); });
}

std::u16string MV_CodePageToWideString(std::string_view s, uint16_t codePage) {
  return Guarded([&] { return codepage::ToWide(s, codePage); });
}

std::string MV_WideStringToAnsi(std::u16string_view w) {
  return MV_WideStringToCodePage(w, static_cast<uint16_t>(codepage::UserCodePage()));
}

std::u16string MV_AnsiToWideString(std::string_view s) {
  return MV_CodePageToWideString(s, static_cast<uint16_t>(codepage::UserCodePage()));
}

bool MV_IsWideStringMappableToAnsi(std::u16string_view w) {
  return Guarded([&] { return codepage::IsMappable(w, codepage::UserCodePage()); });
}

}  // namespace mv::modules
