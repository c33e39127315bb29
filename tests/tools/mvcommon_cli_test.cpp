// The mvcommon program, run as a separate process on installations made in a temporary folder.
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "tests/support/run_program.h"
#include "tests/support/temp_dir.h"

namespace mv::test {
namespace {

using json = nlohmann::ordered_json;
using Args = std::vector<std::string>;

// An installation: server folder <tmp>/client/server, machine folder <tmp>/machine whose
// registry points the Orvex line (and the Quenta line unless told otherwise) at the server folder.
class MvcommonCli : public ::testing::Test {
 protected:
  std::string Server() const { return dir_.File("client/server"); }
  std::string Machine() const { return dir_.File("machine"); }

  void Install(std::string_view systemIni, const std::string& quentaServer = "") {
    dir_.Write("client/server/SEDIFSYS.INI", systemIni);
    dir_.Write("machine/WIN.INI", "[MEROVAN_CONNECTION]\nRASProfile=Office\nLeaseLine=1\n");
    const std::string key = "]\n\"ServerPath\"=\"";
    dir_.Write(
        "machine/registry.reg",
        "Windows Registry Editor Version 5.00\n[HKEY_LOCAL_MACHINE\\SOFTWARE\\Merovan\\Orvex4" +
            key + Server() + "\"\n[HKEY_LOCAL_MACHINE\\SOFTWARE\\Merovan\\QNVS4" + key +
            (quentaServer.empty() ? Server() : quentaServer) + "\"\n");
  }

  // What the command prints when run on this installation; it must succeed.
  std::string Out(Args args) {
    args.insert(args.begin() + 1, {"--machine-dir", Machine()});
    RunResult run = RunProgram(MVCOMMON_PROGRAM, args);
    EXPECT_EQ(run.exitCode, 0) << run.err;
    return run.out;
  }
  json Settings(Args options = {}) {
    options.insert(options.begin(), "settings");
    return json::parse(Out(options));
  }

  TempDir dir_;
};

TEST_F(MvcommonCli, SettingsPrintsTheSharedStateByVariableName) {
  Install(
      "[Property]\nDateTime=255\n[Receipient]\nECIC=ECICHK\n"
      "[SERVICES]\n2=ZED,second,0\n1=ALPHA,first,0\n[ALPHA_MENU]\na=Open Alpha\n"
      "[InboxMsgType]\nDeclaration=|HKTDLD|HKCTRA|\n[InboxAction]\nDeclaration=|V|P|\n"
      "[OutboxMsgType]\nDeclaration=|HKTDEC|\n");
  json state = Settings();
  EXPECT_EQ(state["Advance"]["ECIC"], "ECICHK");
  EXPECT_EQ(state["ColorRecord"], json({255, 0, 0, 0}));
  EXPECT_EQ(state["Internet"]["LeaseLine"], true);  // from the machine's WIN.INI
  EXPECT_EQ(state["AddonMenu"], json({"Open Alpha"}));
  EXPECT_EQ(state["AryPkgInfo"],
            json::parse(R"([{"ServiceName":"ALPHA","ServiceExtra":"first","Loaded":false},
                            {"ServiceName":"ZED","ServiceExtra":"second","Loaded":false}])"));
  EXPECT_EQ(state["BoxRec"][0][1], json::parse(R"({"name":"Declaration","code":"HKCTRA",
                                                   "action":"P"})"));
  EXPECT_EQ(state["BoxMsgType"], json::parse(R"([["|HKTDLD|HKCTRA|"],["|HKTDEC|"],[]])"));
}

// Each line reads its own registry key; --server-path overrides both; a missing server folder
// ends the program as it ends the client.
TEST_F(MvcommonCli, ServerFolderComesFromTheLinesKeyOrTheOption) {
  dir_.Write("quenta/server/SEDIFSYS.INI", "[Halvo]\nMaxRecords=20000\n");
  dir_.Write("other/SEDIFSYS.INI", "[System]\nVersion=9\n");
  Install("[System]\nVersion=1\n", dir_.File("quenta/server"));
  json quenta = Settings({"--line", "quenta"});
  EXPECT_EQ(quenta["ServerPath"], dir_.File("quenta/server/"));
  EXPECT_EQ(quenta["giMaxRecords"], 20000);
  EXPECT_EQ(Settings({"--server-path", dir_.File("other")})["Version"], "9");

  RunResult missing = RunProgram(
      MVCOMMON_PROGRAM, {"settings", "--machine-dir", Machine(), "--server-path", "/no/such"});
  EXPECT_EQ(missing.exitCode, 0);
  EXPECT_EQ(missing.out, "");
  EXPECT_NE(missing.err.find("Unable to initialize mvcommon. Server Path: \"/no/such\" not found. "
                             "Application Terminated."),
            std::string::npos)
      << missing.err;
}

// Each run of seq is its own process: the number one writes back is read by the next. Narrow
// texts and arguments pass through the system code page.
TEST_F(MvcommonCli, SeqIssuesNumbersAcrossRunsAndTextsInBig5) {
  ScopedEnv big5("MV_CODEPAGE", "950");
  // "中文" and "名稱" in Big5.
  Install(
      "[EMAIL_CONFIG]\nEDISubject=\xA4\xA4\xA4\xE5\n[Names]\n\xA6\x57\xBA\xD9=\xA4\xA4\xA4\xE5\n");
  EXPECT_EQ(Out({"seq", "TDEC", "F2"}), "0002\n");
  EXPECT_EQ(Out({"seq", "TDEC", "F2"}), "0003\n");
  EXPECT_EQ(Out({"seq", "Names", "名稱"}), "中文\n");
  EXPECT_EQ(Settings()["Internet"]["EDISubject"], "中文");
}

TEST_F(MvcommonCli, HelpGoesToStandardOutputAndBadCommandLinesEndWithCodeTwo) {
  ScopedEnv machine("MV_MACHINE_DIR", Machine());
  Install("[TDEC]\nF2=1\n");
  for (const Args& args : {Args{"--help"}, {"seq", "-h"}}) {
    RunResult run = RunProgram(MVCOMMON_PROGRAM, args);
    EXPECT_EQ(run.exitCode, 0) << args.front();
    EXPECT_TRUE(run.out.starts_with("Usage: mvcommon")) << run.out;
  }
  for (const Args& args : {Args{},
                           {"frob"},
                           {"settings", "-x"},
                           {"settings", "--line", "other"},
                           {"settings", "extra"},
                           {"seq", "TDEC"},
                           {"seq", "TDEC", "F2", "--machine-dir"}}) {
    RunResult run = RunProgram(MVCOMMON_PROGRAM, args);
    EXPECT_EQ(run.exitCode, 2) << run.err;
    EXPECT_EQ(run.out, "");
    EXPECT_NE(run.err.find("Usage: mvcommon"), std::string::npos) << run.err;
  }
  EXPECT_NE(dir_.Read("client/server/SEDIFSYS.INI").find("F2=1"), std::string::npos);
}

TEST(MvcommonDemo, StartsWithItsPackagesAndWithoutAnErrorBox) {
  RunResult run = RunProgram(MVCOMMON_PROGRAM, {"settings", "--machine-dir", MV_DEMO_MACHINE_DIR});
  ASSERT_EQ(run.exitCode, 0);
  EXPECT_EQ(run.err, "TDEC started\nCOO started\nTDEC stopping\nCOO stopping\n");
  json state = json::parse(run.out);
  EXPECT_EQ(state["AryPkgInfo"][2]["Loaded"], false);
  for (const json& entry : state["BoxRec"][0]) EXPECT_NE(entry["action"], "") << entry;
}

}  // namespace
}  // namespace mv::test
