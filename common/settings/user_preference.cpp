#include "common/settings/user_preference.h"

#include <exception>

#include "common/datasets/apply_modes.h"
#include "common/frame/shared_state.h"
#include "common/settings/preference_text.h"
#include "common/text/error_texts.h"
#include "common/text/lang_changer.h"
#include "common/text/messages.h"
#include "platform/codepage/codepage.h"
#include "platform/db/dataset.h"
#include "platform/db/db_error.h"

namespace mv {
namespace {

// A write names the user's row by the table's key, userid, which the dataset reads beside the text.
constexpr std::string_view kSelectPreference =
    "Select Preference from sysuser where userid=:puserid";
constexpr std::string_view kPreferenceField = "Preference";

std::u16string UserText(std::string_view narrow) {
  return codepage::ToWide(narrow, codepage::UserCodePage());
}

// The dataset of the signed-in user's row, open; closed (when open) and freed when it goes, also
// after an error.
class UserRow {
 public:
  explicit UserRow(void (*prepare)(db::TMVADODataSet&)) {
    prepare(dataset_);
    dataset_.SetParamCheck(true);
    dataset_.SetCommandText(kSelectPreference);
    db::TParameter& userId = dataset_.Parameters().ParamByName("puserid");
    userId.DataType = db::ftWideString;
    userId.Value = codepage::ToWide(UserRecord.UserID, codepage::SystemCodePage());
    dataset_.Open();
  }
  ~UserRow() {
    if (dataset_.Active()) dataset_.Close();
  }
  UserRow(const UserRow&) = delete;
  UserRow& operator=(const UserRow&) = delete;

  bool Found() const { return !dataset_.Eof(); }
  std::u16string Text() { return dataset_.FieldByName(kPreferenceField).AsWideString(); }
  void Write(const std::u16string& text) {
    dataset_.Edit();
    dataset_.FieldByName(kPreferenceField).SetAsWideString(text);
    dataset_.Post();
  }

 private:
  db::TMVADODataSet dataset_;
};

// The error's message as wide text: the database layer's are UTF-8, the others narrow text in
// the user's code page.
std::u16string Reason(const std::exception& error) {
  if (dynamic_cast<const db::EDatabaseError*>(&error)) return codepage::WideFromUtf8(error.what());
  return UserText(ErrorMsg(error));
}

void ShowPreferenceError(std::u16string heading, std::u16string_view subject,
                         const std::exception& error) {
  const TLangChanger& lang = LangChanger();
  ShowErrorBox(heading + u"\r\n" + std::u16string(subject) + u"\r\n" +
               lang.CStrW("Reason : ", "原因 : ") + Reason(error));
}

}  // namespace

void SaveUserPreference(std::u16string_view key, std::u16string_view value) {
  try {
    UserRow row(ApplyWrite);
    if (!row.Found()) return;  // a user without a row gets none: deliberate
    TPreferenceText text(row.Text());
    text.SetValue(key, value);
    row.Write(text.Text());
  } catch (const std::exception& error) {
    ShowPreferenceError(
        LangChanger().CStrW("Error in saving user preference.", "記錄使用者設定發生錯誤"),
        std::u16string(key) + u"=" + std::u16string(value), error);
  }
}

void SaveUserPreference(std::string_view key, std::string_view value) {
  SaveUserPreference(UserText(key), UserText(value));
}

std::u16string GetUserPreference(std::u16string_view key) {
  try {
    UserRow row(ApplyRead);
    if (!row.Found()) return {};
    return TPreferenceText(row.Text()).Value(key);
  } catch (const std::exception& error) {
    ShowPreferenceError(
        LangChanger().CStrW("Error in reading user preference.", "讀取使用者設定發生錯誤"), key,
        error);
    return {};
  }
}

std::string GetUserPreference(std::string_view key) {
  return codepage::FromWide(GetUserPreference(UserText(key)), codepage::UserCodePage());
}

}  // namespace mv
