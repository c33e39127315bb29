// The mvcommon program on an installation whose folders have Chinese names (accented ones for the
// Western code page), run as the user would under each code page: start-up with its service
// package, running numbers, a lock and a temporary file. The folder names are UTF-8 on disk; the
// configuration inside is in the code page of the run.
#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "platform/codepage/codepage.h"
#include "tests/support/run_program.h"
#include "tests/support/temp_dir.h"

namespace mv::test {
namespace {

using Args = std::vector<std::string>;

struct TCodePageRun {
  const char* name;
  const char* mvCodePage;  // empty: the locale decides
  int codePage;            // the code page the run ends up with
  const char* folder;      // UTF-8
};

const TCodePageRun kRuns[] = {
    {"Big5", "950", 950, "報關"},
    {"Gbk", "936", 936, "報關"},
    {"Utf8", "65001", 65001, "報關"},
    {"CLocale", "", 1252, "Zoë"},
};

void PrintTo(const TCodePageRun& run, std::ostream* out) {
  *out << run.name;
}

class FileNamesCli : public ::testing::TestWithParam<TCodePageRun> {
 protected:
  FileNamesCli() {
    dir_.MakeDir(std::string(GetParam().folder) + "/server");
    dir_.Write(Relative("machine/registry.reg"),
               "Windows Registry Editor Version 5.00\n"
               "[HKEY_LOCAL_MACHINE\\SOFTWARE\\Merovan\\Orvex4]\n\"ServerPath\"=\"" +
                   Root() + "/server\"\n");
    std::filesystem::copy_file(SAMPLE_PACKAGE_DIR "/ALPHA.so", Root() + "/server/ALPHA.so");
    // Written in lower case, so that the start-up also finds it without regard to case.
    dir_.Write(Relative("server/sedifsys.ini"),
               "[SERVICES]\n1=ALPHA,a,1\n[Plugin]\nALPHA=" + Narrow(Root()) + "/server/ALPHA.so\n");
  }

  // The installation's folder, as the system names it (UTF-8).
  std::string Root() const { return dir_.File(GetParam().folder); }
  std::string Relative(const std::string& name) const {
    return std::string(GetParam().folder) + "/" + name;
  }
  // UTF-8 text in the code page of the run.
  std::string Narrow(const std::string& utf8) const {
    return codepage::FromWide(codepage::WideFromUtf8(utf8), GetParam().codePage);
  }
  // What the command prints; it must succeed.
  std::string Out(const Args& args) const {
    const RunResult run = RunProgram(MVCOMMON_PROGRAM, args);
    EXPECT_EQ(run.exitCode, 0) << run.err;
    return run.out;
  }

  TempDir dir_;
  ScopedEnv locale_{"LC_ALL", "C"};
  ScopedEnv codePage_{"MV_CODEPAGE", GetParam().mvCodePage};
  ScopedEnv packageLog_{"MV_PACKAGE_LOG", dir_.File("packages.log")};
  // Read back through the environment where no --machine-dir is given.
  ScopedEnv machine_{"MV_MACHINE_DIR", Root() + "/machine"};
};

TEST_P(FileNamesCli, StartsFromTheFolderAndLoadsItsPackage) {
  const Args settings = {"settings", "--machine-dir", Root() + "/machine"};
  for (const Args& args : {settings, Args{"settings", "--server-path", Root() + "/server"}}) {
    const std::string out = Out(args);
    ASSERT_FALSE(out.empty());
    const nlohmann::json state = nlohmann::json::parse(out);
    EXPECT_EQ(state["ServerPath"], Root() + "/server/");
    EXPECT_EQ(state["AryPkgInfo"][0]["Loaded"], true);
  }
  EXPECT_NE(dir_.Read("packages.log").find("ALPHA loaded\nALPHA 500\n"), std::string::npos);
}

TEST_P(FileNamesCli, RunningNumbersLocksAndTemporaryFilesInTheFolder) {
  EXPECT_EQ(Out({"seq", "--machine-dir", Root() + "/machine", "TDEC", "F2"}), "0002\n");
  EXPECT_NE(dir_.Read(Relative("server/sedifsys.ini")).find("F2="), std::string::npos);
  EXPECT_EQ(Out({"lock", "--base-path", Root(), "Stock", "0"}), "held\n");
  EXPECT_TRUE(std::filesystem::exists(Root() + "/Temp/Stock.lck"));
  const std::string made = Out({"tempname", Root() + "/server", ".tmp"});
  ASSERT_EQ(made.substr(0, 2), "0\n");
  const std::string name = made.substr(2, made.size() - 3);
  EXPECT_EQ(name.substr(0, Root().size() + 8), Root() + "/server/");
  EXPECT_TRUE(std::filesystem::is_regular_file(name));
}

INSTANTIATE_TEST_SUITE_P(CodePages, FileNamesCli, ::testing::ValuesIn(kRuns),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace mv::test
