// The signed-in user's own settings: named entries in the column Preference of the user's row of
// table sysuser (keyed by userid = UserRecord.UserID) on the connection DBMAIN, in the text
// format of preference_text.h. Date-range presets, grid layouts, sort orders and grid colours
// all live there.
//
// Errors never reach the caller. A database error (or a key or value the text format cannot
// hold, see TPreferenceText::SetValue) is shown in an error box (error icon, one OK button) and
// the routine returns as if nothing had been saved, or with the empty value:
//   saving:  "Error in saving user preference." / "記錄使用者設定發生錯誤", CR LF, key "=" value,
//            CR LF, "Reason : " / "原因 : ", the error's message;
//   reading: "Error in reading user preference." / "讀取使用者設定發生錯誤", CR LF, key, CR LF,
//            "Reason : " / "原因 : ", the error's message.
// The heading and label follow the current language (LangChanger).
//
// A save reads the whole text, changes one entry and writes the whole text back, without a
// lock across sessions: two sessions of one user saving at once keep the last writer's text.
#pragma once

#include <string>
#include <string_view>

namespace mv {

// Sets entry `key` of the signed-in user to `value`; the empty value removes the entry. A user
// without a sysuser row gets no row and no message. Narrow texts are in the user's code page;
// the rest of the stored text is kept as it was, characters outside that code page included.
void SaveUserPreference(std::string_view key, std::string_view value);
void SaveUserPreference(std::u16string_view key, std::u16string_view value);

// The value of entry `key` of the signed-in user; the empty text when the entry, the user's row
// or the whole text is missing. The narrow form gives the value in the user's code page ("?"
// for characters it cannot hold).
std::string GetUserPreference(std::string_view key);
std::u16string GetUserPreference(std::u16string_view key);

}  // namespace mv
