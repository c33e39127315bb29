// mvcommon settings: starts the library of one product line on an installation and prints the
// shared state it loaded, then cleans up as the client does when it closes (so loaded service
// packages are told that the host is closing).
#include <cstdio>
#include <string>

#include "common/frame/startup.h"
#include "tools/mvcommon/command_line.h"
#include "tools/mvcommon/state_json.h"

namespace mv::cli {
namespace {

constexpr std::string_view kUsage =
    "Usage: mvcommon settings [--line orvex|quenta] [--machine-dir DIR] [--server-path DIR]\n"
    "\n"
    "Starts the library as a client of the product line does (Init, or Init_Quenta for quenta)\n"
    "and prints the shared state it loaded as one JSON object, texts in UTF-8.\n"
    "\n"
    "Options:\n"
    "  --line LINE         orvex (the default) or quenta\n"
    "  --machine-dir DIR   the machine folder holding registry.reg and WIN.INI\n"
    "                      (sets MV_MACHINE_DIR; MV_REGISTRY is then not used)\n"
    "  --server-path DIR   the server folder, instead of the registry's ServerPath\n"
    "  -h, --help          show this text\n"
    "\n"
    "When the server folder is missing, the start-up error box goes to standard error and the\n"
    "program ends with exit code 0, as the client does.\n";

constexpr std::string_view kOptions[] = {"line", "machine-dir", "server-path"};

int Run(const ParsedArgs& args) {
  if (!args.positionals.empty()) {
    throw UsageError("unexpected argument \"" + args.positionals.front() + "\"");
  }
  const std::string line = args.Option("line").value_or("orvex");
  if (line != "orvex" && line != "quenta") {
    throw UsageError("unknown product line \"" + line + "\" (orvex or quenta)");
  }
  const bool quenta = line == "quenta";

  UseInstallationOptions(args);
  quenta ? Init_Quenta() : Init();
  const std::string text =
      SharedStateJson().dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace) +
      "\n";
  std::fwrite(text.data(), 1, text.size(), stdout);
  std::fflush(stdout);
  quenta ? FreeStrList_Quenta() : FreeStrList();
  return 0;
}

constinit const Command kSettingsCommand{
    "settings", "start the library as a client does and print its settings as JSON", kUsage,
    kOptions, &Run};

}  // namespace

MV_CLI_COMMAND(kSettingsCommand);

}  // namespace mv::cli
