// Starts the library as a client of the Orvex line does, prints each installed service with
// whether its package is loaded, then closes as the client does, so loaded packages hear 505.
// The installation is found through the machine folder: MV_MACHINE_DIR, else /etc/mvcommon.
#include <cstdio>

#include "common/frame/shared_state.h"
#include "common/frame/startup.h"
#include "mvcommon_version.h"

int main() {
  std::printf("mvcommon %s\n", MVCOMMON_VERSION_STRING);
  mv::Init();
  std::printf("server folder: %s\n", mv::ServerPath.c_str());
  for (const mv::TPackInfo& package : mv::AryPkgInfo) {
    std::printf("service %s (%s): %s\n", package.ServiceName.c_str(), package.ServiceExtra.c_str(),
                package.Handle ? "loaded" : "not loaded");
  }
  std::fflush(stdout);
  mv::FreeStrList();
  return 0;
}
