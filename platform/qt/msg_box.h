// A QMessageBox made from a dialog request, and the answer read back from it.
#pragma once

#include <QMessageBox>
#include <memory>

#include "platform/dialogs/dialogs.h"

namespace mv::qt {

// The object name of every message box the provider makes.
inline constexpr char kMsgBoxName[] = "MsgDialog";

// A message box, not shown: the icon of the request's kind (none for mtCustom), its caption (the
// kind's title when the caption is empty), its text as plain text (never read as markup), and
// the requested buttons captioned in English or Traditional Chinese, each named by
// ButtonObjectName. A request without buttons gets OK. The default button, or the first button
// when the request's default is not among them, is the box's default button and takes the focus.
// Escape answers Cancel, else No, else Abort; in a box with none of them Qt picks the only
// button, if there is one.
std::unique_ptr<QMessageBox> MakeMsgBox(const dialogs::DialogRequest& request, bool english);

// The button that closed the last run of `box`: the one pressed, else (closed some other way)
// its escape button, else its default button.
dialogs::TMsgDlgBtn ClosingButton(const QMessageBox& box);

}  // namespace mv::qt
