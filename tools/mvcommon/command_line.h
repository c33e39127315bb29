// Command-line handling shared by the subcommands of the mvcommon program.
#pragma once

#include <map>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace mv::cli {

// A command line the program cannot follow. The program prints the message and the usage of the
// command to standard error and exits with code 2.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// A subcommand's arguments, split into options and positional arguments (UTF-8, as given).
struct ParsedArgs {
  bool help = false;
  std::map<std::string, std::string, std::less<>> options;  // by name without the dashes
  std::vector<std::string> positionals;

  // The value of option `name`, or nothing when it was not given.
  std::optional<std::string> Option(std::string_view name) const;
};

// Splits `args` (the words after the subcommand). "--help" and "-h" set `help`; "--name VALUE"
// and "--name=VALUE" set an option when `name` is one of `valued` (the last one given wins); "--"
// makes every later word positional, as is every word not starting with "-", a lone "-" and a
// word of a dash and a digit (-1, -1D: negative numbers and period presets are never options).
// Throws UsageError for any other option and for an option without its value.
ParsedArgs ParseArgs(std::span<char* const> args, std::span<const std::string_view> valued);

// One subcommand of the program.
struct Command {
  std::string_view name;
  std::string_view summary;                   // one line for the program's usage, no line end
  std::string_view usage;                     // the whole usage text, ending with a line end
  std::span<const std::string_view> options;  // the options that take a value
  int (*run)(const ParsedArgs& args);         // the exit code
  // Splits the words after the command; ParseArgs with `options` when not set.
  ParsedArgs (*parse)(std::span<char* const> args) = nullptr;
};

// Adds `command` to the program's commands; returns true so that a command file can register
// itself with a namespace-scope `const bool` (see MV_CLI_COMMAND).
bool RegisterCommand(const Command& command);

// Every registered command, ordered by name.
std::vector<const Command*> RegisteredCommands();

// Registers the Command object `command` when the program starts.
#define MV_CLI_COMMAND(command) \
  [[maybe_unused]] const bool command##Registered = ::mv::cli::RegisterCommand(command)

// Uses the options --machine-dir and --server-path when given: the machine folder becomes
// MV_MACHINE_DIR (and MV_REGISTRY is dropped, so that the registry file in that folder counts);
// the server folder replaces the registry's ServerPath. Both are file names as PathArgument reads
// them.
void UseInstallationOptions(const ParsedArgs& args);

// A file name given on the command line (the system's bytes, UTF-8) as a narrow path of the
// library, in the system code page (files::DecodeFileName).
std::string PathArgument(std::string_view argument);

// A narrow path of the library as the bytes to print: the system's, as the user would type them.
std::string PrintedPath(const std::string& path);

}  // namespace mv::cli
