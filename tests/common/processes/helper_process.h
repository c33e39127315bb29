// A program started through the shell for cross-process tests: the test reads what it prints and
// knows its process number (printed by the shell before it becomes the program), to signal it.
#pragma once

#include <signal.h>
#include <sys/wait.h>

#include <cstdio>
#include <stdexcept>
#include <string>
#include <utility>

namespace mv::test {

class HelperProcess {
 public:
  explicit HelperProcess(const std::string& commandLine)
      : out_(::popen(("echo $$; exec " + commandLine).c_str(), "r")) {
    if (out_ == nullptr) throw std::runtime_error("cannot start " + commandLine);
    pid_ = std::stoi(ReadLine());
  }
  ~HelperProcess() {
    if (out_ != nullptr) Signal(SIGKILL), Wait();
  }
  // The next line printed, without its line end; empty at the end of the output.
  std::string ReadLine() {
    char line[4096];
    std::string text = std::fgets(line, sizeof line, out_) != nullptr ? line : "";
    if (!text.empty() && text.back() == '\n') text.pop_back();
    return text;
  }
  // Everything printed until the program ends.
  std::string ReadAll() {
    std::string text;
    char chunk[4096];
    for (size_t n; (n = std::fread(chunk, 1, sizeof chunk, out_)) > 0;) text.append(chunk, n);
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
  int pid_ = 0;
};

}  // namespace mv::test
