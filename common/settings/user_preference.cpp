#include "common/settings/user_preference.h"

#include <exception>

#include "common/datasets/apply_modes.h"
#include "common/settings/preference_text.h"
#include "common/settings/user_row_p.h"
#include "common/text/lang_changer.h"
#include "platform/codepage/codepage.h"

namespace mv {
namespace {

std::u16string UserText(std::string_view narrow) {
  return codepage::ToWide(narrow, codepage::UserCodePage());
}

}  // namespace

void SaveUserPreference(std::u16string_view key, std::u16string_view value) {
  try {
    TUserRow row(ApplyWrite, kSelectUserPreference);
    if (!row.Found()) return;  // a user without a row gets none: deliberate
    TPreferenceText text(row.Preference());
    text.SetValue(key, value);
    row.WritePreference(text.Text());
  } catch (const std::exception& error) {
    ShowSettingsError(
        LangChanger().CStrW("Error in saving user preference.", "記錄使用者設定發生錯誤") +
            u"\r\n" + std::u16string(key) + u"=" + std::u16string(value) + u"\r\n",
        error);
  }
}

void SaveUserPreference(std::string_view key, std::string_view value) {
  SaveUserPreference(UserText(key), UserText(value));
}

std::u16string GetUserPreference(std::u16string_view key) {
  try {
    TUserRow row(ApplyRead, kSelectUserPreference);
    if (!row.Found()) return {};
    return TPreferenceText(row.Preference()).Value(key);
  } catch (const std::exception& error) {
    ShowSettingsError(
        LangChanger().CStrW("Error in reading user preference.", "讀取使用者設定發生錯誤") +
            u"\r\n" + std::u16string(key) + u"\r\n",
        error);
    return {};
  }
}

std::string GetUserPreference(std::string_view key) {
  return codepage::FromWide(GetUserPreference(UserText(key)), codepage::UserCodePage());
}

}  // namespace mv
