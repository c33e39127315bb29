// The lists of message types a mail box offers, read from the system configuration file in the
// language the user sees.
#pragma once

#include <memory>
#include <string>

#include "common/frame/string_list.h"

namespace mv {

// A new list of the message types of a type-list entry, for the current language of the
// language changer (lang_changer.h). `entry` is a line name "=" value (without "=", the whole
// line is the value) whose value is "ENGLISH_SECTION,CHINESE_SECTION". The list holds every
// "name=value" line of the chosen section of ServerPath + Global_Merovan_Ini: in language 1 the
// English section, in language 0 the Chinese one, in language 3 the Chinese one with its whole
// text converted from Big5 to GB (Simplified characters, code page 936). Any other language, an
// unknown or empty section or a missing file give an empty list. The caller owns the list.
std::unique_ptr<TStringList> GetMsgList(const std::string& entry);

}  // namespace mv
