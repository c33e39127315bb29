// A program run as a separate process for cross-process tests: its standard input and output are
// pipes to the test, so the test can tell it when to start and read what it reports.
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

namespace mv::test {

class HelperProcess {
 public:
  // Starts `program` with `args`; standard error stays the test's.
  HelperProcess(const std::string& program, const std::vector<std::string>& args);
  // Kills the process if it still runs and collects it.
  ~HelperProcess();
  HelperProcess(const HelperProcess&) = delete;
  HelperProcess& operator=(const HelperProcess&) = delete;

  // Writes `text` to the process's standard input.
  void Send(const std::string& text);
  // The next line the process prints, without its line end; empty at the end of its output.
  std::string ReadLine();
  // Everything the process prints until it ends.
  std::string ReadAll();
  // Sends `signal` to the process.
  void Signal(int signal);
  // Waits for the process to end: its exit code, or -1 when a signal ended it.
  int Wait();

 private:
  pid_t pid_ = -1;
  int input_ = -1;
  int output_ = -1;
  std::string buffer_;
};

}  // namespace mv::test
