// What only POSIX file names show: names found without regard to case by the library itself,
// and the C locale's code page.
#include <gtest/gtest.h>

#include "platform/files/file_names.h"
#include "platform/files/paths.h"
#include "tests/support/temp_dir.h"

namespace mv::files {
namespace {

using test::ScopedEnv;
using test::TempDir;

const std::string kBig5Folder = "\xB3\xF8\xC3\xF6";  // 報關
const std::string kUtf8Folder = "報關";

TEST(FileNamesPosix, TheCLocaleReadsNarrowTextAsWestern) {
  ScopedEnv noOverride("MV_CODEPAGE", "");
  ScopedEnv cLocale("LC_ALL", "C");
  EXPECT_EQ(EncodeFileName("Zo\xEB"), "Zoë");
  EXPECT_EQ(DecodeFileName("Zoë"), "Zo\xEB");
}

TEST(FileNamesPosix, CaseIsIgnoredOnlyInAsciiCharacters) {
  ScopedEnv codePage("MV_CODEPAGE", "950");
  TempDir dir;
  dir.Write(kUtf8Folder + "/sedifsys.ini", "");
  dir.Write(kUtf8Folder + "/刃.ini", "");  // Big5 A4 62: the trail byte is "b"
  const std::string folder = dir.path() + "/" + kBig5Folder + "/";
  EXPECT_EQ(ResolveFileName(folder + "SEDIFSYS.INI"), folder + "sedifsys.ini");
  EXPECT_EQ(ResolveFileName(folder + "\xA4\x62.INI"), folder + "\xA4\x62.ini");
  // 丁 is A4 42, the same bytes but for the case of the trail byte: another character.
  EXPECT_EQ(ResolveFileName(folder + "\xA4\x42.ini"), folder + "\xA4\x42.ini");
}

}  // namespace
}  // namespace mv::files
