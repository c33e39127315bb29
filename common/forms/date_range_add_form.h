// The small pop-up in which the user types a new period preset of the preset dialog: a count
// (a line edit with an up-down) and a unit (Day(s), Week(s), Month(s), Year(s)). Borderless, on
// a white panel, captions in the current language; the Add button accepts it, Cancel and Esc
// reject it.
#pragma once

#include <QComboBox>
#include <QDialog>
#include <QFrame>
#include <QLineEdit>
#include <QPoint>
#include <QPushButton>
#include <QRect>
#include <QSize>
#include <memory>
#include <optional>

#include "common/dates/time_units.h"
#include "common/text/caption_handler.h"
#include "platform/qt/qt_caption_target.h"
#include "platform/qt/up_down.h"

namespace mv {

class TFmDateRangeAdd : public QDialog {
  Q_OBJECT

 public:
  // The pop-up at its design size (165 x 75 at 96 dots per inch) scaled to the screen, with the
  // count 1 and the unit combo box filled in the current language, days chosen.
  explicit TFmDateRangeAdd(QWidget* parent = nullptr);
  ~TFmDateRangeAdd() override;

  // The count as typed (strict whole number, see StrToInt) and the chosen unit. EConvertError
  // "'text' is not a valid integer value" for a count that is not a whole number.
  [[nodiscard]] int Count() const;
  [[nodiscard]] TTimeUnit Unit() const;

  QFrame* Panel1;
  QLineEdit* Edit1;
  qt::QtUpDown* UpDown1;
  QComboBox* ComboBox1;
  QPushButton* ButtonAdd;
  QPushButton* Button1;

 private:
  qt::QtCaptionTarget captionTarget_{this};
  std::unique_ptr<TCaptionHandler> captions_;
};

// Where the pop-up of size `size` opens when its top-left corner would sit at `anchor` (the Add
// button's top-left corner on the screen) on the screen `screen`: moved left so its right edge
// meets the screen's right edge when it would overflow it; moved up to the screen's bottom less
// its height less 34 when its bottom plus 30 would pass the screen's bottom; and never left of or
// above the screen (a negative coordinate becomes the screen's left or top, 0 on the primary
// screen).
[[nodiscard]] QPoint PlaceAddPopup(QPoint anchor, QSize size, const QRect& screen);

}  // namespace mv
