#include "tools/mvcommon/command_line.h"

#include <algorithm>
#include <cstdlib>

#include "common/frame/startup.h"
#include "platform/files/file_names.h"

namespace mv::cli {
namespace {

// Filled by the commands' registrations during start-up, read only after main has begun.
std::vector<const Command*>& Commands() {
  static std::vector<const Command*> commands;
  return commands;
}

}  // namespace

bool RegisterCommand(const Command& command) {
  Commands().push_back(&command);
  return true;
}

std::vector<const Command*> RegisteredCommands() {
  std::vector<const Command*> sorted = Commands();
  std::ranges::sort(sorted, {}, &Command::name);
  return sorted;
}

std::optional<std::string> ParsedArgs::Option(std::string_view name) const {
  auto it = options.find(name);
  if (it == options.end()) return std::nullopt;
  return it->second;
}

ParsedArgs ParseArgs(std::span<char* const> args, std::span<const std::string_view> valued) {
  ParsedArgs parsed;
  bool optionsEnded = false;
  for (size_t i = 0; i < args.size(); ++i) {
    std::string_view word = args[i];
    const bool negativeNumber =
        word.size() > 1 && word[0] == '-' && word[1] >= '0' && word[1] <= '9';
    if (optionsEnded || word.size() < 2 || word[0] != '-' || negativeNumber) {
      parsed.positionals.emplace_back(word);
    } else if (word == "--") {
      optionsEnded = true;
    } else if (word == "--help" || word == "-h") {
      parsed.help = true;
    } else {
      std::string_view name = word.starts_with("--") ? word.substr(2) : std::string_view();
      std::optional<std::string_view> value;
      if (size_t equals = name.find('='); equals != std::string_view::npos) {
        value = name.substr(equals + 1);
        name = name.substr(0, equals);
      }
      if (name.empty() || std::find(valued.begin(), valued.end(), name) == valued.end()) {
        throw UsageError("unknown option \"" + std::string(word) + "\"");
      }
      if (!value) {
        if (i + 1 == args.size())
          throw UsageError("option --" + std::string(name) + " needs a value");
        value = args[++i];
      }
      parsed.options.insert_or_assign(std::string(name), std::string(*value));
    }
  }
  return parsed;
}

void UseInstallationOptions(const ParsedArgs& args) {
  if (auto machineDir = args.Option("machine-dir")) {
    ::setenv("MV_MACHINE_DIR", machineDir->c_str(), 1);
    ::unsetenv("MV_REGISTRY");
  }
  if (auto serverPath = args.Option("server-path")) {
    SetServerPathOverride(PathArgument(*serverPath));
  }
}

std::string PathArgument(std::string_view argument) {
  return files::DecodeFileName(argument);
}

std::string PrintedPath(const std::string& path) {
  return files::EncodeFileName(path).value_or(path);
}

}  // namespace mv::cli
