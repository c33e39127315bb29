// Dialog primitives: message boxes, confirmations, dialogs made but not shown, and input queries,
// all shown through the dialogs provider of the process (platform/dialogs/dialogs.h). Texts are
// wide (UTF-16); the library's routines convert narrow texts before they get here.
//
// The default button of a box (the one Enter presses, and the console provider's answer) is
// OK when the box has it, else Yes, else Retry, else its first button. A box asked with no
// buttons at all gets one OK button.
#pragma once

#include <memory>
#include <string>

#include "platform/dialogs/dialogs.h"

namespace mv::modules {

// Shows `text` under `caption` with the icon of `kind` and one OK button.
void MV_Msg(const std::u16string& caption, const std::u16string& text, dialogs::TMsgDlgType kind);

// Shows the box with `buttons`; returns the button that closed it.
dialogs::TMsgDlgBtn MV_MsgDlg(const std::u16string& caption, const std::u16string& text,
                              dialogs::TMsgDlgType kind, dialogs::TMsgDlgButtons buttons);

// Asks a Yes / No question (confirmation icon, Yes the default); true when Yes closed it.
bool MV_Confirm(const std::u16string& caption, const std::u16string& text);

// A confirmation box with `buttons`; returns the button that closed it.
dialogs::TMsgDlgBtn MV_ConfirmDlg(const std::u16string& caption, const std::u16string& text,
                                  dialogs::TMsgDlgButtons buttons);

// The box made but not shown, at its design size (96 dots per inch).
std::unique_ptr<dialogs::TMsgDialog> MV_CreateMsgDialog(const std::u16string& caption,
                                                        const std::u16string& text,
                                                        dialogs::TMsgDlgType kind,
                                                        dialogs::TMsgDlgButtons buttons);

// MV_CreateMsgDialog's dialog scaled from 96 dots per inch to the provider's ScreenDpi (left
// as it is when the provider reports 96 or a value of 0 or less); not shown.
std::unique_ptr<dialogs::TMsgDialog> MV_MsgForm(const std::u16string& caption,
                                                const std::u16string& text,
                                                dialogs::TMsgDlgType kind,
                                                dialogs::TMsgDlgButtons buttons);

// Asks for one line of text, `value` shown first; true (and `value` set to what was entered)
// when the user accepts, false (and `value` unchanged) when the user cancels. `maxLength` (0 or
// less: no limit) counts UTF-16 units, or with `ansi` bytes of the user's code page.
// With `ansi` the answer is also brought into the user's code page: characters it cannot hold
// become "?", and an answer longer than `maxLength` bytes is cut after its last whole character
// that fits, for fields that are stored as narrow text.
bool MV_MyInputQuery(const std::u16string& caption, const std::u16string& prompt,
                     std::u16string& value, int maxLength, bool ansi);

}  // namespace mv::modules
