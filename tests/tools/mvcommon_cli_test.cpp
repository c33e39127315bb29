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

// Runs the program with `args`.
RunResult RunProgram(const Args& args) {
  return test::RunProgram(MVCOMMON_PROGRAM, args);
}

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

  json Settings(Args options = {}) {
    options.insert(options.begin(), {"settings", "--machine-dir", Machine()});
    RunResult run = RunProgram(options);
    EXPECT_EQ(run.exitCode, 0) << run.err;
    return json::parse(run.out);
  }

  std::string Seq(const std::string& section, const std::string& key) {
    RunResult run = RunProgram({"seq", "--machine-dir", Machine(), section, key});
    EXPECT_EQ(run.exitCode, 0) << run.err;
    return run.out;
  }

  TempDir dir_;
};

TEST_F(MvcommonCli, SettingsPrintsTheSharedStateByVariableName) {
  Install(
      "[System]\nVersion=4.2.1\n[Property]\nDateTime=255\n[Receipient]\nECIC=ECICHK\n"
      "[SERVICES]\n2=ZED,second,0\n1=ALPHA,first,0\n[ALPHA_MENU]\na=Open Alpha\n"
      "[InboxMsgType]\nDeclaration=|HKTDLD|HKCTRA|\n[InboxAction]\nDeclaration=|V|P|\n"
      "[OutboxMsgType]\nDeclaration=|HKTDEC|\n");
  json state = Settings();

  // One key per shared variable; records keep their field counts.
  EXPECT_EQ(state.size(), 48u);
  EXPECT_EQ(state["Advance"].size(), 9u);
  EXPECT_EQ(state["Internet"].size(), 13u);
  EXPECT_EQ(state["CheckDupTDECSub"].size(), 6u);

  EXPECT_EQ(state["ServerPath"], Server() + "/");
  EXPECT_EQ(state["BasePath"], dir_.File("client/"));
  EXPECT_EQ(state["Version"], "4.2.1");
  EXPECT_EQ(state["Advance"]["ECIC"], "ECICHK");
  EXPECT_EQ(state["ColorRecord"], json({255, 0, 0, 0}));
  EXPECT_EQ(state["Internet"]["RASProfile"], "Office");
  EXPECT_EQ(state["Internet"]["LeaseLine"], true);
  EXPECT_EQ(state["AddonMenu"], json({"Open Alpha"}));
  EXPECT_EQ(state["AryPkgInfo"],
            json::parse(R"([{"ServiceName":"ALPHA","ServiceExtra":"first","Loaded":false},
                            {"ServiceName":"ZED","ServiceExtra":"second","Loaded":false}])"));
  EXPECT_EQ(state["BoxRec"][0][1], json::parse(R"({"name":"Declaration","code":"HKCTRA",
                                                   "action":"P"})"));
  EXPECT_EQ(state["BoxMsgType"], json::parse(R"([["|HKTDLD|HKCTRA|"],["|HKTDEC|"],[]])"));
}

TEST_F(MvcommonCli, QuentaLineUsesItsOwnRegistryKey) {
  dir_.Write("quenta/server/SEDIFSYS.INI", "[Halvo]\nMaxRecords=20000\n[Language]\nInterface=0\n");
  Install("", dir_.File("quenta/server"));
  json state = Settings({"--line", "quenta"});
  EXPECT_EQ(state["ServerPath"], dir_.File("quenta/server/"));
  EXPECT_EQ(state["giMaxRecords"], 20000);
  EXPECT_EQ(state["LanguageMode"], 0);
}

TEST_F(MvcommonCli, ServerFolderComesFromTheOptionOrEndsTheProgramAsTheClientDoes) {
  dir_.Write("other/SEDIFSYS.INI", "[System]\nVersion=9\n");
  Install("[System]\nVersion=1\n");
  EXPECT_EQ(Settings({"--server-path", dir_.File("other")})["Version"], "9");

  RunResult missing =
      RunProgram({"settings", "--machine-dir", Machine(), "--server-path", "/no/such"});
  EXPECT_EQ(missing.exitCode, 0);
  EXPECT_EQ(missing.out, "");
  EXPECT_NE(missing.err.find("Unable to initialize mvcommon. Server Path: \"/no/such\" not found. "
                             "Application Terminated."),
            std::string::npos)
      << missing.err;
}

TEST_F(MvcommonCli, NarrowTextsAndArgumentsPassThroughTheSystemCodePage) {
  ScopedEnv big5("MV_CODEPAGE", "950");
  // "中文" and "名稱" in Big5.
  Install(
      "[EMAIL_CONFIG]\nEDISubject=\xA4\xA4\xA4\xE5\n[Names]\n\xA6\x57\xBA\xD9=\xA4\xA4\xA4\xE5\n");
  EXPECT_EQ(Settings()["Internet"]["EDISubject"], "中文");
  EXPECT_EQ(Seq("Names", "名稱"), "中文\n");
}

TEST_F(MvcommonCli, SeqIssuesRunningNumbersAndReadsTexts) {
  Install("[System]\nVersion=4.2.1\n[TDEC]\nF2A=34\n");
  EXPECT_EQ(Seq("TDEC", "F2"), "0002\n");
  EXPECT_EQ(Seq("TDEC", "F2"), "0003\n");
  EXPECT_EQ(Seq("tdec", "F2A"), "000Z\n");
  EXPECT_NE(dir_.Read("client/server/SEDIFSYS.INI").find("F2=3"), std::string::npos);
  EXPECT_EQ(Seq("System", "Version"), "4.2.1\n");
  EXPECT_EQ(Seq("System", "Missing"), "ERRORINI\n");
}

TEST_F(MvcommonCli, HelpGoesToStandardOutputAndBadCommandLinesEndWithCodeTwo) {
  ScopedEnv machine("MV_MACHINE_DIR", Machine());
  Install("[TDEC]\nF2=1\n");
  for (const Args& args : {Args{"--help"}, {"settings", "--help"}, {"seq", "-h"}}) {
    RunResult run = RunProgram(args);
    EXPECT_EQ(run.exitCode, 0) << args.front();
    EXPECT_TRUE(run.out.starts_with("Usage: mvcommon")) << run.out;
  }
  for (const Args& args : {Args{},
                           {"frob"},
                           {"settings", "--bogus"},
                           {"settings", "-x"},
                           {"settings", "--line", "other"},
                           {"settings", "extra"},
                           {"seq", "TDEC"},
                           {"seq", "TDEC", "F2", "more"},
                           {"seq", "TDEC", "F2", "--machine-dir"}}) {
    RunResult run = RunProgram(args);
    EXPECT_EQ(run.exitCode, 2) << run.err;
    EXPECT_EQ(run.out, "");
    EXPECT_NE(run.err.find("Usage: mvcommon"), std::string::npos) << run.err;
  }
  EXPECT_NE(dir_.Read("client/server/SEDIFSYS.INI").find("F2=1"), std::string::npos);
}

TEST(MvcommonDemo, StartsWithItsPackagesAndWithoutAnErrorBox) {
  RunResult run = RunProgram({"settings", "--machine-dir", MV_DEMO_MACHINE_DIR});
  ASSERT_EQ(run.exitCode, 0);
  EXPECT_EQ(run.err, "TDEC started\nCOO started\nTDEC stopping\nCOO stopping\n");
  json state = json::parse(run.out);
  EXPECT_EQ(state["AryPkgInfo"][2]["Loaded"], false);
  for (const json& entry : state["BoxRec"][0]) EXPECT_NE(entry["action"], "") << entry;
}

}  // namespace
}  // namespace mv::test
