// Read-only access to string values under the local-machine root of the registry: on Windows the
// system's registry, on POSIX a file.
// On POSIX the registry is a text file in the Windows registry export format ("Windows Registry
// Editor Version 5.00", UTF-16LE with BOM, or "REGEDIT4", bytes in the system code page; UTF-8
// is accepted too), so an administrator can export the key on Windows and copy it over. The file
// is MV_REGISTRY when set, else "registry.reg" in the machine folder; reg_file_parser.h lists the
// lines it understands. The file is read again on every call, so edits show at once. Lines that
// cannot be read are skipped and reported on standard error ("file, line N: ...") the first time
// the file is read.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace mv::registry {

// The string value `valueName` of the key `keyPath` under HKEY_LOCAL_MACHINE, for example
// ReadLocalMachineString("\\SOFTWARE\\Merovan\\Orvex4", "ServerPath"); both are narrow text in
// the system code page. Key paths match without regard to case and with or without a leading
// backslash; value names without regard to case; an empty value name is the key's default value.
// Returns the value as wide text, or nothing when the file, key or value is missing or the value
// is not a string value. String values are REG_SZ and also REG_EXPAND_SZ, returned as stored
// (environment references such as %SystemRoot% are not expanded). When the file sets a key or
// value twice, the later one counts, as importing the file would leave it. Never throws for a
// malformed file: bad lines are skipped.
std::optional<std::u16string> ReadLocalMachineString(std::string_view keyPath,
                                                     std::string_view valueName);

// The path of the registry file used on this machine (POSIX only): MV_REGISTRY when set, else
// "registry.reg" in sys::MachineFolder(); its file name is matched without regard to case inside
// its folder (files::ResolveFileName). The path is returned even when no such file exists.
std::string RegistryFilePath();

}  // namespace mv::registry
