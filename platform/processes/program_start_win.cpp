// Windows: the system's own start of a command line, whose result is the start result as it is.
// An argument list is written as a command line with the quoting that a program's start-up
// (CommandLineToArgvW, the C run-time) undoes, and started with CreateProcessW.
#include <windows.h>

#include <string>
#include <vector>

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

// Narrow text in the system code page as UTF-16.
std::wstring WideOfSystem(const std::string& text) {
  if (text.empty()) return {};
  const int size = static_cast<int>(text.size());
  const int length = ::MultiByteToWideChar(CP_ACP, 0, text.data(), size, nullptr, 0);
  std::wstring wide(static_cast<size_t>(length), L'\0');
  ::MultiByteToWideChar(CP_ACP, 0, text.data(), size, wide.data(), length);
  return wide;
}

}  // namespace

int32_t StartProgram(const std::string& commandLine, TShowMode mode) {
  const UINT result = ::WinExec(commandLine.c_str(), mode == smHidden ? SW_HIDE : SW_SHOWNORMAL);
  return static_cast<int32_t>(result);
}

int32_t StartProgramArgs(const std::vector<std::string>& arguments, TShowMode mode) {
  if (arguments.empty() || arguments.front().empty()) return kStartNoCommand;
  std::wstring commandLine;
  for (const std::string& argument : arguments) {
    if (argument.find('\0') != std::string::npos) return kStartNoCommand;
    if (!commandLine.empty()) commandLine += L' ';
    commandLine += QuotedArgument(WideOfSystem(argument));
  }
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESHOWWINDOW;
  startup.wShowWindow = mode == smHidden ? SW_HIDE : SW_SHOWNORMAL;
  PROCESS_INFORMATION process{};
  if (!::CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                        &startup, &process)) {
    // The system's error numbers below 32 are the start results of WinExec (2, 3, 5, 8, 11).
    const DWORD error = ::GetLastError();
    return error > 0 && error < 32 ? static_cast<int32_t>(error) : kStartBadFormat;
  }
  ::CloseHandle(process.hThread);
  ::CloseHandle(process.hProcess);
  return kStarted;
}

}  // namespace mv::processes
