// The other process of the cross-process tests. BASE is BasePath without its separator.
//   hold BASE RESOURCE          takes the lock and prints "held" (then waits to be killed) or
//   "busy" cycle BASE RESOURCE N LOG GO  once the file GO exists, takes and gives up the lock N
//   times,
//                               appending "+pid" and "-pid" lines to LOG around each hold
//   temp FOLDER N GO            once GO exists, makes N ".tmp" files, printing "result name" each
#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <string>

#include "common/frame/shared_state.h"
#include "common/processes/concurrent_right.h"
#include "common/processes/temporary_file.h"

namespace {

void WaitFor(const char* goFile) {
  while (::access(goFile, F_OK) != 0) ::usleep(1000);
}

void Append(int log, char sign) {
  const std::string line = sign + std::to_string(::getpid()) + "\n";
  if (::write(log, line.data(), line.size()) != static_cast<ssize_t>(line.size())) _exit(3);
}

int Cycle(const std::string& resource, int count, int log) {
  for (int held = 0; held < count;) {
    int32_t handle = -1;
    if (!mv::SetConcurrentRight(resource, handle)) continue;
    Append(log, '+');
    ::usleep(100);  // a hold that lasts, so that a second holder would show
    Append(log, '-');
    mv::ResetConcurrentRight(handle);
    ++held;
  }
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  const std::string command = argc > 1 ? argv[1] : "";
  if (command == "temp" && argc == 5) {
    WaitFor(argv[4]);
    for (int i = std::stoi(argv[3]); i > 0; --i) {
      std::string name;
      const int32_t result = mv::GetTemporaryFile(argv[2], ".tmp", name);
      std::printf("%d %s\n", result, name.c_str());
    }
    return 0;
  }
  if (argc < 4) return 2;
  mv::BasePath = std::string(argv[2]) + "/";
  int32_t handle = -1;
  if (command == "hold") {
    const bool held = mv::SetConcurrentRight(argv[3], handle);
    std::printf("%s\n", held ? "held" : "busy");
    std::fflush(stdout);
    while (held) ::pause();
    return 1;
  }
  if (command != "cycle" || argc != 7) return 2;
  const int log = ::open(argv[5], O_WRONLY | O_CREAT | O_APPEND, 0644);
  WaitFor(argv[6]);
  return log < 0 ? 2 : Cycle(argv[3], std::stoi(argv[4]), log);
}
