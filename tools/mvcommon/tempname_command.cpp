// mvcommon tempname: makes a unique temporary file with GetTemporaryFile and prints its result and
// the file's name. Needs no installation.
#include <cstdio>
#include <string>

#include "common/processes/temporary_file.h"
#include "tools/mvcommon/command_line.h"

namespace mv::cli {
namespace {

constexpr std::string_view kUsage =
    "Usage: mvcommon tempname FOLDER EXT\n"
    "\n"
    "Makes a new empty file with a unique eight-character name in FOLDER, with the extension\n"
    "EXT (with its dot, e.g. .tmp), as GetTemporaryFile does, and prints two lines: the result\n"
    "(0 when the file was made, -1 when all 1000 names were taken or the folder cannot be\n"
    "written) and the file's full name (the last name tried on failure). Exit code 0 when the\n"
    "file was made, 3 when not. FOLDER and EXT are used as given.\n"
    "\n"
    "Options:\n"
    "  -h, --help   show this text\n";

int Run(const ParsedArgs& args) {
  if (args.positionals.size() != 2) throw UsageError("FOLDER and EXT are needed");
  std::string name;
  const int32_t result =
      GetTemporaryFile(PathArgument(args.positionals[0]), PathArgument(args.positionals[1]), name);
  const std::string text = std::to_string(result) + "\n" + PrintedPath(name) + "\n";
  std::fwrite(text.data(), 1, text.size(), stdout);
  return result == 0 ? 0 : 3;
}

constinit const Command kTempnameCommand{
    "tempname", "make a uniquely named temporary file and print its name", kUsage, {}, &Run};

}  // namespace

MV_CLI_COMMAND(kTempnameCommand);

}  // namespace mv::cli
