// Windows: string values of the real registry under HKEY_LOCAL_MACHINE.
#include <windows.h>

#include <vector>

#include "platform/codepage/codepage.h"
#include "platform/registry/registry.h"

namespace mv::registry {
namespace {

std::wstring WideOfSystem(std::string_view text) {
  const std::u16string wide = codepage::ToWide(text, codepage::SystemCodePage());
  return std::wstring(wide.begin(), wide.end());
}

}  // namespace

std::optional<std::u16string> ReadLocalMachineString(std::string_view keyPath,
                                                     std::string_view valueName) {
  if (keyPath.find('\0') != std::string_view::npos ||
      valueName.find('\0') != std::string_view::npos) {
    return std::nullopt;
  }
  while (!keyPath.empty() && keyPath.front() == '\\') keyPath.remove_prefix(1);
  const std::wstring key = WideOfSystem(keyPath);
  const std::wstring value = WideOfSystem(valueName);
  // The value as stored: REG_EXPAND_SZ is not expanded.
  const DWORD flags = RRF_RT_REG_SZ | RRF_RT_REG_EXPAND_SZ | RRF_NOEXPAND;
  DWORD bytes = 0;
  if (::RegGetValueW(HKEY_LOCAL_MACHINE, key.c_str(), value.c_str(), flags, nullptr, nullptr,
                     &bytes) != ERROR_SUCCESS) {
    return std::nullopt;
  }
  std::vector<wchar_t> buffer(bytes / sizeof(wchar_t) + 1, L'\0');
  bytes = static_cast<DWORD>(buffer.size() * sizeof(wchar_t));
  if (::RegGetValueW(HKEY_LOCAL_MACHINE, key.c_str(), value.c_str(), flags, nullptr, buffer.data(),
                     &bytes) != ERROR_SUCCESS) {
    return std::nullopt;
  }
  // The size counts the closing zero the system writes.
  std::u16string text(buffer.begin(), buffer.begin() + bytes / sizeof(wchar_t));
  while (!text.empty() && text.back() == u'\0') text.pop_back();
  return text;
}

}  // namespace mv::registry
