#include "common/dates/preset_dialog_opener.h"

namespace mv {
namespace {

// Constant-initialised, so an opener installed while another library is being loaded is kept.
TPresetDialogOpener installed = nullptr;

}  // namespace

TPresetDialogOpener SetPresetDialogOpener(TPresetDialogOpener opener) {
  const TPresetDialogOpener previous = installed;
  installed = opener;
  return previous;
}

TPresetDialogOpener PresetDialogOpener() {
  return installed;
}

}  // namespace mv
