// A program started through the shell for cross-process tests: the test reads what it prints and
// knows its process number (printed by the shell before it becomes the program) to signal it.
#pragma once

#include <signal.h>
#include <sys/wait.h>

#include <cstdio>
#include <string>
#include <utility>

namespace mv::test {

class HelperProcess {
 public:
  explicit HelperProcess(const std::string& commandLine)
      : out_(::popen(("echo $$; exec " + commandLine).c_str(), "r")), pid_(std::stoi(ReadLine())) {}
  ~HelperProcess() {
    if (out_ != nullptr) Signal(SIGKILL), Wait();
  }
  // The next line printed, without its line end; empty at the end of the output.
  std::string ReadLine() {
    char line[4096];
    if (out_ == nullptr || std::fgets(line, sizeof line, out_) == nullptr) return "";
    std::string text(line);
    if (text.back() == '\n') text.pop_back();
    return text;
  }
  void Signal(int signal) const { ::kill(pid_, signal); }
  // Waits for the end: the exit code, or -1 when a signal ended the program.
  int Wait() {
    const int status = ::pclose(std::exchange(out_, nullptr));
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }

 private:
  std::FILE* out_;
  int pid_;
};

}  // namespace mv::test
