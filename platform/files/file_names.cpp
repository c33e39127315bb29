#include <algorithm>

#include "platform/codepage/codepage.h"
#include "platform/files/file_names.h"

namespace mv::files {
namespace {

bool IsAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return (c & 0x80) == 0; });
}

// The code page narrow paths are in, or 0 when their bytes are the system's bytes already.
int ConvertingCodePage() {
  const int codePage = codepage::SystemCodePage();
  if (codePage == codepage::kUtf8 || !codepage::IsKnownCodePage(codePage)) return 0;
  return codePage;
}

}  // namespace

std::optional<std::string> EncodeFileName(std::string_view path) {
  if (path.find('\0') != std::string_view::npos) return std::nullopt;
  // Every code page the library serves writes ASCII as ASCII, and most paths are nothing else.
  if (IsAscii(path)) return std::string(path);
  const int codePage = ConvertingCodePage();
  if (codePage == 0) return std::string(path);
  return codepage::Utf8FromWide(codepage::ToWide(path, codePage));
}

std::string DecodeFileName(std::string_view name) {
  if (IsAscii(name)) return std::string(name);
  const int codePage = ConvertingCodePage();
  if (codePage == 0) return std::string(name);
  return codepage::FromWide(codepage::WideFromUtf8(name), codePage);
}

}  // namespace mv::files
