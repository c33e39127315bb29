// The other process of the cross-process tests. BASE is BasePath without its separator.
//   hold BASE RESOURCE           takes the lock, prints "held" and waits to be killed, or "busy"
//   cycle BASE RESOURCE LOG GO   once the file GO exists, takes and gives up the lock 200 times,
//                                appending "+pid" and "-pid" lines to LOG around each hold
//   temp FOLDER GO               once GO exists, makes 50 ".tmp" files, printing "result name"
//   seq SERVER GO                once GO exists, issues 60 running numbers of [TDEC] Seq of
//                                SERVER/SEDIFSYS.INI, printing each
//   count SERVER KEY GO          once GO exists, counts [Counts] KEY of SERVER/SEDIFSYS.INI up
//                                60 times, one read and one write each
#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <string>

#include "common/frame/config_helpers.h"
#include "common/frame/shared_state.h"
#include "common/processes/concurrent_right.h"
#include "common/processes/temporary_file.h"

namespace {

void Append(int log, char sign) {
  const std::string line = sign + std::to_string(::getpid()) + "\n";
  if (::write(log, line.data(), line.size()) != static_cast<ssize_t>(line.size())) _exit(3);
}

}  // namespace

int main(int argc, char** argv) {
  const std::string command = argc > 1 ? argv[1] : "";
  if (argc < 4) return 2;
  mv::BasePath = mv::ServerPath = std::string(argv[2]) + "/";
  mv::Global_Merovan_Ini = "SEDIFSYS.INI";
  int32_t handle = -1;
  if (command == "hold") {
    const bool held = mv::SetConcurrentRight(argv[3], handle);
    std::printf("%s\n", held ? "held" : "busy");
    std::fflush(stdout);
    while (held) ::pause();
    return 1;
  }
  while (::access(argv[argc - 1], F_OK) != 0) ::usleep(1000);  // until GO
  for (int i = 0; command == "temp" && i < 50; ++i) {
    std::string name;
    const int32_t result = mv::GetTemporaryFile(argv[2], ".tmp", name);
    std::printf("%d %s\n", result, name.c_str());
  }
  for (int i = 0; command == "seq" && i < 60; ++i)
    std::printf("%s\n", mv::GetIniSeq("TDEC", "Seq").c_str());
  for (int i = 0; command == "count" && i < 60; ++i) {
    mv::SetIniIntegerValue("Counts", argv[3], mv::GetIniIntegerValue("Counts", argv[3]) + 1);
  }
  const int log = command == "cycle" ? ::open(argv[4], O_WRONLY | O_CREAT | O_APPEND, 0644) : -1;
  for (int held = 0; log >= 0 && held < 200;) {
    if (!mv::SetConcurrentRight(argv[3], handle)) continue;
    Append(log, '+');
    ::usleep(100);  // a hold that lasts, so that a second holder would show
    Append(log, '-');
    mv::ResetConcurrentRight(handle);
    ++held;
  }
  return 0;
}
