// Several processes at once: lock holds never overlap, and temporary names never collide.
#include <map>
#include <memory>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/files/paths.h"
#include "tests/common/processes/helper_process.h"
#include "tests/support/temp_dir.h"

namespace mv::test {
namespace {

constexpr int kProcesses = 4;

// Starts the helpers with `args`, lets them all go at once and waits for them.
std::vector<std::string> RunTogether(const std::vector<std::string>& args) {
  std::vector<std::unique_ptr<HelperProcess>> helpers;
  for (int i = 0; i < kProcesses; ++i) {
    helpers.push_back(std::make_unique<HelperProcess>(PROCESS_HELPER, args));
  }
  for (auto& helper : helpers) helper->Send("go\n");
  std::vector<std::string> outputs;
  for (auto& helper : helpers) {
    outputs.push_back(helper->ReadAll());
    EXPECT_EQ(helper->Wait(), 0);
  }
  return outputs;
}

TEST(Reliability, LockHoldsOfFourProcessesNeverOverlap) {
  TempDir dir;
  RunTogether({"cycle", dir.path(), "Stock", "200", dir.File("holds.log")});
  std::istringstream log(dir.Read("holds.log"));
  std::map<std::string, int> holds;
  std::string line, holder;
  int overlaps = 0;
  while (std::getline(log, line)) {
    const std::string pid = line.substr(1);
    if (line[0] == '+') {
      if (!holder.empty()) ++overlaps;
      holder = pid;
      ++holds[pid];
    } else {
      if (holder != pid) ++overlaps;
      holder.clear();
    }
  }
  EXPECT_EQ(overlaps, 0);
  ASSERT_EQ(holds.size(), static_cast<size_t>(kProcesses));
  for (const auto& [pid, count] : holds) EXPECT_EQ(count, 200) << pid;
}

TEST(Reliability, TemporaryFilesOfFourProcessesAreAllDistinct) {
  TempDir dir;
  const std::vector<std::string> outputs = RunTogether({"temp", dir.path(), ".tmp", "50"});
  std::set<std::string> names;
  int successes = 0;
  for (const std::string& output : outputs) {
    std::istringstream lines(output);
    std::string result, name;
    while (lines >> result >> name) {
      successes += result == "0";
      names.insert(name);
      EXPECT_TRUE(files::FileExists(name)) << name;
    }
  }
  EXPECT_EQ(successes, kProcesses * 50);
  EXPECT_EQ(names.size(), static_cast<size_t>(kProcesses * 50));
}

}  // namespace
}  // namespace mv::test
