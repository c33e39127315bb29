// Facts about the machine and the running process that the library needs.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace mv::sys {

// The folder that holds this machine's settings: the registry file and the per-machine
// "WIN.INI". MV_MACHINE_DIR when set, else "/etc/mvcommon" on POSIX and the Windows folder on
// Windows. No trailing separator.
std::string MachineFolder();

// Full path of the running program's executable file.
std::string ExecutablePath();

// The application title shown as the caption of start-up boxes: the title set by the host, else
// the executable's file name without its extension.
std::string ApplicationTitle();
void SetApplicationTitle(std::string title);

// Ends the whole process at once with `exitCode`: no clean-up, no destructors, no exit handlers
// (standard output and error are flushed first so the last box is not lost).
[[noreturn]] void TerminateProcess(int exitCode);

// A message number registered under `name` (narrow text): the same name always gives the same
// number (0xC000 and up). POSIX: numbered within the process; Windows: RegisterWindowMessage, so
// every program of the session gets the same number.
uint32_t RegisterWindowMessage(std::string_view name);

// The operating-system version record of the start-up.
struct TOSVersionInfo {
  uint32_t dwOSVersionInfoSize = 0;
  uint32_t dwMajorVersion = 0;
  uint32_t dwMinorVersion = 0;
  uint32_t dwBuildNumber = 0;
  uint32_t dwPlatformId = 0;
  std::string szCSDVersion;
};
inline constexpr uint32_t kOSVersionInfoSize = 148;

// Fills `info` (its size field must be kOSVersionInfoSize); false when the system cannot tell.
// POSIX: the kernel's release numbers; Windows: the version the kernel reports (RtlGetVersion).
bool GetVersionEx(TOSVersionInfo& info);

// The low 16 bits of the floating-point control word, and loading it back.
uint16_t GetFpuControlWord();
void SetFpuControlWord(uint16_t word);

}  // namespace mv::sys
