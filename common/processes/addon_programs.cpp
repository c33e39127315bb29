#include "common/processes/addon_programs.h"

#include <chrono>
#include <stdexcept>
#include <vector>

#include "common/frame/shared_state.h"
#include "common/text/lang_changer.h"
#include "modules/mv_format.h"
#include "platform/processes/program_start.h"
#include "platform/processes/top_windows.h"

namespace mv {
namespace {

constexpr int32_t kLowestStarted = 32;
constexpr std::chrono::seconds kWindowWait{60};
// The first hook message tells the add-on which window to answer.
constexpr uint32_t kAnswerToCommand = 3;

// A general error with the text of the current language, filled with `args`.
[[noreturn]] void RaiseBilingual(std::string_view english, std::string_view chinese,
                                 const modules::TFormatArgs args) {
  throw std::runtime_error(modules::MV_WideFmtStr(LangChanger().CStr(english, chinese), args));
}

// The add-on's window, started from the server folder and waited for when it is not open.
processes::TWindowHandle OpenAddonWindow(const std::string& caption, const std::string& program) {
  processes::TWindowHandle window = processes::FindTopLevelWindow(caption);
  if (window != 0) return window;
  // As a list, so that a blank in the server folder or a quote in the user id is just a character.
  const std::vector<std::string> arguments = {ServerPath + program, UserRecord.UserID};
  if (processes::StartProgramArgs(arguments, processes::smNormal) < kLowestStarted) {
    const modules::TFormatArg args[] = {program};
    RaiseBilingual("Cannot run program: %s", "無法執行: %s", args);
  }
  window = processes::WaitForTopLevelWindow(caption, kWindowWait);
  if (window == 0) {
    const modules::TFormatArg args[] = {caption};
    RaiseBilingual("No response from program: %s", "沒有回應: %s", args);
  }
  return window;
}

}  // namespace

bool RunApp(const char* commandLine, const char* caption) {
  const std::string title = caption != nullptr ? caption : "";
  processes::TWindowHandle window = processes::FindTopLevelWindow(title);
  if (window == 0) {
    processes::StartProgram(commandLine != nullptr ? commandLine : "", processes::smNormal);
    window = processes::FindTopLevelWindow(title);
  }
  return processes::CentreAndRaiseWindow(window);
}

int32_t RunDOS(const std::string& commandLine) {
  return processes::StartProgram(commandLine, processes::smHidden);
}

uint16_t CallHookFunc(const std::string& caption, const std::string& program, int32_t code,
                      int32_t parameter) {
  const processes::TWindowHandle window = OpenAddonWindow(caption, program);
  AddonDone = false;
  const auto host = static_cast<uint32_t>(processes::HostWindow());
  processes::PostWindowMessage(window, kHookMessage, kAnswerToCommand, host);
  processes::PostWindowMessage(window, kHookMessage, static_cast<uint32_t>(code),
                               static_cast<uint32_t>(parameter));
  while (!AddonDone && processes::HandleHostMessage()) {
  }
  return AddonResult;
}

void CallHook(const std::string& caption, const std::string& program, int32_t code,
              int32_t parameter) {
  const uint16_t answer = CallHookFunc(caption, program, code, parameter);
  if (answer == 0) return;
  const modules::TFormatArg args[] = {program, int64_t{answer}};
  RaiseBilingual("Add-on program %s answered %d", "附加程式 %s 回應 %d", args);
}

}  // namespace mv
