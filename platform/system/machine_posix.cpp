#include <sys/utsname.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>

#include "platform/files/file_names.h"
#include "platform/system/machine.h"

namespace mv::sys {

std::string MachineFolder() {
  const char* env = std::getenv("MV_MACHINE_DIR");
  std::string folder =
      (env != nullptr && *env != '\0') ? files::DecodeFileName(env) : "/etc/mvcommon";
  while (folder.size() > 1 && folder.back() == '/') folder.pop_back();
  return folder;
}

std::string ExecutablePath() {
  std::string buffer(4096, '\0');
  ssize_t n = ::readlink("/proc/self/exe", buffer.data(), buffer.size());
  if (n <= 0) return {};
  buffer.resize(static_cast<size_t>(n));
  return files::DecodeFileName(buffer);
}

void TerminateProcess(int exitCode) {
  std::fflush(stdout);
  std::fflush(stderr);
  ::_exit(exitCode);
}

uint32_t RegisterWindowMessage(std::string_view name) {
  // One table per process; the window system hands out numbers from 0xC000 in the same way.
  static std::map<std::string, uint32_t, std::less<>> table;
  auto it = table.find(name);
  if (it != table.end()) return it->second;
  uint32_t number = 0xC000u + static_cast<uint32_t>(table.size());
  table.emplace(std::string(name), number);
  return number;
}

bool GetVersionEx(TOSVersionInfo& info) {
  if (info.dwOSVersionInfoSize != kOSVersionInfoSize) return false;
  utsname names{};
  if (::uname(&names) != 0) return false;
  unsigned major = 0, minor = 0, build = 0;
  std::sscanf(names.release, "%u.%u.%u", &major, &minor, &build);
  info.dwMajorVersion = major;
  info.dwMinorVersion = minor;
  info.dwBuildNumber = build;
  info.dwPlatformId = 0;
  info.szCSDVersion = names.version;
  return true;
}

}  // namespace mv::sys
