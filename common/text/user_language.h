// Applying the signed-in user's own language choice.
#pragma once

namespace mv {

class TCaptionHandler;

// Sets LanguageMode to UserRecord.Language. When that differs from `handler`'s language, 0 shows
// every caption in Chinese and 1 in English (the system-wide switch through the handler); any
// other value switches nothing. Then, in every case, the program-group shortcuts of the
// installation (platform/shell/program_group.h, under BasePath) are given the names of the
// language now shown: English when the language changer's language is 1, else Chinese.
void UpdateUserLanguageMode(TCaptionHandler& handler);

}  // namespace mv
