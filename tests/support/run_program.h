// Runs a program as a separate process and catches what it prints, for tests of command-line
// programs.
#pragma once

#include <string>
#include <vector>

namespace mv::test {

struct RunResult {
  int exitCode = -1;  // -1 when the program could not be started or did not exit normally
  std::string out, err;
};

// Runs `program` with `args` (the environment of the test), standard output and error caught.
RunResult RunProgram(const std::string& program, const std::vector<std::string>& args);

}  // namespace mv::test
