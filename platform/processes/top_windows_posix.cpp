// Without a window system interface no other program's window can be found, placed or sent a
// message; the add-on routines of the library report their calls as failed.
#include "platform/processes/top_windows.h"

namespace mv::processes {

TWindowHandle FindTopLevelWindow(const std::string& /*caption*/) {
  return 0;
}

TWindowHandle WaitForTopLevelWindow(const std::string& /*caption*/,
                                    std::chrono::seconds /*limit*/) {
  return 0;
}

bool CentreAndRaiseWindow(TWindowHandle /*window*/) {
  return false;
}

bool PostWindowMessage(TWindowHandle /*window*/, uint32_t /*message*/, uint32_t /*wParam*/,
                       uint32_t /*lParam*/) {
  return false;
}

TWindowHandle HostWindow() {
  return 0;
}

void SetHostWindow(TWindowHandle /*window*/) {}

bool HandleHostMessage() {
  return false;
}

}  // namespace mv::processes
