// mvcommon period: what a period preset of the list screens means: its caption, the first moment
// of its period for a given date, and the SQL date condition a screen adds to its query. Needs no
// installation.
#include <charconv>
#include <cmath>
#include <cstdio>
#include <optional>
#include <string>
#include <vector>

#include "common/dates/date_calendar.h"
#include "common/dates/date_param.h"
#include "common/text/lang_changer.h"
#include "platform/codepage/codepage.h"
#include "tools/mvcommon/command_line.h"

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
    "DATE is yyyy-mm-dd, optionally followed by T and hh:mm or hh:mm:ss (2024-03-31,\n"
    "2024-03-31T14:05:00).\n"
    "\n"
    "Options:\n"
    "  --lang en|zh   the language of the caption (English unless told)\n"
    "  -h, --help     show this text\n";

constexpr std::string_view kOptions[] = {"lang"};

void PrintLine(const std::string& utf8) {
  const std::string line = utf8 + "\n";
  std::fwrite(line.data(), 1, line.size(), stdout);
}

// The number of `width` digits at `at` of `text`, when it is there and within min .. max.
std::optional<int> Digits(std::string_view text, size_t at, size_t width, int min, int max) {
  if (at + width > text.size()) return std::nullopt;
  int value = 0;
  for (char c : text.substr(at, width)) {
    if (c < '0' || c > '9') return std::nullopt;
    value = value * 10 + (c - '0');
  }
  if (value < min || value > max) return std::nullopt;
  return value;
}

// A date in the ISO form the command reads; `withTime` tells whether a time was written.
struct IsoDate {
  TDateTime Date;
  bool WithTime = false;
};

std::optional<double> TimeOfDay(std::string_view text) {
  const auto hour = Digits(text, 0, 2, 0, 23);
  const auto minute = Digits(text, 3, 2, 0, 59);
  const bool secondsGiven = text.size() == 8;
  const auto second = secondsGiven ? Digits(text, 6, 2, 0, 59) : std::optional<int>(0);
  if ((text.size() != 5 && !secondsGiven) || !hour || !minute || !second || text[2] != ':' ||
      (secondsGiven && text[5] != ':'))
    return std::nullopt;
  return (*hour * 3600 + *minute * 60 + *second) / 86400.0;
}

IsoDate ReadDate(std::string_view text) {
  const auto year = Digits(text, 0, 4, 1, 9999);
  const auto month = Digits(text, 5, 2, 1, 12);
  const auto day = Digits(text, 8, 2, 1, 31);
  if (!year || !month || !day || text[4] != '-' || text[7] != '-' ||
      *day > DaysInMonth(*year, *month) || (text.size() > 10 && text[10] != 'T'))
    throw UsageError("DATE must be yyyy-mm-dd or yyyy-mm-ddThh:mm:ss: " + std::string(text));
  const int64_t dayNumber = DayNumberOf({*year, *month, *day});
  if (text.size() == 10) return {DateOf(dayNumber, 0.0), false};
  const auto time = TimeOfDay(text.substr(11));
  if (!time) throw UsageError("DATE has no valid time of day: " + std::string(text));
  return {DateOf(dayNumber, *time), true};
}

std::string IsoText(TDateTime date, bool withTime) {
  const TCalendarDate day = CalendarDateOf(DayOf(date));
  const int seconds = static_cast<int>(std::lround(TimeOf(date) * 86400.0)) % 86400;
  char text[64];
  std::snprintf(text, sizeof text, "%04d-%02d-%02d", static_cast<int>(day.Year), day.Month,
                day.Day);
  if (!withTime) return text;
  char time[64];
  std::snprintf(time, sizeof time, "T%02d:%02d:%02d", seconds / 3600, seconds / 60 % 60,
                seconds % 60);
  return std::string(text) + time;
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
  const IsoDate date = ReadDate(words[2]);
  if (action == "sql") {
    PrintLine("[" + param.GetBeforeDateSQL(date.Date) + "]");
  } else {
    const TDateTime first = param.GetRangeFromDate(date.Date);
    PrintLine(first.Days == 0.0 ? "0" : IsoText(first, date.WithTime));
  }
  return 0;
}

bool IsNegativeNumber(std::string_view word) {
  return word.size() > 1 && word[0] == '-' && word[1] >= '0' && word[1] <= '9';
}

// The words after "period", read as ParseArgs reads them except that a word such as -1D (a dash
// and a digit) is a preset text, not an option.
ParsedArgs ParsePeriodArgs(std::span<char* const> args) {
  std::vector<std::string> words(args.begin(), args.end());
  std::vector<std::string> presets;
  for (std::string& word : words) {
    if (!IsNegativeNumber(word)) continue;
    presets.push_back(word);
    word = "\x01" + std::to_string(presets.size() - 1);
  }
  std::vector<char*> pointers;
  for (std::string& word : words) pointers.push_back(word.data());
  ParsedArgs parsed = ParseArgs(pointers, kOptions);
  for (std::string& word : parsed.positionals) {
    size_t index = presets.size();
    if (word.size() > 1 && word[0] == '\x01')
      std::from_chars(word.data() + 1, word.data() + word.size(), index);
    if (index < presets.size()) word = presets[index];
  }
  return parsed;
}

constinit const Command kPeriodCommand{
    "period", "describe a period preset, its first date and its SQL date condition",
    kUsage,   kOptions,
    &Run,     &ParsePeriodArgs};

}  // namespace

MV_CLI_COMMAND(kPeriodCommand);

}  // namespace mv::cli
