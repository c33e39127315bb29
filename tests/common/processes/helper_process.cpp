#include "tests/common/processes/helper_process.h"

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <stdexcept>
#include <utility>

extern char** environ;

namespace mv::test {

HelperProcess::HelperProcess(const std::string& program, const std::vector<std::string>& args) {
  int toChild[2], fromChild[2];
  if (::pipe2(toChild, O_CLOEXEC) != 0 || ::pipe2(fromChild, O_CLOEXEC) != 0) {
    throw std::runtime_error("pipe failed");
  }
  std::vector<char*> argv{const_cast<char*>(program.c_str())};
  for (const std::string& arg : args) argv.push_back(const_cast<char*>(arg.c_str()));
  argv.push_back(nullptr);
  posix_spawn_file_actions_t files;
  posix_spawn_file_actions_init(&files);
  posix_spawn_file_actions_adddup2(&files, toChild[0], 0);
  posix_spawn_file_actions_adddup2(&files, fromChild[1], 1);
  const int error = ::posix_spawn(&pid_, argv[0], &files, nullptr, argv.data(), environ);
  posix_spawn_file_actions_destroy(&files);
  ::close(toChild[0]);
  ::close(fromChild[1]);
  input_ = toChild[1];
  output_ = fromChild[0];
  if (error != 0) throw std::runtime_error("cannot start " + program);
}

HelperProcess::~HelperProcess() {
  if (pid_ > 0) {
    ::kill(pid_, SIGKILL);
    Wait();
  }
  if (input_ >= 0) ::close(input_);
  if (output_ >= 0) ::close(output_);
}

void HelperProcess::Send(const std::string& text) {
  if (::write(input_, text.data(), text.size()) != static_cast<ssize_t>(text.size())) {
    throw std::runtime_error("cannot write to the helper");
  }
}

std::string HelperProcess::ReadLine() {
  for (;;) {
    const size_t end = buffer_.find('\n');
    if (end != std::string::npos) {
      std::string line = buffer_.substr(0, end);
      buffer_.erase(0, end + 1);
      return line;
    }
    char chunk[512];
    const ssize_t n = ::read(output_, chunk, sizeof chunk);
    if (n <= 0) return std::exchange(buffer_, {});
    buffer_.append(chunk, static_cast<size_t>(n));
  }
}

std::string HelperProcess::ReadAll() {
  char chunk[4096];
  for (ssize_t n; (n = ::read(output_, chunk, sizeof chunk)) > 0;) {
    buffer_.append(chunk, static_cast<size_t>(n));
  }
  return std::exchange(buffer_, {});
}

void HelperProcess::Signal(int signal) {
  ::kill(pid_, signal);
}

int HelperProcess::Wait() {
  int status = 0;
  while (::waitpid(pid_, &status, 0) < 0) {
    if (errno != EINTR) return -1;
  }
  pid_ = -1;
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

}  // namespace mv::test
