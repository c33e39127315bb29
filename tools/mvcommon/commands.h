// The subcommands of the mvcommon program.
#pragma once

#include "tools/mvcommon/command_line.h"

namespace mv::cli {

// "settings": starts the library as a client does and prints the shared state as JSON.
extern const Command kSettingsCommand;
// "seq": prints the next running number or a configured text of the system configuration file.
extern const Command kSeqCommand;

}  // namespace mv::cli
