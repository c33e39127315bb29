// Read-only access to string values under the local-machine root of the registry.
// On POSIX the registry is a text file in the Windows registry export format ("Windows Registry
// Editor Version 5.00", UTF-16LE with BOM, or "REGEDIT4", bytes in the system code page; UTF-8
// is accepted too), so an administrator can export the key on Windows and copy it over. The file
// is MV_REGISTRY when set, else "registry.reg" in the machine folder.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace mv::registry {

// The string value `valueName` of the key `keyPath` under HKEY_LOCAL_MACHINE, for example
// ReadLocalMachineString("\\SOFTWARE\\Merovan\\Orvex4", "ServerPath"). Key paths match without
// regard to case and with or without a leading backslash; value names without regard to case.
// Returns nothing when the file, key or value is missing or the value is not a string value
// (REG_SZ). Never throws for a malformed file: bad lines are skipped.
std::optional<std::u16string> ReadLocalMachineString(std::string_view keyPath,
                                                     std::string_view valueName);

// The path of the registry file used on this machine (POSIX only).
std::string RegistryFilePath();

}  // namespace mv::registry
