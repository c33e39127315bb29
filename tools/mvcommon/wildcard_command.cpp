// mvcommon wildcard: the SQL condition the library makes of a user's search pattern, for checking
// what a search screen will ask the database. Needs no installation.
#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "common/search/param_list.h"
#include "common/search/wildcard.h"
#include "common/text/conversions.h"
#include "platform/codepage/codepage.h"
#include "tools/mvcommon/command_line.h"

namespace mv::cli {
namespace {

constexpr std::string_view kUsage =
    "Usage: mvcommon wildcard [--wide] [--mark] [--no-double-quotes] COLUMN PATTERN\n"
    "       mvcommon wildcard --params COLUMN PATTERN\n"
    "\n"
    "Prints the SQL condition that ChangeWildCard makes of PATTERN for COLUMN, and a line end;\n"
    "a pattern that gives no condition prints an empty line. In a pattern \"*\" stands for any\n"
    "characters, \"?\" for one, \"|\" separates alternatives and \"..\" the bounds of a range.\n"
    "COLUMN, PATTERN and the output are UTF-8.\n"
    "\n"
    "With --params, prints what AddWildCard appends to a query without parameters: the\n"
    "condition with parameters in place of the pattern's words on the first line, then one\n"
    "line per parameter: its name, a tab and its value.\n"
    "\n"
    "Options:\n"
    "  --wide               the wide translator, literals written N'...'\n"
    "  --mark               with --wide: literals between WideLiteralMark characters (U+0002,\n"
    "                       printed raw)\n"
    "  --no-double-quotes   leave quotes of the pattern single\n"
    "  --params             the condition as AddWildCard attaches it, and its parameters\n"
    "  -h, --help           show this text\n";

constexpr std::string_view kSwitches[] = {"--wide", "--mark", "--no-double-quotes", "--params"};

void PrintLine(const std::string& utf8) {
  const std::string line = utf8 + "\n";
  std::fwrite(line.data(), 1, line.size(), stdout);
}

std::string Narrow(const std::string& utf8) {
  return codepage::FromWide(codepage::WideFromUtf8(utf8), codepage::UserCodePage());
}

// The pattern as a carrier of plain text: a U+0002 typed into it opens no literal.
std::u16string Pattern(const std::string& utf8) {
  return MV_WideStringToWideVc(codepage::WideFromUtf8(utf8));
}

int RunParams(const std::string& column, const std::string& pattern) {
  TParamList params;
  PrintLine(codepage::Utf8FromWide(
      GetWildCard(ChangeWildCard(column, Pattern(pattern), false, true), true, params)));
  for (size_t i = 0; i < params.size(); ++i)
    PrintLine("pTmp" + std::to_string(i + 1) + "\t" +
              codepage::Utf8FromWide(params[i].Value.AsWideString()));
  return 0;
}

int Run(const ParsedArgs& args) {
  if (args.positionals.size() != 2) throw UsageError("COLUMN and PATTERN are needed");
  if (args.Option("params") && args.options.size() > 1)
    throw UsageError("--params takes no other option");
  const bool wide = args.Option("wide").has_value();
  const bool mark = args.Option("mark").has_value();
  const bool doubleQuotes = !args.Option("no-double-quotes").has_value();
  if (mark && !wide) throw UsageError("--mark needs --wide");
  const std::string column = Narrow(args.positionals[0]);
  const std::string& pattern = args.positionals[1];
  if (args.Option("params")) return RunParams(column, pattern);
  if (wide) {
    PrintLine(codepage::Utf8FromWide(ChangeWildCard(column, Pattern(pattern), doubleQuotes, mark)));
  } else {
    const std::string condition = ChangeWildCard(column, Narrow(pattern), doubleQuotes);
    PrintLine(codepage::Utf8FromWide(codepage::ToWide(condition, codepage::UserCodePage())));
  }
  return 0;
}

// The words after "wildcard" with its on/off switches (--wide, --mark, --no-double-quotes,
// --params) taken out first and set as options of an empty value; the rest is read as ParseArgs
// reads it.
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

constinit const Command kWildcardCommand{"wildcard", "print the SQL condition of a search pattern",
                                         kUsage,     {},
                                         &Run,       &ParseWildcardArgs};

}  // namespace

MV_CLI_COMMAND(kWildcardCommand);

}  // namespace mv::cli
