#include "platform/qt/qt_msg_dialog.h"

#include <algorithm>
#include <cmath>

#include "platform/qt/msg_box.h"

namespace mv::qt {

QtMsgDialog::QtMsgDialog(dialogs::DialogRequest request, bool english)
    : request_(std::move(request)), box_(MakeMsgBox(request_, english)) {}

void QtMsgDialog::ScaleBy(int numerator, int denominator) {
  if (numerator <= 0 || denominator <= 0) return;
  const double ratio = static_cast<double>(numerator) / denominator;
  QFont font = box_->font();
  if (font.pointSizeF() > 0) {
    font.setPointSizeF(font.pointSizeF() * ratio);
  } else {
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(font.pixelSize() * ratio))));
  }
  box_->setFont(font);
}

dialogs::TMsgDlgBtn QtMsgDialog::ShowModal() {
  box_->exec();
  return ClosingButton(*box_);
}

}  // namespace mv::qt
