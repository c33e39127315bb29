// Windows: the program is started with CreateProcessW, its standard output and error going to
// files of a temporary folder; the arguments are quoted as the C run-time splits them back.
#include <windows.h>

#include "tests/support/run_program.h"
#include "tests/support/temp_dir.h"

namespace mv::test {
namespace {

std::wstring Wide(const std::string& text) {
  if (text.empty()) return {};
  const int n =
      ::MultiByteToWideChar(CP_ACP, 0, text.data(), static_cast<int>(text.size()), nullptr, 0);
  std::wstring wide(static_cast<size_t>(n), L'\0');
  ::MultiByteToWideChar(CP_ACP, 0, text.data(), static_cast<int>(text.size()), wide.data(), n);
  return wide;
}

std::wstring Quoted(const std::wstring& argument) {
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
  return quoted + L"\"";
}

HANDLE InheritableFile(const std::string& path) {
  SECURITY_ATTRIBUTES inherit{sizeof inherit, nullptr, TRUE};
  return ::CreateFileW(Wide(path).c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inherit, CREATE_ALWAYS,
                       FILE_ATTRIBUTE_NORMAL, nullptr);
}

}  // namespace

RunResult RunProgram(const std::string& program, const std::vector<std::string>& args) {
  TempDir capture;
  std::wstring commandLine = Quoted(Wide(program));
  for (const std::string& arg : args) commandLine += L" " + Quoted(Wide(arg));
  const HANDLE out = InheritableFile(capture.File("out"));
  const HANDLE err = InheritableFile(capture.File("err"));
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  startup.dwFlags = STARTF_USESTDHANDLES;
  startup.hStdInput = ::GetStdHandle(STD_INPUT_HANDLE);
  startup.hStdOutput = out;
  startup.hStdError = err;
  PROCESS_INFORMATION process{};
  RunResult result;
  if (::CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr,
                       &startup, &process)) {
    DWORD code = 0;
    if (::WaitForSingleObject(process.hProcess, INFINITE) == WAIT_OBJECT_0 &&
        ::GetExitCodeProcess(process.hProcess, &code)) {
      result.exitCode = static_cast<int>(code);
    }
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
  }
  ::CloseHandle(out);
  ::CloseHandle(err);
  result.out = capture.Read("out");
  result.err = capture.Read("err");
  return result;
}

}  // namespace mv::test
