#include "tests/support/demo_database.h"

#include <filesystem>

namespace mv::test {

std::string CopyDemoDatabase(const TempDir& dir) {
  const std::string copy = dir.File("mvdemo.db");
  std::filesystem::copy_file(MV_DEMO_DATABASE, copy,
                             std::filesystem::copy_options::overwrite_existing);
  return "sqlite:" + copy;
}

}  // namespace mv::test
