// mvcommon seq: the next running number (section TDEC) or a configured text of the system
// configuration file, through GetIniSeq. The library is started with the Orvex line's Init first,
// as every use of the library requires: it finds the installation the same way (and fails the
// same way) as the client and `settings`; service packages marked to load at start are loaded,
// told that the system started and, after the answer is printed, that it is closing.
#include <cstdio>
#include <string>

#include "common/frame/config_helpers.h"
#include "common/frame/startup.h"
#include "platform/codepage/codepage.h"
#include "tools/mvcommon/command_line.h"

namespace mv::cli {
namespace {

constexpr std::string_view kUsage =
    "Usage: mvcommon seq [--machine-dir DIR] [--server-path DIR] SECTION KEY\n"
    "\n"
    "Prints the answer of GetIniSeq for SECTION and KEY of the system configuration file\n"
    "(SEDIFSYS.INI): in section TDEC the next running number of KEY in base 36 (at least four\n"
    "characters; the number is written back), in any other section the text of KEY, or\n"
    "ERRORINI when it is missing. SECTION and KEY are UTF-8. The installation is found and\n"
    "started as by \"mvcommon settings\" (Orvex line).\n"
    "\n"
    "Options:\n"
    "  --machine-dir DIR   the machine folder holding registry.reg and WIN.INI\n"
    "                      (sets MV_MACHINE_DIR; MV_REGISTRY is then not used)\n"
    "  --server-path DIR   the server folder, instead of the registry's ServerPath\n"
    "  -h, --help          show this text\n";

constexpr std::string_view kOptions[] = {"machine-dir", "server-path"};

int Run(const ParsedArgs& args) {
  if (args.positionals.size() != 2) throw UsageError("SECTION and KEY are needed");
  UseInstallationOptions(args);
  Init();
  const std::string answer = GetIniSeq(codepage::SystemFromUtf8(args.positionals[0]),
                                       codepage::SystemFromUtf8(args.positionals[1]));
  // The answer goes out before the clean-up, so a package failing its closing notice cannot
  // lose a number that was already written back.
  const std::string line = codepage::Utf8FromSystem(answer) + "\n";
  std::fwrite(line.data(), 1, line.size(), stdout);
  std::fflush(stdout);
  FreeStrList();
  return 0;
}

constinit const Command kSeqCommand{
    "seq", "issue the next running number, or print a configured text", kUsage, kOptions, &Run};

}  // namespace

MV_CLI_COMMAND(kSeqCommand);

}  // namespace mv::cli
