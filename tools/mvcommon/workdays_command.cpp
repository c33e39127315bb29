// mvcommon workdays: whole months and days between two dates once the Sundays and public
// holidays directly before the later date are discounted (GetMonthDay), for checking a report's
// figures against the holiday tables of the main database.
#include <cstdio>
#include <string>

#include "common/dates/working_days.h"
#include "common/text/lang_changer.h"
#include "tools/mvcommon/command_line.h"
#include "tools/mvcommon/database_option.h"
#include "tools/mvcommon/iso_date.h"

namespace mv::cli {
namespace {

constexpr std::string_view kUsage =
    "Usage: mvcommon workdays [--db CONNECTION] [--lang 0|1|3] DATE1 DATE2\n"
    "\n"
    "Prints \"MONTHS DAYS\": the whole months and days from DATE2 to DATE1 (the later date),\n"
    "measured to the first day of the stretch of Sundays and holidays that directly precedes\n"
    "DATE1, as GetMonthDay counts them; 0 0 when that day is earlier than DATE2, 99 (or 98)\n"
    "months for dates two or more years apart. Dates are yyyy-mm-dd, optionally with a time\n"
    "(yyyy-mm-ddThh:mm[:ss]).\n"
    "\n"
    "Options:\n"
    "  --db CONNECTION   the main database: sqlite:PATH or odbc:CONNECTION-STRING (default:\n"
    "                    MV_DBMAIN, else the demo database)\n"
    "  --lang 0|1|3      the language value choosing the holiday table: 0 ZHoliday (Chinese,\n"
    "                    the default), 1 Holiday (English), 3 YHoliday (Simplified Chinese)\n"
    "  -h, --help        show this text\n";

constexpr std::string_view kOptions[] = {kDatabaseOption, "lang"};

uint8_t Language(const ParsedArgs& args) {
  const std::string value = args.Option("lang").value_or("0");
  if (value == "0" || value == "1" || value == "3") return static_cast<uint8_t>(value[0] - '0');
  throw UsageError("--lang must be 0, 1 or 3: " + value);
}

int Run(const ParsedArgs& args) {
  if (args.positionals.size() != 2) throw UsageError("DATE1 and DATE2 are needed");
  const TDateTime date1 = ReadIsoDate(args.positionals[0], "DATE1");
  const TDateTime date2 = ReadIsoDate(args.positionals[1], "DATE2");
  LangChanger().SetLanguage(Language(args));
  OpenMainDatabase(args);
  uint16_t months = 0, days = 0;
  GetMonthDay(date1, date2, months, days);
  std::printf("%u %u\n", unsigned{months}, unsigned{days});
  return 0;
}

constinit const Command kWorkdaysCommand{
    "workdays", "count the months and days between two dates, holidays discounted", kUsage,
    kOptions, &Run};

}  // namespace

MV_CLI_COMMAND(kWorkdaysCommand);

}  // namespace mv::cli
