// mvcommon: the command-line companion of the library. Dispatches to its subcommands; exit codes
// are the subcommand's (0 when done), 1 for an error the library raised, 2 for a command line it
// cannot follow.
#include <algorithm>
#include <cstdio>
#include <exception>
#include <string>
#include <string_view>

#include "platform/system/machine.h"
#include "tools/mvcommon/command_line.h"

namespace {

using mv::cli::Command;

// The program's usage: its commands with their summaries.
std::string Usage() {
  std::string usage =
      "Usage: mvcommon COMMAND [OPTIONS] [ARGUMENTS]\n"
      "\n"
      "Commands:\n";
  for (const Command* command : mv::cli::RegisteredCommands()) {
    std::string name(command->name);
    name.resize(std::max<size_t>(name.size() + 1, 13), ' ');
    usage += "  " + name + std::string(command->summary) + "\n";
  }
  usage += "\n\"mvcommon COMMAND --help\" describes a command and its options.\n";
  return usage;
}

void Print(std::FILE* stream, std::string_view text) {
  std::fwrite(text.data(), 1, text.size(), stream);
}

int UsageFailure(const std::string& message, std::string_view usage) {
  Print(stderr, "mvcommon: " + message + "\n\n");
  Print(stderr, usage);
  return 2;
}

const Command* FindCommand(std::string_view name) {
  for (const Command* command : mv::cli::RegisteredCommands()) {
    if (command->name == name) return command;
  }
  return nullptr;
}

int RunCommand(const Command& command, std::span<char* const> args) {
  try {
    mv::cli::ParsedArgs parsed =
        command.parse != nullptr ? command.parse(args) : mv::cli::ParseArgs(args, command.options);
    if (parsed.help) {
      Print(stdout, command.usage);
      return 0;
    }
    return command.run(parsed);
  } catch (const mv::cli::UsageError& error) {
    return UsageFailure(std::string(command.name) + ": " + error.what(), command.usage);
  } catch (const std::exception& error) {
    Print(stderr, "mvcommon: " + std::string(error.what()) + "\n");
    return 1;
  }
}

}  // namespace

int main(int argc, char** argv) {
  // Start-up boxes name the program, whatever its file is called.
  mv::sys::SetApplicationTitle("mvcommon");
  std::span<char* const> args(argv + 1, argc > 0 ? static_cast<size_t>(argc - 1) : 0);
  if (args.empty()) return UsageFailure("no command given", Usage());

  std::string_view first = args[0];
  if (first == "--help" || first == "-h") {
    Print(stdout, Usage());
    return 0;
  }
  const Command* command = FindCommand(first);
  if (command == nullptr)
    return UsageFailure("unknown command \"" + std::string(first) + "\"", Usage());
  int code = RunCommand(*command, args.subspan(1));
  std::fflush(stdout);
  return code;
}
