#include "platform/codepage/codepage.h"

#include <unicode/ucnv.h>
#include <unicode/ustring.h>

#include <memory>

#include "platform/codepage/locale_codepage.h"

namespace mv::codepage {
namespace {

struct ConverterCloser {
  void operator()(UConverter* c) const { ucnv_close(c); }
};
using ConverterPtr = std::unique_ptr<UConverter, ConverterCloser>;

ConverterPtr OpenConverter(int codePage) {
  std::string name = ConverterName(codePage);
  if (name.empty()) throw ECodePageError("unknown code page " + std::to_string(codePage));
  UErrorCode status = U_ZERO_ERROR;
  ConverterPtr conv(ucnv_open(name.c_str(), &status));
  if (U_FAILURE(status)) {
    throw ECodePageError("no converter for code page " + std::to_string(codePage) + ": " +
                         u_errorName(status));
  }
  return conv;
}

}  // namespace

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

int SystemCodePage() {
  return CodePageOfEnvironment();
}

int UserCodePage() {
  return CodePageOfEnvironment();
}

std::u16string ToWide(std::string_view text, int codePage) {
  if (text.empty()) return {};
  ConverterPtr conv = OpenConverter(codePage);
  std::u16string out(text.size() * 2 + 2, u'\0');
  UErrorCode status = U_ZERO_ERROR;
  int32_t n = ucnv_toUChars(conv.get(), out.data(), static_cast<int32_t>(out.size()), text.data(),
                            static_cast<int32_t>(text.size()), &status);
  if (U_FAILURE(status))
    throw ECodePageError(std::string("conversion failed: ") + u_errorName(status));
  out.resize(static_cast<size_t>(n));
  return out;
}

std::string FromWide(std::u16string_view text, int codePage) {
  if (text.empty()) return {};
  ConverterPtr conv = OpenConverter(codePage);
  UErrorCode status = U_ZERO_ERROR;
  ucnv_setSubstChars(conv.get(), "?", 1, &status);
  status = U_ZERO_ERROR;
  std::string out(text.size() * 4 + 4, '\0');
  int32_t n = ucnv_fromUChars(conv.get(), out.data(), static_cast<int32_t>(out.size()), text.data(),
                              static_cast<int32_t>(text.size()), &status);
  if (U_FAILURE(status))
    throw ECodePageError(std::string("conversion failed: ") + u_errorName(status));
  out.resize(static_cast<size_t>(n));
  return out;
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
