// What only POSIX shows: permissions, and file names the library itself matches without regard
// to case.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/ini/ini_file.h"
#include "tests/support/temp_dir.h"

namespace mv::ini {
namespace {

TEST(IniFilePosix, UnreadableFileIsNotOverwritten) {
  test::TempDir dir;
  test::ScopedEnv codePage("MV_CODEPAGE", "950");
  if (::geteuid() == 0) GTEST_SKIP() << "root reads every file";
  std::string path = dir.Write("t.ini", "[S]\nk=1\n");
  ASSERT_EQ(::chmod(path.c_str(), 0200), 0);
  TIniFile ini(path);
  EXPECT_EQ(ini.ReadString("S", "k", "-"), "-");
  EXPECT_THROW(ini.WriteString("S", "k", "2"), EIniFileException);
  ASSERT_EQ(::chmod(path.c_str(), 0600), 0);
  EXPECT_EQ(dir.Read("t.ini"), "[S]\nk=1\n");
}

TEST(IniFilePosix, RewrittenFileKeepsItsPermissions) {
  test::TempDir dir;
  const std::string path = dir.Write("t.ini", "[S]\nk=1\n");
  ASSERT_EQ(::chmod(path.c_str(), 0640), 0);
  TIniFile(path).WriteString("S", "k", "2");
  struct stat st {};
  ASSERT_EQ(::stat(path.c_str(), &st), 0);
  EXPECT_EQ(st.st_mode & 07777, 0640u);
}

TEST(IniFilePosix, AFileNameInAnotherCaseIsTheFileOnDisk) {
  test::TempDir dir;
  dir.Write("sedifsys.ini", "[S]\r\nk=v\r\n");
  EXPECT_EQ(TIniFile(dir.File("SEDIFSYS.INI")).FileName(), dir.File("sedifsys.ini"));
}

}  // namespace
}  // namespace mv::ini
