// Narrow paths in the user's code page reach the system as UTF-8 names, and names the system
// gives come back in the code page, whatever the code page.
#include "platform/files/file_names.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "platform/files/lock_file.h"
#include "platform/files/new_file.h"
#include "platform/files/paths.h"
#include "tests/support/temp_dir.h"

namespace mv::files {
namespace {

using test::ScopedEnv;
using test::TempDir;

const std::string kBig5Folder = "\xB3\xF8\xC3\xF6";  // 報關
const std::string kGbkFolder = "\x88\xF3\xEA\x50";   // 報關, the second trail byte "P"
const std::string kUtf8Folder = "報關";

TEST(FileNames, EachCodePageReachesTheSystemAsUtf8AndBack) {
  struct Case {
    const char* codePage;
    std::string narrow, system;
  };
  const Case cases[] = {
      {"950", "/srv/" + kBig5Folder + "/server", "/srv/報關/server"},
      {"950", "\xA5\x5C\xAF\xE0", "功能"},  // a Big5 trail byte that is a backslash
      {"936", "/srv/" + kGbkFolder + "/server", "/srv/報關/server"},
      {"1252", "/srv/Zo\xEB", "/srv/Zoë"},
      {"65001", "/srv/報關", "/srv/報關"},
      {"65001", "/srv/\xFF\xFE", "/srv/\xFF\xFE"},  // any byte the system takes stays reachable
      {"12345", "/srv/\xB3\xF8", "/srv/\xB3\xF8"},  // no converter: the bytes as they are
  };
  for (const Case& c : cases) {
    ScopedEnv codePage("MV_CODEPAGE", c.codePage);
    EXPECT_EQ(EncodeFileName(c.narrow), c.system) << c.codePage;
    EXPECT_EQ(DecodeFileName(c.system), c.narrow) << c.codePage;
  }
}

TEST(FileNames, NamesTheCodePageCannotHoldAndZeroBytes) {
  ScopedEnv codePage("MV_CODEPAGE", "950");
  EXPECT_EQ(DecodeFileName("\xE0\xB8\x81.ini"), "?.ini");  // Thai has none
  EXPECT_EQ(DecodeFileName("\xFF.ini"), "?.ini");          // not UTF-8
  EXPECT_EQ(EncodeFileName(std::string("ok\0.so", 6)), std::nullopt);
  EXPECT_EQ(EncodeFileName(""), "");
}

// The file routines under code page 950 on a folder whose name is Chinese on disk.
class Big5FilesTest : public ::testing::Test {
 protected:
  std::string Narrow(const std::string& name) const { return dir_.path() + "/" + name; }
  // The name on disk, given in UTF-8.
  std::filesystem::path OnDisk(const std::string& name) const {
    return std::filesystem::path(dir_.path()) /
           std::filesystem::path(std::u8string(name.begin(), name.end()));
  }

  ScopedEnv codePage_{"MV_CODEPAGE", "950"};
  TempDir dir_;
};

TEST_F(Big5FilesTest, FoldersFilesAndLocksUnderAChineseName) {
  const std::string folder = Narrow(kBig5Folder);
  ASSERT_TRUE(MakeDirectory(folder));
  EXPECT_TRUE(std::filesystem::is_directory(OnDisk(kUtf8Folder)));
  EXPECT_TRUE(DirectoryExists(folder));
  const std::string ini = folder + "/SEDIFSYS.INI";
  ReplaceFileAtomically(ini, "[TDEC]\r\n");
  EXPECT_EQ(dir_.Read(kUtf8Folder + "/SEDIFSYS.INI"), "[TDEC]\r\n");
  EXPECT_TRUE(FileExists(ini));
  EXPECT_EQ(ReadWholeFile(ini), "[TDEC]\r\n");
  EXPECT_TRUE(CreateNewFile(folder + "/C3E08J01.tmp"));
  EXPECT_TRUE(BaseNameTaken(folder + "/", "c3e08j01"));
  const int32_t lock = LockFileExclusive(folder + "/Stock.lck");
  EXPECT_GT(lock, 0);
  EXPECT_TRUE(std::filesystem::exists(OnDisk(kUtf8Folder + "/Stock.lck")));
  UnlockFile(lock);
  EXPECT_TRUE(RemoveLockFile(folder + "/Stock.lck"));
  EXPECT_TRUE(RemoveFile(ini));
  EXPECT_FALSE(std::filesystem::exists(OnDisk(kUtf8Folder + "/SEDIFSYS.INI")));
}

TEST_F(Big5FilesTest, AZeroByteNamesNoFile) {
  dir_.Write("a", "bytes");
  const std::string cut = Narrow(std::string("a\0.so", 5));
  EXPECT_FALSE(FileExists(cut));
  EXPECT_EQ(ReadWholeFile(cut), std::nullopt);
  EXPECT_THROW(ReplaceFileAtomically(cut, "x"), EFileError);
  EXPECT_FALSE(CreateNewFile(cut));
  EXPECT_EQ(LockFileExclusive(cut), kNoLock);
  EXPECT_FALSE(RemoveFile(cut));
  EXPECT_EQ(dir_.Read("a"), "bytes");
}

}  // namespace
}  // namespace mv::files
