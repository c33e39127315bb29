// mvcommon wildcard: the SQL condition the library makes of a user's search pattern, for checking
// what a search screen will ask the database. Needs no installation.
#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "common/search/wildcard.h"
#include "platform/codepage/codepage.h"
#include "tools/mvcommon/commands.h"

namespace mv::cli {
namespace {

constexpr std::string_view kUsage =
    "Usage: mvcommon wildcard [--wide] [--mark] [--no-double-quotes] COLUMN PATTERN\n"
    "\n"
    "Prints the SQL condition that ChangeWildCard makes of PATTERN for COLUMN, and a line end;\n"
    "a pattern that gives no condition prints an empty line. In a pattern \"*\" stands for any\n"
    "characters, \"?\" for one, \"|\" separates alternatives and \"..\" the bounds of a range.\n"
    "COLUMN, PATTERN and the output are UTF-8.\n"
    "\n"
    "Options:\n"
    "  --wide               the wide translator, literals written N'...'\n"
    "  --mark               with --wide: literals between WideLiteralMark characters (U+0002,\n"
    "                       printed raw)\n"
    "  --no-double-quotes   leave quotes of the pattern single\n"
    "  -h, --help           show this text\n";

constexpr std::string_view kSwitches[] = {"--wide", "--mark", "--no-double-quotes"};

void PrintLine(const std::string& utf8) {
  const std::string line = utf8 + "\n";
  std::fwrite(line.data(), 1, line.size(), stdout);
}

std::string Narrow(const std::string& utf8) {
  return codepage::FromWide(codepage::WideFromUtf8(utf8), codepage::UserCodePage());
}

int Run(const ParsedArgs& args) {
  if (args.positionals.size() != 2) throw UsageError("COLUMN and PATTERN are needed");
  const bool wide = args.Option("wide").has_value();
  const bool mark = args.Option("mark").has_value();
  const bool doubleQuotes = !args.Option("no-double-quotes").has_value();
  if (mark && !wide) throw UsageError("--mark needs --wide");
  const std::string column = Narrow(args.positionals[0]);
  const std::string& pattern = args.positionals[1];
  if (wide) {
    PrintLine(codepage::Utf8FromWide(
        ChangeWildCard(column, codepage::WideFromUtf8(pattern), doubleQuotes, mark)));
  } else {
    const std::string condition = ChangeWildCard(column, Narrow(pattern), doubleQuotes);
    PrintLine(codepage::Utf8FromWide(codepage::ToWide(condition, codepage::UserCodePage())));
  }
  return 0;
}

}  // namespace

ParsedArgs ParseWildcardArgs(std::span<char* const> args) {
  std::vector<char*> rest;
  std::vector<std::string> switches;
  bool optionsEnded = false;
  for (char* word : args) {
    const std::string_view text = word;
    optionsEnded = optionsEnded || text == "--";
    const bool isSwitch = !optionsEnded && std::find(std::begin(kSwitches), std::end(kSwitches),
                                                     text) != std::end(kSwitches);
    if (isSwitch) {
      switches.emplace_back(text.substr(2));
    } else {
      rest.push_back(word);
    }
  }
  ParsedArgs parsed = ParseArgs(rest, {});
  for (const std::string& name : switches) parsed.options.insert_or_assign(name, "");
  return parsed;
}

constinit const Command kWildcardCommand{"wildcard", kUsage, {}, &Run};

}  // namespace mv::cli
