// The message and confirmation dialogs every form uses. Each takes its caption as narrow text
// (bytes in the user's code page) and its text either narrow or wide (UTF-16); narrow texts are
// converted from the user's code page, bytes it does not map becoming U+FFFD. All of them show
// through the MV_ dialog primitives (modules/mv_dialogs.h), which also fix the default buttons.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/dialogs/dialogs.h"

namespace mv::db {
class TMVADODataSet;
}

namespace mv {

// Shows the text with one OK button and the icon of `kind`.
void Msg(std::string_view caption, std::string_view text, dialogs::TMsgDlgType kind);
void Msg(std::string_view caption, std::u16string_view text, dialogs::TMsgDlgType kind);

// Shows the text with `buttons`; returns the button that closed the dialog.
dialogs::TMsgDlgBtn MsgDlg(std::string_view caption, std::string_view text,
                           dialogs::TMsgDlgType kind, dialogs::TMsgDlgButtons buttons);
dialogs::TMsgDlgBtn MsgDlg(std::string_view caption, std::u16string_view text,
                           dialogs::TMsgDlgType kind, dialogs::TMsgDlgButtons buttons);

// Asks a Yes / No question; true when the user answers Yes.
bool Confirm(std::string_view caption, std::string_view text);
bool Confirm(std::string_view caption, std::u16string_view text);

// A confirmation with `buttons`; returns the button that closed the dialog.
dialogs::TMsgDlgBtn ConfirmDlg(std::string_view caption, std::string_view text,
                               dialogs::TMsgDlgButtons buttons);
dialogs::TMsgDlgBtn ConfirmDlg(std::string_view caption, std::u16string_view text,
                               dialogs::TMsgDlgButtons buttons);

// The dialog made but not shown, at its design size of 96 dots per inch.
std::unique_ptr<dialogs::TMsgDialog> CreateMsgDialog(std::string_view caption,
                                                     std::string_view text,
                                                     dialogs::TMsgDlgType kind,
                                                     dialogs::TMsgDlgButtons buttons);
std::unique_ptr<dialogs::TMsgDialog> CreateMsgDialog(std::string_view caption,
                                                     std::u16string_view text,
                                                     dialogs::TMsgDlgType kind,
                                                     dialogs::TMsgDlgButtons buttons);

// CreateMsgDialog's dialog scaled from 96 dots per inch to the screen's resolution; not shown.
std::unique_ptr<dialogs::TMsgDialog> MsgForm(std::string_view caption, std::string_view text,
                                             dialogs::TMsgDlgType kind,
                                             dialogs::TMsgDlgButtons buttons);
std::unique_ptr<dialogs::TMsgDialog> MsgForm(std::string_view caption, std::u16string_view text,
                                             dialogs::TMsgDlgType kind,
                                             dialogs::TMsgDlgButtons buttons);

// Asks for one line of text; true (and `value` set) when the user accepts, false (and `value`
// unchanged) when the user cancels. The narrow form keeps `value` in the user's code page and
// counts `maxLength` (0: no limit) in its bytes. In the wide form, `ansi` true does the same for
// a field stored as narrow text (the answer limited to what the user's code page holds, "?" for
// any other character, cut after the last whole character within `maxLength` bytes); `ansi`
// false takes any Unicode text and counts `maxLength` in UTF-16 units.
bool MyInputQuery(std::string_view caption, std::string_view prompt, std::string& value,
                  int maxLength);
bool MyInputQuery(std::string_view caption, std::u16string_view prompt, std::u16string& value,
                  int maxLength, bool ansi);

// Asks whether to delete `name` (narrow text): caption text 2000 and question text 2001 of the
// text catalogue, formatted with the name (the question with the name after ChangeCase). Returns
// when the user answers Yes; raises EAbort (the quiet abort) otherwise.
void ConfirmDelete(std::string_view name);

// When `dataset` is editing or inserting a row: asks whether to save `name` (narrow text), caption
// text 2002 and question text 2003 formatted as ConfirmDelete's; Yes posts the row, No cancels
// the edit. In any other state nothing is shown and nothing changes.
void ConfirmSave(std::string_view name, db::TMVADODataSet& dataset);

}  // namespace mv
