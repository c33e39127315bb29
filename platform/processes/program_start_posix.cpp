#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <wordexp.h>

#include <cerrno>
#include <optional>
#include <thread>

#include "platform/files/file_names.h"
#include "platform/processes/program_start.h"

extern char** environ;

namespace mv::processes {
namespace {

int32_t StartResultOf(int error) {
  switch (error) {
    case 0:
      return kStarted;
    case ENOENT:
      return kStartNotFound;
    case ENOTDIR:
      return kStartPathNotFound;
    case EACCES:
    case EPERM:
      return kStartDenied;
    case ENOMEM:
    case EAGAIN:
      return kStartNoMemory;
    default:
      return kStartBadFormat;
  }
}

// The started program is collected by a thread of its own, so it never lingers as a zombie.
void CollectWhenDone(pid_t pid) {
  std::thread([pid] {
    int status = 0;
    while (::waitpid(pid, &status, 0) < 0 && errno == EINTR) {
    }
  }).detach();
}

int Spawn(char* const* argv, TShowMode mode, pid_t& pid) {
  posix_spawn_file_actions_t files;
  posix_spawnattr_t attributes;
  posix_spawn_file_actions_init(&files);
  posix_spawnattr_init(&attributes);
  posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID);
  if (mode == smHidden) {
    posix_spawn_file_actions_addopen(&files, 0, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&files, 1, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&files, 2, "/dev/null", O_WRONLY, 0);
  }
  const int error = ::posix_spawnp(&pid, argv[0], &files, &attributes, argv, environ);
  posix_spawnattr_destroy(&attributes);
  posix_spawn_file_actions_destroy(&files);
  return error;
}

// Starts the program of the null-ended `argv` (system bytes) and leaves it to run by itself.
int32_t SpawnDetached(char* const* argv, TShowMode mode) {
  pid_t pid = 0;
  const int error = Spawn(argv, mode, pid);
  if (error == 0) CollectWhenDone(pid);
  return StartResultOf(error);
}

}  // namespace

int32_t StartProgram(const std::string& commandLine, TShowMode mode) {
  // Split as UTF-8, whose multi-byte characters hold no ASCII bytes: a Big5 or GBK trail byte
  // may be a backslash, a quote or a "$".
  const std::optional<std::string> systemLine = files::EncodeFileName(commandLine);
  if (!systemLine) return kStartNoCommand;
  wordexp_t words{};
  const int split = ::wordexp(systemLine->c_str(), &words, WRDE_NOCMD);
  if (split != 0) {
    if (split == WRDE_NOSPACE) ::wordfree(&words);
    return kStartNoCommand;
  }
  const int32_t result = words.we_wordc > 0 ? SpawnDetached(words.we_wordv, mode) : kStartNoCommand;
  ::wordfree(&words);
  return result;
}

int32_t StartProgramArgs(const std::vector<std::string>& arguments, TShowMode mode) {
  if (arguments.empty() || arguments.front().empty()) return kStartNoCommand;
  std::vector<std::string> systemArguments;
  for (const std::string& argument : arguments) {
    std::optional<std::string> bytes = files::EncodeFileName(argument);
    if (!bytes) return kStartNoCommand;
    systemArguments.push_back(std::move(*bytes));
  }
  std::vector<char*> argv;
  for (std::string& argument : systemArguments) argv.push_back(argument.data());
  argv.push_back(nullptr);
  return SpawnDetached(argv.data(), mode);
}

}  // namespace mv::processes
