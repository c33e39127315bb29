#include "common/datasets/apply_modes.h"
#include "common/frame/shared_state.h"
#include "common/settings/user_row_p.h"
#include "common/text/error_texts.h"
#include "common/text/lang_changer.h"
#include "common/text/messages.h"
#include "platform/codepage/codepage.h"
#include "platform/db/db_error.h"

namespace mv {
namespace {

constexpr std::string_view kPreferenceField = "Preference";

std::u16string Reason(const std::exception& error) {
  if (const auto* own = dynamic_cast<const ESettingsError*>(&error)) return own->Message();
  if (dynamic_cast<const db::EDatabaseError*>(&error)) return codepage::WideFromUtf8(error.what());
  return codepage::ToWide(ErrorMsg(error), codepage::UserCodePage());
}

}  // namespace

TUserRow::TUserRow(void (*prepare)(db::TMVADODataSet&), std::string_view commandText) {
  prepare(dataset_);
  dataset_.SetParamCheck(true);
  dataset_.SetCommandText(commandText);
  db::TParameter& userId = dataset_.Parameters().ParamByName("puserid");
  userId.DataType = db::ftWideString;
  userId.Value = codepage::ToWide(UserRecord.UserID, codepage::SystemCodePage());
  dataset_.Open();
}

TUserRow::~TUserRow() {
  if (dataset_.Active()) dataset_.Close();
}

std::u16string TUserRow::Preference() {
  return dataset_.FieldByName(kPreferenceField).AsWideString();
}

void TUserRow::WritePreference(const std::u16string& text) {
  dataset_.Edit();
  dataset_.FieldByName(kPreferenceField).SetAsWideString(text);
  dataset_.Post();
}

ESettingsError::ESettingsError(std::u16string message)
    : std::runtime_error(codepage::Utf8FromWide(message)), message_(std::move(message)) {}

void ShowSettingsError(const std::u16string& text, const std::exception& error) {
  ShowErrorBox(text + LangChanger().CStrW("Reason : ", "原因 : ") + Reason(error));
}

}  // namespace mv
