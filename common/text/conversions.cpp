#include "common/text/conversions.h"

#include "modules/mv_codepage.h"

namespace mv {

uint16_t MV_GetLanguageID(bool user) {
  return modules::MV_GetLanguageID(user);
}

std::string MV_GetLanguageName(bool user) {
  return modules::MV_GetLanguageName(user);
}

std::string MV_WideStringToCodePage(std::u16string_view w, uint16_t codePage) {
  return modules::MV_WideStringToCodePage(w, codePage);
}

std::u16string MV_CodePageToWideString(std::string_view s, uint16_t codePage) {
  return modules::MV_CodePageToWideString(s, codePage);
}

std::string MV_WideStringToAnsi(std::u16string_view w) {
  return modules::MV_WideStringToAnsi(w);
}

std::u16string MV_AnsiToWideString(std::string_view s) {
  return modules::MV_AnsiToWideString(s);
}

bool MV_IsWideStringMappableToAnsi(std::u16string_view w) {
  return modules::MV_IsWideStringMappableToAnsi(w);
}

std::u16string MV_SetWideVc(std::u16string_view w) {
  return modules::MV_SetWideVc(w);
}

std::u16string MV_SetWideVc(std::string_view s) {
  return modules::MV_SetWideVc(s);
}

void MV_GetWideVc(std::u16string_view vc, std::u16string& value) {
  modules::MV_GetWideVc(vc, value);
}

void MV_GetWideVc(std::u16string_view vc, std::string& value) {
  modules::MV_GetWideVc(vc, value);
}

std::u16string MV_WideVcToWideString(std::u16string_view vc) {
  return modules::MV_WideVcToWideString(vc);
}

std::string MV_WideVcToAnsiString(std::u16string_view vc) {
  return modules::MV_WideVcToAnsiString(vc);
}

std::u16string MV_WideStringToWideVc(std::u16string_view w) {
  return modules::MV_WideStringToWideVc(w);
}

std::u16string MV_AnsiStringToWideVc(std::string_view s) {
  return modules::MV_AnsiStringToWideVc(s);
}

std::u16string MV_WideVcLiteralsToSql(std::u16string_view vc) {
  return modules::MV_WideVcLiteralsToSql(vc);
}

}  // namespace mv
