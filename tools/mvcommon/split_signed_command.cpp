// mvcommon split-signed: splits a signed message file into its document part (".d") and its
// signature part (".s") with XMLInitMsgList, as the client does before it checks a signature.
// Needs no installation.
#include <cstdio>
#include <string>

#include "common/services/signed_files.h"
#include "tools/mvcommon/command_line.h"

namespace mv::cli {
namespace {

constexpr std::string_view kUsage =
    "Usage: mvcommon split-signed FILE\n"
    "\n"
    "Splits the signed message file FILE with XMLInitMsgList: its lines are trimmed and joined,\n"
    "the text through the opening <electronicSignature> tag is written to FILE with the\n"
    "extension .d, the text between the tags to FILE with the extension .s. Prints the result\n"
    "code on the first line and, when it is 0, the document file and the signature file on the\n"
    "next two. Codes: 0 done, -1 no file name, -2 file not found, -3 file not readable, -4 part\n"
    "files not writable, -11 no signature tags, -12 closing tag only, -13 opening tag only,\n"
    "-14 closing tag before opening tag. The exit code is 0 when the split was done, else 1.\n"
    "\n"
    "Options:\n"
    "  -h, --help   show this text\n";

void PrintLine(const std::string& text) {
  const std::string line = text + "\n";
  std::fwrite(line.data(), 1, line.size(), stdout);
}

int Run(const ParsedArgs& args) {
  if (args.positionals.size() != 1) throw UsageError("FILE is needed");
  std::string dataFile, sigFile;
  const int code = XMLInitMsgList(PathArgument(args.positionals[0]), dataFile, sigFile);
  PrintLine(std::to_string(code));
  if (code != kSplitDone) return 1;
  PrintLine(PrintedPath(dataFile));
  PrintLine(PrintedPath(sigFile));
  return 0;
}

constinit const Command kSplitSignedCommand{
    "split-signed",
    "split a signed message file into its document and signature parts",
    kUsage,
    {},
    &Run};

}  // namespace

MV_CLI_COMMAND(kSplitSignedCommand);

}  // namespace mv::cli
