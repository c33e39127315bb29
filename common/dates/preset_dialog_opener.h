// How a period combo box reaches the preset dialog. The dialog is a form of the forms library,
// which the dates subsystem does not link; the forms library installs its opener here when it is
// loaded, and a combo link's configuration button calls whatever opener is installed.
#pragma once

#include "common/dates/date_param.h"

namespace mv {

class TUI_Link;

// Opens the preset dialog for `caller`, with `param` (the caller's Selection, may be nullptr)
// highlighted; returns when the dialog has closed.
using TPresetDialogOpener = void (*)(TDateParam* param, TUI_Link& caller);

// Installs `opener` (nullptr: none) and returns the one installed before.
TPresetDialogOpener SetPresetDialogOpener(TPresetDialogOpener opener);
// The installed opener, nullptr when none is.
TPresetDialogOpener PresetDialogOpener();

}  // namespace mv
