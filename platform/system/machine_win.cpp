// Windows: the Windows folder (where WIN.INI lives), the program's file, the system's version and
// registered window messages.
#include <windows.h>
// windows.h names its A/W pairs by macros; these names are the library's own here.
#undef RegisterWindowMessage
#undef GetVersionEx

#include <cstdio>
#include <cstdlib>
#include <string>

#include "platform/codepage/codepage.h"
#include "platform/files/wide_names_p.h"
#include "platform/system/machine.h"

namespace mv::sys {
namespace {

// The version record the kernel itself reports; GetVersionExW answers what the program's manifest
// claims to support, not the system it runs on.
bool KernelVersion(RTL_OSVERSIONINFOW& info) {
  using RtlGetVersionFn = LONG(WINAPI*)(RTL_OSVERSIONINFOW*);
  const HMODULE ntdll = ::GetModuleHandleW(L"ntdll.dll");
  const auto get = ntdll != nullptr ? reinterpret_cast<RtlGetVersionFn>(reinterpret_cast<void*>(
                                          ::GetProcAddress(ntdll, "RtlGetVersion")))
                                    : nullptr;
  info.dwOSVersionInfoSize = sizeof info;
  return get != nullptr && get(&info) == 0;
}

}  // namespace

std::string MachineFolder() {
  // MV_MACHINE_DIR names another folder, so that tests never touch the machine's own.
  const wchar_t* env = ::_wgetenv(L"MV_MACHINE_DIR");
  std::wstring folder;
  if (env != nullptr && *env != L'\0') {
    folder = env;
  } else {
    wchar_t windows[MAX_PATH + 1] = {};
    const UINT n = ::GetWindowsDirectoryW(windows, MAX_PATH + 1);
    folder.assign(windows, n <= MAX_PATH ? n : 0);
  }
  while (folder.size() > 3 && (folder.back() == L'\\' || folder.back() == L'/')) folder.pop_back();
  return files::NarrowFileName(folder);
}

std::string ExecutablePath() {
  std::wstring buffer(MAX_PATH, L'\0');
  for (;;) {
    const DWORD n = ::GetModuleFileNameW(nullptr, buffer.data(), static_cast<DWORD>(buffer.size()));
    if (n == 0) return {};
    if (n < buffer.size()) {
      buffer.resize(n);
      return files::NarrowFileName(buffer);
    }
    buffer.resize(buffer.size() * 2);
  }
}

void TerminateProcess(int exitCode) {
  std::fflush(stdout);
  std::fflush(stderr);
  ::TerminateProcess(::GetCurrentProcess(), static_cast<UINT>(exitCode));
  ::ExitProcess(static_cast<UINT>(exitCode));  // not reached
}

uint32_t RegisterWindowMessage(std::string_view name) {
  const std::u16string wide = codepage::ToWide(name, codepage::SystemCodePage());
  return ::RegisterWindowMessageW(std::wstring(wide.begin(), wide.end()).c_str());
}

bool GetVersionEx(TOSVersionInfo& info) {
  if (info.dwOSVersionInfoSize != kOSVersionInfoSize) return false;
  RTL_OSVERSIONINFOW version{};
  if (!KernelVersion(version)) return false;
  info.dwMajorVersion = version.dwMajorVersion;
  info.dwMinorVersion = version.dwMinorVersion;
  info.dwBuildNumber = version.dwBuildNumber;
  info.dwPlatformId = version.dwPlatformId;
  info.szCSDVersion = files::NarrowFileName(version.szCSDVersion);
  return true;
}

}  // namespace mv::sys
