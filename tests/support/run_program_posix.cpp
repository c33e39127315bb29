#include "tests/support/run_program.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>

#include "tests/support/temp_dir.h"

extern char** environ;

namespace mv::test {

RunResult RunProgram(const std::string& program, const std::vector<std::string>& args) {
  TempDir capture;
  std::vector<char*> argv{const_cast<char*>(program.c_str())};
  for (const std::string& arg : args) argv.push_back(const_cast<char*>(arg.c_str()));
  argv.push_back(nullptr);
  posix_spawn_file_actions_t files;
  posix_spawn_file_actions_init(&files);
  posix_spawn_file_actions_addopen(&files, 1, capture.File("out").c_str(), O_WRONLY | O_CREAT,
                                   0600);
  posix_spawn_file_actions_addopen(&files, 2, capture.File("err").c_str(), O_WRONLY | O_CREAT,
                                   0600);
  pid_t pid = 0;
  int status = 0;
  RunResult result;
  if (posix_spawn(&pid, argv[0], &files, nullptr, argv.data(), environ) == 0 &&
      waitpid(pid, &status, 0) == pid && WIFEXITED(status)) {
    result.exitCode = WEXITSTATUS(status);
  }
  posix_spawn_file_actions_destroy(&files);
  result.out = capture.Read("out");
  result.err = capture.Read("err");
  return result;
}

}  // namespace mv::test
