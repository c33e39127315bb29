// A program started through the shell for cross-process tests: the test reads what it prints and
// knows its process number (printed by the shell before it becomes the program) to signal it.
#pragma once

#include <signal.h>
#include <sys/wait.h>

#include <cstdio>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/temp_dir.h"

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

// Starts `commandLine` four times with the file GO of `dir` added, lets the four go together by
// making GO, and gives the lines they printed once all have ended with exit code 0.
inline std::vector<std::string> RunFourTogether(const TempDir& dir,
                                                const std::string& commandLine) {
  std::vector<std::unique_ptr<HelperProcess>> helpers;
  for (int i = 0; i < 4; ++i)
    helpers.push_back(std::make_unique<HelperProcess>(commandLine + " " + dir.File("go")));
  dir.Write("go", "");
  std::vector<std::string> lines;
  for (auto& helper : helpers) {
    for (std::string line; !(line = helper->ReadLine()).empty();) lines.push_back(line);
    EXPECT_EQ(helper->Wait(), 0);
  }
  return lines;
}

}  // namespace mv::test
