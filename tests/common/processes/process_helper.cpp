// The other process of the cross-process tests. Commands:
//   hold BASE RESOURCE            takes the lock, prints "held" or "busy", then (held) waits to
//                                 be killed
//   cycle BASE RESOURCE N LOG     after a line on standard input, takes and gives up the lock N
//                                 times, appending "+pid" and "-pid" lines to LOG around each hold
//   temp FOLDER EXT N             after a line on standard input, makes N temporary files and
//                                 prints "result name" for each
// BASE is the base folder (BasePath without its separator). Exit code 0 when all went well.
#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <iostream>
#include <string>

#include "common/frame/shared_state.h"
#include "common/processes/concurrent_right.h"
#include "common/processes/temporary_file.h"

namespace {

void WaitForGo() {
  std::string line;
  std::getline(std::cin, line);
}

void Append(int log, char sign) {
  const std::string line = sign + std::to_string(::getpid()) + "\n";
  if (::write(log, line.data(), line.size()) != static_cast<ssize_t>(line.size())) _exit(3);
}

int Hold(const std::string& resource) {
  int32_t handle = -1;
  const bool held = mv::SetConcurrentRight(resource, handle);
  std::printf("%s\n", held ? "held" : "busy");
  std::fflush(stdout);
  if (!held) return 1;
  for (;;) ::pause();
}

int Cycle(const std::string& resource, int count, const std::string& logFile) {
  const int log = ::open(logFile.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0644);
  if (log < 0) return 2;
  WaitForGo();
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

int Temp(const std::string& folder, const std::string& extension, int count) {
  WaitForGo();
  for (int i = 0; i < count; ++i) {
    std::string name;
    const int32_t result = mv::GetTemporaryFile(folder, extension, name);
    std::printf("%d %s\n", result, name.c_str());
  }
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  const std::string command = argc > 1 ? argv[1] : "";
  if (command == "temp" && argc == 5) return Temp(argv[2], argv[3], std::stoi(argv[4]));
  if (argc < 4) return 2;
  mv::BasePath = std::string(argv[2]) + "/";
  if (command == "hold") return Hold(argv[3]);
  if (command == "cycle" && argc == 6) return Cycle(argv[3], std::stoi(argv[4]), argv[5]);
  return 2;
}
