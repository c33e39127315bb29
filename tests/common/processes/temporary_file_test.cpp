// Temporary file names: the base-36 name form, base names blocked by any extension, the failure
// after the last attempt.
#include <ctime>
#include <string>

#include <gtest/gtest.h>

#include "common/processes/temporary_file.h"
#include "tests/support/temp_dir.h"

namespace mv::test {
namespace {

TEST(TemporaryBaseName, DigitsOfTheClockAndTheAttempt) {
  EXPECT_EQ(TemporaryBaseName(12, 3, 14, 5, 7, 1), "C3E08J01");
  EXPECT_EQ(TemporaryBaseName(1, 1, 0, 0, 0, 1), "11000001");
  EXPECT_EQ(TemporaryBaseName(12, 31, 23, 59, 59, 1000), "CVN2RZRS");  // the largest parts
  EXPECT_EQ(TemporaryBaseName(10, 10, 10, 0, 36, 36), "AAA01010");     // 36 carries
}

// The base name of `attempt` at `seconds` from now, as GetTemporaryFile makes it.
std::string BaseNameAt(int seconds, int attempt) {
  const std::time_t when = std::time(nullptr) + seconds;
  const std::tm* t = std::localtime(&when);
  return TemporaryBaseName(t->tm_mon + 1, t->tm_mday, t->tm_hour, t->tm_min, t->tm_sec, attempt);
}

TEST(GetTemporaryFile, SkipsBaseNamesTakenWithAnyExtensionOrCase) {
  TempDir dir;
  // For the next half minute attempt 1 is taken by another extension, attempt 2 by a file
  // without one whose name differs in case only.
  for (int s = -1; s <= 30; ++s) {
    dir.Write(BaseNameAt(s, 1) + ".old", "x");
    std::string second = BaseNameAt(s, 2);
    for (char& c : second) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    dir.Write(second, "x");
  }
  std::string name;
  ASSERT_EQ(GetTemporaryFile(dir.path(), ".tmp", name), 0);  // no separator given
  EXPECT_EQ(name.substr(0, dir.path().size() + 1), dir.path() + "/");
  EXPECT_EQ(name.substr(dir.path().size() + 7), "03.tmp");
  EXPECT_EQ(dir.Read(name.substr(dir.path().size() + 1)), "");
  std::string next;
  ASSERT_EQ(GetTemporaryFile(dir.path() + "/", ".tmp", next), 0);
  EXPECT_NE(next, name);
}

TEST(GetTemporaryFile, MissingFolderFailsAfterTheLastAttempt) {
  TempDir dir;
  std::string name;
  EXPECT_EQ(GetTemporaryFile(dir.File("missing"), ".tmp", name), -1);
  EXPECT_EQ(name.substr(0, dir.File("missing/").size()), dir.File("missing/"));
  EXPECT_EQ(name.substr(name.size() - 6), "RS.tmp");  // attempt 1000
}

}  // namespace
}  // namespace mv::test
