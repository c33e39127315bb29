// The bilingual texts of the Qt dialogs: button captions, box titles and the object names that
// let a program (or a test) find the widgets of a box.
#pragma once

#include <string>

#include "platform/dialogs/dialogs.h"

namespace mv::qt {

// The caption of `button` in English ("No to All") or Traditional Chinese ("全部否"), UTF-16.
std::u16string ButtonCaption(dialogs::TMsgDlgBtn button, bool english);

// The title of a box of `kind` ("Warning" / "警告"); empty for mtCustom.
std::u16string KindTitle(dialogs::TMsgDlgType kind, bool english);

// The object name of the widget for `button`: the button's own name ("mbYes", "mbNoToAll" ...).
const char* ButtonObjectName(dialogs::TMsgDlgBtn button);

}  // namespace mv::qt
