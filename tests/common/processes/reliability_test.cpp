// Four processes at once: lock holds never overlap, and temporary names never collide.
#include <map>
#include <memory>
#include <set>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "platform/files/paths.h"
#include "tests/common/processes/helper_process.h"
#include "tests/support/temp_dir.h"

namespace mv::test {
namespace {

// Runs four helpers with `args`, lets them go together, and gives the lines they printed.
std::vector<std::string> RunFourTogether(const TempDir& dir, const std::string& args) {
  std::vector<std::unique_ptr<HelperProcess>> helpers;
  for (int i = 0; i < 4; ++i) {
    helpers.push_back(std::make_unique<HelperProcess>(std::string(PROCESS_HELPER) + " " + args +
                                                      " " + dir.File("go")));
  }
  dir.Write("go", "");
  std::vector<std::string> lines;
  for (auto& helper : helpers) {
    for (std::string line; !(line = helper->ReadLine()).empty();) lines.push_back(line);
    EXPECT_EQ(helper->Wait(), 0);
  }
  return lines;
}

TEST(Reliability, LockHoldsOfFourProcessesNeverOverlap) {
  TempDir dir;
  RunFourTogether(dir, "cycle " + dir.path() + " Stock " + dir.File("holds.log"));
  std::istringstream log(dir.Read("holds.log"));
  std::map<std::string, int> holds;
  std::string holder;
  int overlaps = 0;
  for (std::string line; std::getline(log, line);) {
    const bool taken = line[0] == '+';
    overlaps += taken ? !holder.empty() : holder != line.substr(1);
    holder = taken ? line.substr(1) : "";
    holds[line.substr(1)] += taken;
  }
  EXPECT_EQ(overlaps, 0);
  EXPECT_EQ(holds.size(), 4u);
  for (const auto& [pid, count] : holds) EXPECT_EQ(count, 200) << pid;
}

TEST(Reliability, TemporaryFilesOfFourProcessesAreAllDistinct) {
  TempDir dir;
  std::set<std::string> made;
  for (const std::string& line : RunFourTogether(dir, "temp " + dir.path())) {
    if (line.starts_with("0 ") && files::FileExists(line.substr(2))) made.insert(line.substr(2));
  }
  EXPECT_EQ(made.size(), 200u);
}

}  // namespace
}  // namespace mv::test
