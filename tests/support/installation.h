// A throw-away installation for one test: a server folder "<tmp>/client/server/" with its system
// configuration file, a machine folder with registry.reg (both product lines' keys pointing at the
// server folder) and WIN.INI, MV_MACHINE_DIR set to it, and the shared state put back to its
// start values so tests do not see each other's settings.
#pragma once

#include <string>
#include <string_view>

#include "tests/support/temp_dir.h"

namespace mv::test {

class TestInstallation {
 public:
  TestInstallation();
  ~TestInstallation();

  // The server folder without its final separator, and the base folder ("<tmp>/client").
  std::string ServerFolder() const { return dir_.File("client/server"); }
  std::string BaseFolder() const { return dir_.File("client"); }
  const TempDir& Dir() const { return dir_; }

  // Writes the system configuration file (LF line ends are fine) / the per-machine WIN.INI.
  void WriteSystemIni(std::string_view text) const;
  void WriteMachineIni(std::string_view text) const;
  // Points both registry keys at `serverPath` (written as given; empty = no value at all).
  void WriteRegistry(std::string_view serverPath) const;

 private:
  TempDir dir_;
  ScopedEnv machineDir_;
};

// Puts the shared state that tests change back to its start values.
void ResetSharedState();

}  // namespace mv::test
