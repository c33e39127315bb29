// mvcommon period: what a period preset of the list screens means: its caption, the first moment
// of its period for a given date, and the SQL date condition a screen adds to its query. Needs no
// installation.
#include <cstdio>
#include <string>
#include <vector>

#include "common/dates/date_param.h"
#include "common/text/lang_changer.h"
#include "platform/codepage/codepage.h"
#include "tools/mvcommon/command_line.h"
#include "tools/mvcommon/iso_date.h"

namespace mv::cli {
namespace {

constexpr std::string_view kUsage =
    "Usage: mvcommon period describe TEXT [--lang en|zh]\n"
    "       mvcommon period range TEXT DATE\n"
    "       mvcommon period sql TEXT DATE\n"
    "\n"
    "TEXT is a period preset in its stored form: a count and a unit letter D, W, M or Y\n"
    "(1W, 3M, 1Y); -1D, the empty text and any unreadable text mean all dates.\n"
    "\n"
    "  describe   prints the caption a period combo box shows (Last 3 Months, [All]),\n"
    "             in English or, with --lang zh, in Chinese (UTF-8)\n"
    "  range      prints the first moment of the period that ends at DATE, in the form DATE\n"
    "             was given; all dates print 0\n"
    "  sql        prints the SQL Server date expression of that moment between square\n"
    "             brackets, so that its blanks show; all dates print []\n"
    "\n"
    "DATE is yyyy-mm-dd, optionally followed by T (or a blank) and hh:mm or hh:mm:ss\n"
    "(2024-03-31, 2024-03-31T14:05:00); range prints the time when DATE has one.\n"
    "\n"
    "Options:\n"
    "  --lang en|zh   the language of the caption (English unless told)\n"
    "  -h, --help     show this text\n";

constexpr std::string_view kOptions[] = {"lang"};

void PrintLine(const std::string& utf8) {
  const std::string line = utf8 + "\n";
  std::fwrite(line.data(), 1, line.size(), stdout);
}

int Describe(const TDateParam& param, const ParsedArgs& args) {
  const std::string lang = args.Option("lang").value_or("en");
  if (lang != "en" && lang != "zh") throw UsageError("--lang must be en or zh");
  LangChanger().SetLanguage(lang == "en" ? kLangEnglish : kLangChinese);
  PrintLine(codepage::Utf8FromWide(param.DescriptionW()));
  return 0;
}

int Run(const ParsedArgs& args) {
  const std::vector<std::string>& words = args.positionals;
  if (words.empty()) throw UsageError("an action (describe, range or sql) is needed");
  const std::string& action = words[0];
  const size_t needed = action == "describe" ? 2 : 3;
  if (action != "describe" && action != "range" && action != "sql")
    throw UsageError("unknown action: " + action);
  if (words.size() != needed)
    throw UsageError(action + " needs TEXT" + (needed == 3 ? " DATE" : ""));
  if (action != "describe" && args.Option("lang")) throw UsageError("--lang is for describe");
  const TDateParam param = ParseDateParam(words[1]);
  if (action == "describe") return Describe(param, args);
  const IsoDate date = ReadIsoDateTime(words[2], "DATE");
  if (action == "sql") {
    // Appended rather than "[" + text + "]", which GCC 12 at -O3 takes for an overlapping copy.
    std::string line(1, '[');
    line += param.GetBeforeDateSQL(date.Date);
    line += ']';
    PrintLine(line);
  } else {
    const TDateTime first = param.GetRangeFromDate(date.Date);
    PrintLine(first.Days == 0.0 ? "0" : IsoText(first, date.WithTime));
  }
  return 0;
}

constinit const Command kPeriodCommand{
    "period", "describe a period preset, its first date and its SQL date condition", kUsage,
    kOptions, &Run};

}  // namespace

MV_CLI_COMMAND(kPeriodCommand);

}  // namespace mv::cli
