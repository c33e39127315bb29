// "mvcommon wildcard", run as a separate process: options, UTF-8 in and out, usage errors.
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/support/temp_dir.h"

extern char** environ;

namespace mv::test {
namespace {

struct RunResult {
  int exitCode = -1;
  std::string out, err;
};

RunResult RunWildcard(std::vector<std::string> args) {
  TempDir capture;
  args.insert(args.begin(), {MVCOMMON_PROGRAM, "wildcard"});
  std::vector<char*> argv;
  for (std::string& arg : args) argv.push_back(arg.data());
  argv.push_back(nullptr);
  posix_spawn_file_actions_t files;
  posix_spawn_file_actions_init(&files);
  posix_spawn_file_actions_addopen(&files, 1, capture.File("out").c_str(), O_WRONLY | O_CREAT,
                                   0600);
  posix_spawn_file_actions_addopen(&files, 2, capture.File("err").c_str(), O_WRONLY | O_CREAT,
                                   0600);
  pid_t pid = 0;
  int status = 0;
  RunResult result;
  if (posix_spawn(&pid, argv[0], &files, nullptr, argv.data(), environ) == 0 &&
      waitpid(pid, &status, 0) == pid && WIFEXITED(status))
    result.exitCode = WEXITSTATUS(status);
  posix_spawn_file_actions_destroy(&files);
  result.out = capture.Read("out");
  result.err = capture.Read("err");
  return result;
}

TEST(WildcardCommand, PrintsTheConditionOfEachTranslator) {
  ScopedEnv codePage("MV_CODEPAGE", "950");
  EXPECT_EQ(RunWildcard({"MsgRef", "A..C|X"}).out,
            "(((MsgRef >= 'A') and (MsgRef <= 'C')) or (MsgRef = 'X'))\n");
  EXPECT_EQ(RunWildcard({"MsgRef", "北_|四*"}).out,
            "((MsgRef like '北!_' Escape '!') or (MsgRef like '四%'))\n");
  EXPECT_EQ(RunWildcard({"--wide", "MsgRef", "報單*"}).out, "(MsgRef like N'報單%')\n");
  EXPECT_EQ(RunWildcard({"--mark", "--wide", "MsgRef", "50%"}).out,
            "(MsgRef like \x02"
            "50!%\x02 Escape '!')\n");
  EXPECT_EQ(RunWildcard({"--no-double-quotes", "F", "O'N"}).out, "(F = 'O'N')\n");
  EXPECT_EQ(RunWildcard({"F", "O'N"}).out, "(F = 'O''N')\n");
}

TEST(WildcardCommand, ParamsListsTheParametersInOrder) {
  EXPECT_EQ(RunWildcard({"--params", "MsgRef", "50%|A..M"}).out,
            "((MsgRef like :pTmp1 Escape '!') or ((MsgRef >= :pTmp2) and (MsgRef <= :pTmp3)))\n"
            "pTmp1\t50!%\npTmp2\tA\npTmp3\tM\n");
  EXPECT_EQ(RunWildcard({"--params", "F", "O'報*"}).out, "(F like :pTmp1)\npTmp1\tO'報%\n");
  EXPECT_EQ(RunWildcard({"--params", "F", "|"}).out, "\n");
}

TEST(WildcardCommand, EmptyConditionAndDashedPatterns) {
  const RunResult none = RunWildcard({"MsgRef", ".."});
  EXPECT_EQ(none.exitCode, 0);
  EXPECT_EQ(none.out, "\n");
  EXPECT_EQ(RunWildcard({"--", "F", "--wide"}).out, "(F = '--wide')\n");
}

TEST(WildcardCommand, CommandLinesItCannotFollow) {
  for (const std::vector<std::string>& args : {std::vector<std::string>{"F"},
                                               {"--mark", "F", "A"},
                                               {"--bogus", "F", "A"},
                                               {"--params", "--wide", "F", "A"}}) {
    const RunResult result = RunWildcard(args);
    EXPECT_EQ(result.exitCode, 2) << args[0];
    EXPECT_NE(result.err.find("Usage: mvcommon wildcard"), std::string::npos);
  }
  EXPECT_EQ(RunWildcard({"--help"}).exitCode, 0);
}

}  // namespace
}  // namespace mv::test
