#include <gtest/gtest.h>

#include "platform/registry/registry.h"
#include "tests/support/temp_dir.h"

namespace mv::registry {
namespace {

constexpr char kKey[] = "\\SOFTWARE\\Merovan\\Orvex4";

std::string RegFile(std::string_view serverPath) {
  return "REGEDIT4\r\n\r\n[HKEY_LOCAL_MACHINE\\SOFTWARE\\Merovan\\Orvex4]\r\n\"ServerPath\"=\"" +
         std::string(serverPath) + "\"\r\n";
}

TEST(RegistryPosix, MachineFolderFileFoundWithoutRegardToCase) {
  test::TempDir dir;
  test::ScopedEnv noOverride("MV_REGISTRY", "");
  test::ScopedEnv machine("MV_MACHINE_DIR", dir.path());
  EXPECT_EQ(ReadLocalMachineString(kKey, "ServerPath"), std::nullopt);  // no file yet
  std::string path = dir.Write("REGISTRY.REG", RegFile("C:\\\\App\\\\Server\\\\"));
  EXPECT_EQ(RegistryFilePath(), path);
  EXPECT_EQ(ReadLocalMachineString("software\\merovan\\orvex4", "serverpath"),
            u"C:\\App\\Server\\");
}

TEST(RegistryPosix, RegistryVariableWinsOverMachineFolderAndIsReadInTheSystemCodePage) {
  test::TempDir dir;
  test::ScopedEnv codePage("MV_CODEPAGE", "950");
  dir.Write("machine/registry.reg", RegFile("machine"));
  test::ScopedEnv machine("MV_MACHINE_DIR", dir.File("machine"));
  test::ScopedEnv file("MV_REGISTRY",
                       dir.Write("elsewhere/exported.reg", RegFile("\xA6\xF8\xAA\x41\xBE\xB9")));
  EXPECT_EQ(ReadLocalMachineString(kKey, "ServerPath"), u"\u4f3a\u670d\u5668");
  test::ScopedEnv missing("MV_REGISTRY", dir.File("elsewhere/none.reg"));
  EXPECT_EQ(ReadLocalMachineString(kKey, "ServerPath"), std::nullopt);
}

}  // namespace
}  // namespace mv::registry
