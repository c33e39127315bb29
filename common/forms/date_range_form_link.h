// The UI link of the preset dialog (date_range_setter_form.h): one per process, made on first use
// and living until the application object goes. A period combo box's configuration button opens
// the dialog through it (it installs itself as the preset dialog opener of
// common/dates/preset_dialog_opener.h when the forms library is loaded).
#pragma once

#include <QPoint>

#include "common/dates/ui_link.h"

namespace mv {

class TFmDateRangeSetter;

class TForm_DateRangeSetter_Link : public TUI_Link {
 public:
  // The one link, made on first use with its dialog; a QApplication must exist. It is freed,
  // with the dialog, when the application object is destroyed.
  static TForm_DateRangeSetter_Link& GetInstance();

  // Opens the dialog modally for `caller` (nullptr: no calling screen): the presets are locked
  // anew (all dates, and the presets of links other than this one and `caller`), `param` becomes
  // this link's Selection and is highlighted. `point` is not used. Returns when it has closed.
  void Execute(QPoint point, TDateParam* param, TUI_Link* caller);

  // The dialog (owned).
  TFmDateRangeSetter* const Form;
  // The link that opened the dialog, or nullptr; cleared when the dialog closes with a preset.
  TUI_Link* CallerLink = nullptr;
  // CallerLink while it is still registered with the shared list; nullptr once its screen has
  // gone (a link leaves the list when it is destroyed), so a dialog that outlives its calling
  // screen never reaches the freed link.
  [[nodiscard]] TUI_Link* Caller() const;

  // Fills the dialog's list with every preset's Description, then highlights the Selection.
  void UpdateUserDefined() override;
  // Selection := preset `index` (EListError for an index outside the list).
  void UpdateSelection(int index) override;
  // The dialog link has no screen to tell: nothing happens.
  void NotifyChanged() override;
  // Highlights `param`'s row (none when it is not listed) and enables Delete exactly when
  // `param` is not locked; nullptr changes nothing.
  void ShowSelection(TDateParam* param) override;

 private:
  TForm_DateRangeSetter_Link();
  ~TForm_DateRangeSetter_Link() override;
  static void Free();
};

}  // namespace mv
