// Windows: programs started with CreateProcessW. A command line is handed over as it stands; an
// argument list is written as a command line with the quoting that a program's start-up
// (CommandLineToArgvW, the C run-time) undoes. Narrow text is converted from the system code
// page at the call.
#include <windows.h>

#include <string>
#include <vector>

#include "platform/files/wide_names_p.h"
#include "platform/processes/program_start.h"

namespace mv::processes {
namespace {

// `argument` as one word of a command line: left as it is when it needs no quotes, else wrapped
// in quotes, with each quote inside escaped and the backslashes before a quote doubled.
std::wstring QuotedArgument(const std::wstring& argument) {
  if (!argument.empty() && argument.find_first_of(L" \t\n\v\"") == std::wstring::npos) {
    return argument;
  }
  std::wstring quoted = L"\"";
  size_t backslashes = 0;
  for (const wchar_t c : argument) {
    if (c == L'\\') {
      ++backslashes;
      continue;
    }
    quoted.append(c == L'"' ? backslashes * 2 + 1 : backslashes, L'\\');
    backslashes = 0;
    quoted += c;
  }
  quoted.append(backslashes * 2, L'\\');
  quoted += L'"';
  return quoted;
}

// Starts the wide command line `commandLine`; the start result as the system's WinExec gives it.
int32_t Start(std::wstring commandLine, TShowMode mode) {
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESHOWWINDOW;
  startup.wShowWindow = mode == smHidden ? SW_HIDE : SW_SHOWNORMAL;
  PROCESS_INFORMATION process{};
  if (!::CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                        &startup, &process)) {
    // The system's error numbers below 32 are the start results (2, 3, 5, 8, 11).
    const DWORD error = ::GetLastError();
    return error > 0 && error < 32 ? static_cast<int32_t>(error) : kStartBadFormat;
  }
  ::CloseHandle(process.hThread);
  ::CloseHandle(process.hProcess);
  return kStarted;
}

}  // namespace

int32_t StartProgram(const std::string& commandLine, TShowMode mode) {
  const std::optional<std::wstring> wide = files::WideFileName(commandLine);
  if (!wide || wide->find_first_not_of(L" \t") == std::wstring::npos) return kStartNoCommand;
  return Start(*wide, mode);
}

int32_t StartProgramArgs(const std::vector<std::string>& arguments, TShowMode mode) {
  if (arguments.empty() || arguments.front().empty()) return kStartNoCommand;
  std::wstring commandLine;
  for (const std::string& argument : arguments) {
    const std::optional<std::wstring> wide = files::WideFileName(argument);
    if (!wide) return kStartNoCommand;
    if (!commandLine.empty()) commandLine += L' ';
    commandLine += QuotedArgument(*wide);
  }
  return Start(std::move(commandLine), mode);
}

}  // namespace mv::processes
