#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <wordexp.h>

#include <cerrno>
#include <thread>

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

}  // namespace

int32_t StartProgram(const std::string& commandLine, TShowMode mode) {
  wordexp_t words{};
  const int split = ::wordexp(commandLine.c_str(), &words, WRDE_NOCMD);
  if (split != 0) {
    if (split == WRDE_NOSPACE) ::wordfree(&words);
    return kStartNoCommand;
  }
  int32_t result = kStartNoCommand;
  if (words.we_wordc > 0) {
    pid_t pid = 0;
    const int error = Spawn(words.we_wordv, mode, pid);
    if (error == 0) CollectWhenDone(pid);
    result = StartResultOf(error);
  }
  ::wordfree(&words);
  return result;
}

}  // namespace mv::processes
