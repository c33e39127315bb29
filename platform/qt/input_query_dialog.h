// The dialog that asks for one line of text: a prompt, an edit and OK / Cancel.
#pragma once

#include <QDialog>
#include <memory>

#include "platform/dialogs/dialogs.h"

namespace mv::qt {

// Object names of the dialog and of its prompt and edit; the buttons are named "mbOK" and
// "mbCancel" as in a message box.
inline constexpr char kInputDialogName[] = "InputQueryDialog";
inline constexpr char kInputPromptName[] = "InputQueryPrompt";
inline constexpr char kInputEditName[] = "InputQueryEdit";

// The dialog of `request`, not shown: its caption as title, the prompt (plain text), an edit
// holding the value with all of it selected and the focus, and OK (the default) / Cancel
// captioned in English or Traditional Chinese. The edit takes at most `maxLength` UTF-16 units
// (0 or less: no limit beyond Qt's own); a longer value is shown cut to that length.
std::unique_ptr<QDialog> MakeInputDialog(const dialogs::InputQueryRequest& request, bool english);

// Runs `dialog` (made by MakeInputDialog) modally. True when the user accepts; then
// `request.value` is the edit's text. Cancel or closing the dialog leaves `request` alone.
bool RunInputDialog(QDialog& dialog, dialogs::InputQueryRequest& request);

}  // namespace mv::qt
