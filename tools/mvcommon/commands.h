// The subcommands of the mvcommon program.
#pragma once

#include "tools/mvcommon/command_line.h"

namespace mv::cli {

// "settings": starts the library as a client does and prints the shared state as JSON.
extern const Command kSettingsCommand;
// "seq": prints the next running number or a configured text of the system configuration file.
extern const Command kSeqCommand;
// "wildcard": prints the SQL condition of a search pattern.
extern const Command kWildcardCommand;

// The words after "wildcard" with its on/off switches (--wide, --mark, --no-double-quotes) taken
// out first and set as options of an empty value; the rest is read as ParseArgs reads it.
ParsedArgs ParseWildcardArgs(std::span<char* const> args);

}  // namespace mv::cli
