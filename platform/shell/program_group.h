// The client's program group: the shortcuts through which users start the client and its tools,
// whose names follow the language of the user interface.
//
// On POSIX the program group is the folder "Programs" of the installation's base folder
// (BasePath + "Programs"), holding the client's desktop entries (*.desktop files, UTF-8, as the
// desktop's menu reads them). Each entry carries both of its names as localized keys of its
// [Desktop Entry] group, and its shown name, the "Name=" line, is set to one of them:
//   [Desktop Entry]
//   Name=Merovan Client
//   Name[en]=Merovan Client
//   Name[zh_TW]=Merovan 用戶端
// English takes Name[en], Chinese Name[zh_TW]. An entry without the key of the language, or
// without a "Name=" line, is left as it is.
#pragma once

#include <string>
#include <string_view>

namespace mv::shell {

enum class TShortcutLanguage { English, Chinese };

// The desktop entry `entry` with the "Name=" line of its [Desktop Entry] group set to the name
// of `language` (see above), every other line and line end kept; `entry` unchanged when it has
// no such name or line.
std::string DesktopEntryInLanguage(std::string_view entry, TShortcutLanguage language);

// Brings every shortcut of the program group of the installation whose base folder is
// `basePath` (ending with a separator) to `language`; returns how many were changed. An empty
// `basePath` or a missing folder changes nothing; a shortcut that cannot be read or rewritten is
// passed over. Each changed file is replaced atomically.
int SetProgramGroupLanguage(const std::string& basePath, TShortcutLanguage language);

}  // namespace mv::shell
