#include "common/text/str_utils.h"

#include "modules/mv_str_pad.h"
#include "modules/mv_strings.h"
#include "modules/mv_totals.h"

namespace mv {

std::string RTrim(std::string_view s) {
  return modules::_MV_RTrim(s);
}
std::u16string RTrim(std::u16string_view s) {
  return modules::_MV_RTrim(s);
}
std::string LTrim(std::string_view s) {
  return modules::_MV_LTrim(s);
}
std::u16string LTrim(std::u16string_view s) {
  return modules::_MV_LTrim(s);
}
std::string AllTrim(std::string_view s) {
  return modules::_MV_AllTrim(s);
}
std::u16string AllTrim(std::u16string_view s) {
  return modules::_MV_AllTrim(s);
}

std::string LTrimChar(std::string_view s, char c) {
  return modules::_MV_LTrimChar(s, c);
}
std::u16string LTrimChar(std::u16string_view s, char16_t c) {
  return modules::_MV_LTrimChar(s, c);
}

std::string PadR(std::string_view s, int n) {
  return modules::_MV_PadR(s, n);
}
std::u16string PadR(std::u16string_view s, int n) {
  return modules::_MV_PadR(s, n);
}
std::string PadL(std::string_view s, int n) {
  return modules::_MV_PadL(s, n);
}
std::u16string PadL(std::u16string_view s, int n) {
  return modules::_MV_PadL(s, n);
}
std::string PadC(std::string_view s, int n) {
  return modules::_MV_PadC(s, n);
}
std::u16string PadC(std::u16string_view s, int n) {
  return modules::_MV_PadC(s, n);
}

std::string PadRChar(std::string_view s, char c, int n) {
  return modules::_MV_PadRChar(s, c, n);
}
std::u16string PadRChar(std::u16string_view s, char16_t c, int n) {
  return modules::_MV_PadRChar(s, c, n);
}
std::string PadLChar(std::string_view s, char c, int n) {
  return modules::_MV_PadLChar(s, c, n);
}
std::u16string PadLChar(std::u16string_view s, char16_t c, int n) {
  return modules::_MV_PadLChar(s, c, n);
}

size_t StrRPadChar(std::span<char> buffer, char c, int n) {
  return modules::_MV_StrRPadChar(buffer, c, n);
}
size_t StrRPadChar(std::span<char16_t> buffer, char16_t c, int n) {
  return modules::_MV_StrRPadChar(buffer, c, n);
}

std::string FillStr(std::string_view s, char from, char to) {
  return modules::_MV_FillStr(s, from, to);
}
std::u16string FillStr(std::u16string_view s, char16_t from, char16_t to) {
  return modules::_MV_FillStr(s, from, to);
}

std::string ChangeCase(std::string_view s) {
  return modules::_MV_ChangeCase(s);
}
std::u16string ChangeCase(std::u16string_view s) {
  return modules::_MV_ChangeCase(s);
}
std::string ECharUpperCase(std::string_view s) {
  return modules::_MV_ECharUpperCase(s);
}
std::u16string ECharUpperCase(std::u16string_view s) {
  return modules::_MV_ECharUpperCase(s);
}

bool NotEmpty(std::string_view s) {
  return modules::_MV_NotEmpty(s);
}
bool NotEmpty(std::u16string_view s) {
  return modules::_MV_NotEmpty(s);
}

int Match(std::string_view s1, std::string_view s2) {
  return modules::_MV_Match(s1, s2);
}
int Match(std::u16string_view s1, std::u16string_view s2) {
  return modules::_MV_Match(s1, s2);
}

std::string FToStr(double value, modules::TFloatFormat format, int digits) {
  return modules::_MV_FToStr(value, format, digits);
}

double Totals(db::TMVADODataSet& dataset, std::string_view field) {
  return modules::_MV_Totals(dataset, field);
}

}  // namespace mv
