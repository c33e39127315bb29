// Temporary file names: the base-36 name form, base names blocked by any extension, the failure
// after the last attempt, distinct names for four processes at once.
#include <ctime>
#include <set>

#include <gtest/gtest.h>

#include "common/processes/temporary_file.h"
#include "platform/files/paths.h"
#include "tests/common/processes/helper_process.h"

namespace mv::test {
namespace {

TEST(TemporaryBaseName, DigitsOfTheClockAndTheAttempt) {
  EXPECT_EQ(TemporaryBaseName(1, 1, 0, 0, 0, 1), "11000001");
  EXPECT_EQ(TemporaryBaseName(12, 31, 23, 59, 59, 1000), "CVN2RZRS");  // the largest parts
  EXPECT_EQ(TemporaryBaseName(10, 10, 10, 0, 36, 36), "AAA01010");     // 36 carries
}

TEST(GetTemporaryFile, SkipsBaseNamesTakenWithAnyExtensionOrCase) {
  TempDir dir;
  // For the next half minute attempt 1 is taken by another extension, attempt 2 by a file
  // without one whose name differs in case only.
  for (std::time_t when = std::time(nullptr) - 1, end = when + 32; when < end; ++when) {
    const std::tm* t = std::localtime(&when);
    const auto name = [t](int n) {
      return TemporaryBaseName(t->tm_mon + 1, t->tm_mday, t->tm_hour, t->tm_min, t->tm_sec, n);
    };
    dir.Write(name(1) + ".old", "x");
    std::string second = name(2);
    for (char& c : second) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    dir.Write(second, "x");
  }
  std::string name, next;
  ASSERT_EQ(GetTemporaryFile(dir.path(), ".tmp", name), 0);  // no separator given
  EXPECT_EQ(name.substr(0, dir.path().size() + 1), dir.path() + "/");
  EXPECT_EQ(name.substr(dir.path().size() + 7), "03.tmp");
  EXPECT_EQ(dir.Read(name.substr(dir.path().size() + 1)), "");
  ASSERT_EQ(GetTemporaryFile(dir.path() + "/", ".tmp", next), 0);
  EXPECT_NE(next, name);
  EXPECT_EQ(GetTemporaryFile(dir.File("missing"), ".tmp", name), -1);
  EXPECT_EQ(name.substr(name.size() - 6), "RS.tmp");  // attempt 1000
}

TEST(Reliability, TemporaryFilesOfFourProcessesAreAllDistinct) {
  TempDir dir;
  std::set<std::string> made;
  for (const std::string& line : RunFourTogether(dir, PROCESS_HELPER " temp " + dir.path())) {
    if (line.starts_with("0 ") && files::FileExists(line.substr(2))) made.insert(line.substr(2));
  }
  EXPECT_EQ(made.size(), 200u);
}

}  // namespace
}  // namespace mv::test
