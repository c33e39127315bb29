// The file of a helper program of the tests: a full path as the build gives it, or a bare file
// name (the Windows build under Wine, whose programs see Windows paths) looked for beside the
// running test program.
#pragma once

#include <string>

#include "platform/files/paths.h"
#include "platform/system/machine.h"

namespace mv::test {

inline std::string HelperProgram(const std::string& built) {
  if (built.find(files::kPathDelim) != std::string::npos || built.find('/') != std::string::npos) {
    return built;
  }
  return files::ExtractFilePath(sys::ExecutablePath()) + built;
}

}  // namespace mv::test
