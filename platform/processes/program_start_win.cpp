// Windows: the system's own start of a command line, whose result is the start result as it is.
#include <windows.h>

#include "platform/processes/program_start.h"

namespace mv::processes {

int32_t StartProgram(const std::string& commandLine, TShowMode mode) {
  const UINT result = ::WinExec(commandLine.c_str(), mode == smHidden ? SW_HIDE : SW_SHOWNORMAL);
  return static_cast<int32_t>(result);
}

}  // namespace mv::processes
