// A message dialog made by the Qt provider and not shown yet: a real QMessageBox that the caller
// may scale before showing it.
#pragma once

#include <QMessageBox>
#include <memory>

#include "platform/dialogs/dialogs.h"

namespace mv::qt {

class QtMsgDialog : public dialogs::TMsgDialog {
 public:
  // Makes the box of `request` (see MakeMsgBox) with captions in English or Traditional Chinese.
  // A QApplication must exist.
  QtMsgDialog(dialogs::DialogRequest request, bool english);

  const dialogs::DialogRequest& Request() const override { return request_; }
  // Scales the box by numerator / denominator (see ScaleWidget): its font, its buttons and the
  // gaps of its layout, and so the size it takes when shown; its icon keeps the style's size.
  // Calls compose; a zero or negative term is ignored.
  void ScaleBy(int numerator, int denominator) override;
  // Runs the box modally and returns the button that closed it (see ClosingButton). May be
  // called again; each call shows the box anew.
  dialogs::TMsgDlgBtn ShowModal() override;

  // The box itself, for a host that wants to adjust it further.
  QMessageBox& Box() { return *box_; }

 private:
  dialogs::DialogRequest request_;
  std::unique_ptr<QMessageBox> box_;
};

}  // namespace mv::qt
