#include "platform/codepage/codepage.h"

namespace mv::codepage {

std::string ConverterName(int codePage) {
  switch (codePage) {
    case 950:
      return "windows-950-2000";
    case 936:
      return "windows-936-2000";
    case 932:
      return "ibm-943_P15A-2003";
    case 949:
      return "windows-949-2000";
    case 874:
      return "windows-874-2000";
    case 1250:
      return "windows-1250";
    case 1251:
      return "windows-1251";
    case 1252:
      return "windows-1252";
    case 1253:
      return "windows-1253";
    case 1254:
      return "windows-1254";
    case 1255:
      return "windows-1255";
    case 1256:
      return "windows-1256";
    case 1257:
      return "windows-1257";
    case 1258:
      return "windows-1258";
    case 20127:
      return "US-ASCII";
    case 28591:
      return "ISO-8859-1";
    case 54936:
      return "GB18030";
    case 65001:
      return "UTF-8";
    default:
      return {};
  }
}

std::string Convert(std::string_view text, int fromCodePage, int toCodePage) {
  if (fromCodePage == toCodePage) return std::string(text);
  return FromWide(ToWide(text, fromCodePage), toCodePage);
}

std::u16string WideFromUtf8(std::string_view text) {
  return ToWide(text, kUtf8);
}

std::string Utf8FromWide(std::u16string_view text) {
  return FromWide(text, kUtf8);
}

std::string Utf8FromSystem(std::string_view text) {
  return Convert(text, SystemCodePage(), kUtf8);
}

std::string SystemFromUtf8(std::string_view text) {
  return Convert(text, kUtf8, SystemCodePage());
}

}  // namespace mv::codepage
