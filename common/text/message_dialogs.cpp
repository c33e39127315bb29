#include "common/text/message_dialogs.h"

#include "common/frame/errors.h"
#include "common/text/str_utils.h"
#include "common/text/text_resources.h"
#include "modules/mv_dialogs.h"
#include "platform/codepage/codepage.h"
#include "platform/db/dataset.h"

namespace mv {
namespace {

using dialogs::TMsgDlgBtn;
using dialogs::TMsgDlgButtons;
using dialogs::TMsgDlgType;

std::u16string Wide(std::string_view narrow) {
  return codepage::ToWide(narrow, codepage::UserCodePage());
}

std::u16string Wide(std::u16string_view wide) {
  return std::u16string(wide);
}

}  // namespace

void Msg(std::string_view caption, std::string_view text, TMsgDlgType kind) {
  modules::MV_Msg(Wide(caption), Wide(text), kind);
}

void Msg(std::string_view caption, std::u16string_view text, TMsgDlgType kind) {
  modules::MV_Msg(Wide(caption), Wide(text), kind);
}

TMsgDlgBtn MsgDlg(std::string_view caption, std::string_view text, TMsgDlgType kind,
                  TMsgDlgButtons buttons) {
  return modules::MV_MsgDlg(Wide(caption), Wide(text), kind, buttons);
}

TMsgDlgBtn MsgDlg(std::string_view caption, std::u16string_view text, TMsgDlgType kind,
                  TMsgDlgButtons buttons) {
  return modules::MV_MsgDlg(Wide(caption), Wide(text), kind, buttons);
}

bool Confirm(std::string_view caption, std::string_view text) {
  return modules::MV_Confirm(Wide(caption), Wide(text));
}

bool Confirm(std::string_view caption, std::u16string_view text) {
  return modules::MV_Confirm(Wide(caption), Wide(text));
}

TMsgDlgBtn ConfirmDlg(std::string_view caption, std::string_view text, TMsgDlgButtons buttons) {
  return modules::MV_ConfirmDlg(Wide(caption), Wide(text), buttons);
}

TMsgDlgBtn ConfirmDlg(std::string_view caption, std::u16string_view text, TMsgDlgButtons buttons) {
  return modules::MV_ConfirmDlg(Wide(caption), Wide(text), buttons);
}

std::unique_ptr<dialogs::TMsgDialog> CreateMsgDialog(std::string_view caption,
                                                     std::string_view text, TMsgDlgType kind,
                                                     TMsgDlgButtons buttons) {
  return modules::MV_CreateMsgDialog(Wide(caption), Wide(text), kind, buttons);
}

std::unique_ptr<dialogs::TMsgDialog> CreateMsgDialog(std::string_view caption,
                                                     std::u16string_view text, TMsgDlgType kind,
                                                     TMsgDlgButtons buttons) {
  return modules::MV_CreateMsgDialog(Wide(caption), Wide(text), kind, buttons);
}

std::unique_ptr<dialogs::TMsgDialog> MsgForm(std::string_view caption, std::string_view text,
                                             TMsgDlgType kind, TMsgDlgButtons buttons) {
  return modules::MV_MsgForm(Wide(caption), Wide(text), kind, buttons);
}

std::unique_ptr<dialogs::TMsgDialog> MsgForm(std::string_view caption, std::u16string_view text,
                                             TMsgDlgType kind, TMsgDlgButtons buttons) {
  return modules::MV_MsgForm(Wide(caption), Wide(text), kind, buttons);
}

bool MyInputQuery(std::string_view caption, std::string_view prompt, std::string& value,
                  int maxLength) {
  std::u16string wide = Wide(value);
  if (!modules::MV_MyInputQuery(Wide(caption), Wide(prompt), wide, maxLength, true)) return false;
  value = codepage::FromWide(wide, codepage::UserCodePage());
  return true;
}

bool MyInputQuery(std::string_view caption, std::u16string_view prompt, std::u16string& value,
                  int maxLength, bool ansi) {
  return modules::MV_MyInputQuery(Wide(caption), Wide(prompt), value, maxLength, ansi);
}

void ConfirmDelete(std::string_view name) {
  const modules::TFormatArg asGiven[] = {std::string(name)};
  const modules::TFormatArg changed[] = {ChangeCase(name)};
  if (!modules::MV_Confirm(LoadCStrW(2000, asGiven), LoadCStrW(2001, changed))) throw EAbort();
}

void ConfirmSave(std::string_view name, db::TMVADODataSet& dataset) {
  if (dataset.State() != db::dsEdit && dataset.State() != db::dsInsert) return;
  const modules::TFormatArg asGiven[] = {std::string(name)};
  const modules::TFormatArg changed[] = {ChangeCase(name)};
  if (modules::MV_Confirm(LoadCStrW(2002, asGiven), LoadCStrW(2003, changed))) {
    dataset.Post();
  } else {
    dataset.Cancel();
  }
}

}  // namespace mv
