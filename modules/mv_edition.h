// Which edition an installation is.
#pragma once

#include <string>

namespace mv::ini {
class TIniFile;
}

namespace mv::modules {

// True when the system configuration file at `iniPath` names the Halvo edition: its key
// [System] Edition holds "Halvo" (compared without regard to case, blanks around it ignored).
// A missing file or key means another edition.
bool MV_IsHalvo(const std::string& iniPath);
// The same question of a system configuration file already open.
bool MV_IsHalvo(const ini::TIniFile& systemIni);

}  // namespace mv::modules
