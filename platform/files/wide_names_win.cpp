#include <windows.h>

#include "platform/codepage/codepage.h"
#include "platform/files/wide_names_p.h"

namespace mv::files {

std::optional<std::wstring> WideFileName(std::string_view path) {
  if (path.find('\0') != std::string_view::npos) return std::nullopt;
  const std::u16string wide = codepage::ToWide(path, codepage::SystemCodePage());
  return std::wstring(wide.begin(), wide.end());
}

std::string NarrowFileName(std::wstring_view name) {
  const std::u16string wide(name.begin(), name.end());
  return codepage::FromWide(wide, codepage::SystemCodePage());
}

std::string SystemErrorText(unsigned long error) {
  wchar_t* text = nullptr;
  const DWORD n = ::FormatMessageW(
      FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
      nullptr, error, 0, reinterpret_cast<LPWSTR>(&text), 0, nullptr);
  std::wstring message = n > 0 ? std::wstring(text, n) : L"error " + std::to_wstring(error);
  ::LocalFree(text);
  while (!message.empty() && (message.back() == L'\n' || message.back() == L'\r' ||
                              message.back() == L' ' || message.back() == L'.')) {
    message.pop_back();
  }
  return NarrowFileName(message);
}

}  // namespace mv::files
