#include "platform/qt/qt_msg_dialog.h"

#include "platform/qt/msg_box.h"
#include "platform/qt/widget_scale.h"

namespace mv::qt {

QtMsgDialog::QtMsgDialog(dialogs::DialogRequest request, bool english)
    : request_(std::move(request)), box_(MakeMsgBox(request_, english)) {}

void QtMsgDialog::ScaleBy(int numerator, int denominator) {
  if (numerator <= 0 || denominator <= 0) return;
  ScaleWidget(*box_, static_cast<double>(numerator) / denominator);
}

dialogs::TMsgDlgBtn QtMsgDialog::ShowModal() {
  box_->exec();
  return ClosingButton(*box_);
}

}  // namespace mv::qt
