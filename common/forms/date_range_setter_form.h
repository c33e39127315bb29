// The preset dialog: the shared period presets in a list, with Add, Delete, Cancel and OK. The
// calling screen's preset is highlighted; OK or a double click passes the highlighted preset to
// the calling screen. Presets that must not be deleted (all dates, and presets other open screens
// show) are written in grey. Closing, by any way (Esc included), first stores the whole preset
// list in the user's preferences and then refuses while the calling screen has no preset left,
// with "Please select a period" / "請選擇時段". Made and driven by TForm_DateRangeSetter_Link.
#pragma once

#include <QDialog>
#include <QFrame>
#include <QListWidget>
#include <QPushButton>
#include <memory>

#include "common/forms/number_key_filter.h"
#include "common/text/caption_handler.h"
#include "platform/qt/qt_caption_target.h"

namespace mv {

class TDateRangeSetter;
class TForm_DateRangeSetter_Link;

class TFmDateRangeSetter : public QDialog {
  Q_OBJECT

 public:
  // The dialog at its design size (client area 194 x 205 at 96 dots per inch) scaled to the
  // screen, captions in the current language. It shows nothing until its link gives it the
  // shared list and itself.
  explicit TFmDateRangeSetter(QWidget* parent = nullptr);
  ~TFmDateRangeSetter() override;

  // The shared preset list and the link that drives this dialog (both borrowed).
  TDateRangeSetter* Setter = nullptr;
  TForm_DateRangeSetter_Link* Link = nullptr;

  QFrame* Panel1;
  QListWidget* ListBox1;
  QPushButton* ButtonAdd;
  QPushButton* ButtonDelete;
  QPushButton* Button1;
  QPushButton* Button4;

  // Delete is enabled exactly when row `row` holds a preset that is not locked (no valid row:
  // disabled).
  void ListBox1Click(int row);
  // OK and double click: the highlighted preset becomes the link's Selection and is passed to the
  // calling screen (UpdateSelection, then NotifyChanged); then the dialog closes.
  void ListBox1DblClick();
  // Cancel: closes without passing a preset.
  void Button1Click();
  // Opens the add pop-up under the Add button and adds the preset typed there; a count that is
  // not a whole number shows the conversion error and adds nothing.
  void ButtonAddClick();
  // Deletes the highlighted preset unless it is locked (the calling screen's own preset leaves
  // that screen without a preset), then highlights the row above it.
  void ButtonDeleteClick();
  // Stores the preset list ("PeriodPreset"); then true (closing allowed) unless the calling
  // screen has no preset, which shows "Please select a period" and answers false.
  bool FormCloseQuery();
  // Installs the number-field key filter (number_key_filter.h) on `field`.
  void Edit1KeyPress(QWidget& field);

  // Every way of closing (buttons, Esc, the window's close) runs the close query first.
  void done(int result) override;

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  qt::QtCaptionTarget captionTarget_{this};
  std::unique_ptr<TCaptionHandler> captions_;
  TNumberKeyFilter* numberKeys_;
};

}  // namespace mv
