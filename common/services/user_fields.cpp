#include "common/services/user_fields.h"

#include "common/datasets/apply_modes.h"
#include "common/text/lang_changer.h"
#include "common/text/messages.h"
#include "platform/codepage/codepage.h"
#include "platform/db/dataset.h"
#include "platform/db/db_error.h"

namespace mv {
namespace {

void Reset(std::unique_ptr<TStringList>& list) {
  if (list) {
    list->clear();
  } else {
    list = std::make_unique<TStringList>();
  }
}

void FillDefaults(TDefinedRecord& record) {
  Reset(record.FieldName);
  Reset(record.EngCaption);
  Reset(record.ChiCaption);
  for (int n = 1; n <= kUserDefinedFields; ++n) {
    record.FieldName->push_back("Ref" + std::to_string(n));
    record.EngCaption->push_back("Ref #" + std::to_string(n));
    record.ChiCaption->push_back("Ref #" + std::to_string(n));
  }
}

// Puts a stored caption in place of the default unless it is empty.
void TakeCaption(const db::TField& field, std::string& caption) {
  const std::u16string text = field.AsWideString();
  if (!text.empty()) caption = codepage::FromWide(text, codepage::SystemCodePage());
}

// The captions stored for `service` over the defaults in `english` and `chinese`.
void ReadCaptions(const std::string& service, TStringList& english, TStringList& chinese) {
  db::TMVADODataSet rows;
  ApplyRead(rows);
  rows.SetCommandText(
      "Select FieldNo, EngCaption, ChiCaption from Settings where Service = :Service");
  rows.Parameters().ParamByName("Service").Value = service;
  rows.Open();
  for (; !rows.Eof(); rows.Next()) {
    const int64_t number = rows.FieldByName("FieldNo").AsInteger();
    if (number < 1 || number > kUserDefinedFields) continue;
    const size_t index = static_cast<size_t>(number - 1);
    TakeCaption(rows.FieldByName("EngCaption"), english[index]);
    TakeCaption(rows.FieldByName("ChiCaption"), chinese[index]);
  }
}

}  // namespace

void GetUserDefineFields(const std::string& service, TDefinedRecord& record) {
  FillDefaults(record);
  TStringList english = *record.EngCaption;
  TStringList chinese = *record.ChiCaption;
  try {
    ReadCaptions(service, english, chinese);
    *record.EngCaption = std::move(english);
    *record.ChiCaption = std::move(chinese);
  } catch (const std::exception& error) {
    TLangChanger& lang = LangChanger();
    ShowErrorBox(lang.CStrW("Cannot read the user-defined fields", "不能讀取自訂欄位") + u"\r\n" +
                 lang.CStrW("Reason : ", "原因 : ") + codepage::WideFromUtf8(error.what()));
  }
}

}  // namespace mv
