// mvcommon check: the input checks of the library from the command line, one answer per call, for
// trying out reference numbers, masks and field texts. The check characters, masks and numbers
// need no installation; "syntax" and "charset" start the library with Init (Orvex line) first,
// because the message the user sees comes from the installation's text catalogue and the
// Chinese classes from its code list.
#include <charconv>
#include <cstdio>
#include <string>
#include <vector>

#include "common/frame/errors.h"
#include "common/frame/shared_state.h"
#include "common/frame/startup.h"
#include "common/text/lang_changer.h"
#include "common/validate/check_digits.h"
#include "common/validate/syntax_checks.h"
#include "platform/codepage/codepage.h"
#include "platform/dialogs/dialogs.h"
#include "tools/mvcommon/command_line.h"

namespace mv::cli {
namespace {

constexpr std::string_view kUsage =
    "Usage: mvcommon check [--machine-dir DIR] [--server-path DIR] [--language N]\n"
    "                      CHECK ARGUMENTS...\n"
    "\n"
    "Runs one input check and prints its answer on one line:\n"
    "  mod11 TEXT                the modulus-11 check character of TEXT\n"
    "  mod36 TEXT                the modulus-36 check character of TEXT\n"
    "  base36 N                  the whole number N in base 36\n"
    "  digits TEXT               true when TEXT is digits 0-9 only (an empty TEXT too)\n"
    "  format VALUE MASK [OTHERS] true when VALUE fits MASK: A a letter, 9 a digit,\n"
    "                            X either, O one of the characters of OTHERS, * anything,\n"
    "                            any other character itself\n"
    "  float VALUE N X           true when VALUE is a number of at most N digits, at most\n"
    "                            X of them after the point\n"
    "  tabs LINE                 true when LINE holds a tab outside double quotes\n"
    "  syntax TEXT               true when TEXT holds only the document syntax characters\n"
    "  charset TEXT...           true when the Chinese characters of the TEXTs (one per\n"
    "                            field) are in the installation's code list\n"
    "A refused \"syntax\" or \"charset\" prints false and, on a second line, the message the\n"
    "user would see; \"charset\" ends with a line holding the document's character class:\n"
    "E English, C common Chinese, T Traditional, S Simplified, M both scripts. These two\n"
    "start the installation as \"mvcommon settings\" does (Orvex line). Texts are UTF-8;\n"
    "narrow checks see them in the user's code page. Every word that is not one of the\n"
    "options below is an argument, so negative numbers need no \"--\".\n"
    "\n"
    "Options:\n"
    "  --machine-dir DIR   the machine folder holding registry.reg and WIN.INI\n"
    "  --server-path DIR   the server folder, instead of the registry's ServerPath\n"
    "  --language N        the language of the message: 0 Chinese, 1 English,\n"
    "                      3 Simplified Chinese (default: the installation's, LanguageMode)\n"
    "  -h, --help          show this text\n";

void PrintLine(std::string_view utf8) {
  const std::string line = std::string(utf8) + "\n";
  std::fwrite(line.data(), 1, line.size(), stdout);
}

void PrintAnswer(bool answer) {
  PrintLine(answer ? "true" : "false");
}

std::string Narrow(const std::string& utf8) {
  return codepage::FromWide(codepage::WideFromUtf8(utf8), codepage::UserCodePage());
}

template <class Number>
Number NumberArgument(const std::string& text, const char* name) {
  Number value{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size())
    throw UsageError(std::string(name) + " must be a whole number");
  return value;
}

void NeedArguments(const std::vector<std::string>& args, size_t least, size_t most,
                   const char* what) {
  if (args.size() < least + 1 || args.size() > most + 1)
    throw UsageError("check " + args[0] + " takes " + what);
}

// Runs a check that tells the user itself: the message it would show is caught instead.
// Prints true, or false and the message; returns whether the check passed.
template <class Check>
bool RunTellingCheck(Check check) {
  dialogs::RecordingDialogProvider recorder;
  dialogs::ScopedProvider provider(recorder);
  try {
    check();
    PrintAnswer(true);
    return true;
  } catch (const EAbort&) {
    PrintAnswer(false);
    const auto& shown = recorder.Requests();
    PrintLine(shown.empty() ? std::string() : codepage::Utf8FromWide(shown.back().text));
    return false;
  }
}

int RunInstalled(const ParsedArgs& parsed) {
  const std::vector<std::string>& args = parsed.positionals;
  if (args[0] == "syntax") NeedArguments(args, 1, 1, "one TEXT");
  if (args[0] == "charset") NeedArguments(args, 1, SIZE_MAX - 1, "one TEXT or more");
  const auto language = parsed.Option("language");
  const uint8_t languageMode =
      language ? NumberArgument<uint8_t>(*language, "--language") : uint8_t{0};
  UseInstallationOptions(parsed);
  Init();
  LangChanger().SetLanguage(language ? languageMode : LanguageMode);
  if (args[0] == "syntax") {
    RunTellingCheck([&] { ChkSyntax(codepage::WideFromUtf8(args[1]), u"Text"); });
  } else {
    char charset = kCharsetEnglish;
    RunTellingCheck([&] {
      for (size_t i = 1; i < args.size(); ++i) {
        const std::u16string label = u"Text " + codepage::WideFromUtf8(std::to_string(i));
        ChkChiCharset(codepage::WideFromUtf8(args[i]), label, charset);
      }
    });
    PrintLine(std::string(1, charset));
  }
  std::fflush(stdout);
  FreeStrList();
  return 0;
}

int Run(const ParsedArgs& parsed) {
  const std::vector<std::string>& args = parsed.positionals;
  if (args.empty()) throw UsageError("CHECK is needed");
  const std::string& check = args[0];
  if (check == "syntax" || check == "charset") return RunInstalled(parsed);
  if (check == "mod11" || check == "mod36") {
    NeedArguments(args, 1, 1, "one TEXT");
    const std::string text = Narrow(args[1]);
    PrintLine(std::string(1, check == "mod11" ? Modulus11(text) : Modulus36(text)));
  } else if (check == "base36") {
    NeedArguments(args, 1, 1, "one N");
    PrintLine(mod36(NumberArgument<int64_t>(args[1], "N")));
  } else if (check == "digits") {
    NeedArguments(args, 1, 1, "one TEXT");
    PrintAnswer(ChkDigits(Narrow(args[1])));
  } else if (check == "format") {
    NeedArguments(args, 2, 3, "VALUE, MASK and maybe OTHERS");
    const TCharSet others = MakeCharSet(args.size() > 3 ? Narrow(args[3]) : std::string());
    PrintAnswer(
        ChkFormat(codepage::WideFromUtf8(args[1]), codepage::WideFromUtf8(args[2]), others));
  } else if (check == "float") {
    NeedArguments(args, 3, 3, "VALUE, N and X");
    PrintAnswer(ChkFloatFmt_NDotDotXCommaY(codepage::WideFromUtf8(args[1]),
                                           NumberArgument<int>(args[2], "N"),
                                           NumberArgument<int>(args[3], "X")));
  } else if (check == "tabs") {
    NeedArguments(args, 1, 1, "one LINE");
    PrintAnswer(IsTabDelimited(codepage::WideFromUtf8(args[1])));
  } else {
    throw UsageError("unknown check \"" + check + "\"");
  }
  return 0;
}

// Only --help, -h, --machine-dir, --server-path and --language (with their values) are options;
// "--" ends them; every other word is an argument, so that "-1.5" or "--" inside a text can be
// checked.
ParsedArgs ParseCheckArgs(std::span<char* const> args) {
  ParsedArgs parsed;
  bool optionsEnded = false;
  for (size_t i = 0; i < args.size(); ++i) {
    const std::string_view word = args[i];
    std::string_view name = word.substr(0, word.find('='));
    const bool valued = name == "--machine-dir" || name == "--server-path" || name == "--language";
    if (optionsEnded || !(valued || word == "--" || word == "--help" || word == "-h")) {
      parsed.positionals.emplace_back(word);
    } else if (word == "--") {
      optionsEnded = true;
    } else if (!valued) {
      parsed.help = true;
    } else if (name.size() < word.size()) {
      parsed.options.insert_or_assign(std::string(name.substr(2)),
                                      std::string(word.substr(name.size() + 1)));
    } else if (i + 1 < args.size()) {
      parsed.options.insert_or_assign(std::string(name.substr(2)), std::string(args[++i]));
    } else {
      throw UsageError("option " + std::string(name) + " needs a value");
    }
  }
  return parsed;
}

constinit const Command kCheckCommand{
    "check", "run one input check (check digits, masks, texts)", kUsage, {}, &Run, &ParseCheckArgs};

}  // namespace

MV_CLI_COMMAND(kCheckCommand);

}  // namespace mv::cli
