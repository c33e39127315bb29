#include "platform/qt/msg_box.h"

#include <QPushButton>
#include <array>

#include "platform/qt/button_captions.h"
#include "platform/qt/qt_text.h"

namespace mv::qt {
namespace {

using dialogs::TMsgDlgBtn;

// The property that keeps a button's TMsgDlgBtn on its widget.
constexpr char kButtonProperty[] = "mvButton";

QMessageBox::Icon IconOf(dialogs::TMsgDlgType kind) {
  switch (kind) {
    case dialogs::mtWarning:
      return QMessageBox::Warning;
    case dialogs::mtError:
      return QMessageBox::Critical;
    case dialogs::mtInformation:
      return QMessageBox::Information;
    case dialogs::mtConfirmation:
      return QMessageBox::Question;
    case dialogs::mtCustom:
      break;
  }
  return QMessageBox::NoIcon;
}

// The role decides where the button box places a button and which one Qt takes for Escape.
QMessageBox::ButtonRole RoleOf(TMsgDlgBtn button) {
  switch (button) {
    case dialogs::mbYes:
    case dialogs::mbAll:
    case dialogs::mbYesToAll:
      return QMessageBox::YesRole;
    case dialogs::mbNo:
    case dialogs::mbNoToAll:
      return QMessageBox::NoRole;
    case dialogs::mbCancel:
    case dialogs::mbAbort:
      return QMessageBox::RejectRole;
    case dialogs::mbHelp:
      return QMessageBox::HelpRole;
    case dialogs::mbOK:
    case dialogs::mbRetry:
    case dialogs::mbIgnore:
      break;
  }
  return QMessageBox::AcceptRole;
}

QPushButton* AddButton(QMessageBox& box, TMsgDlgBtn button, bool english) {
  QPushButton* widget = box.addButton(ToQString(ButtonCaption(button, english)), RoleOf(button));
  widget->setObjectName(QString::fromLatin1(ButtonObjectName(button)));
  widget->setProperty(kButtonProperty, static_cast<int>(button));
  return widget;
}

QString TitleOf(const dialogs::DialogRequest& request, bool english) {
  const std::u16string& title =
      request.caption.empty() ? KindTitle(request.kind, english) : request.caption;
  return ToQString(title);
}

void AddButtons(QMessageBox& box, const dialogs::DialogRequest& request, bool english) {
  std::vector<TMsgDlgBtn> buttons = request.buttons.List();
  if (buttons.empty()) buttons.push_back(dialogs::mbOK);
  std::array<QPushButton*, dialogs::mbHelp + 1> widgets{};
  for (TMsgDlgBtn button : buttons) widgets[button] = AddButton(box, button, english);
  QPushButton* defaultButton = widgets[request.defaultButton];
  box.setDefaultButton(defaultButton != nullptr ? defaultButton : widgets[buttons.front()]);
  for (TMsgDlgBtn escape : {dialogs::mbCancel, dialogs::mbNo, dialogs::mbAbort}) {
    if (widgets[escape] != nullptr) {
      box.setEscapeButton(widgets[escape]);
      break;
    }
  }
}

TMsgDlgBtn ButtonOf(const QAbstractButton& widget) {
  return static_cast<TMsgDlgBtn>(widget.property(kButtonProperty).toInt());
}

}  // namespace

std::unique_ptr<QMessageBox> MakeMsgBox(const dialogs::DialogRequest& request, bool english) {
  auto box = std::make_unique<QMessageBox>();
  box->setObjectName(QString::fromLatin1(kMsgBoxName));
  box->setIcon(IconOf(request.kind));
  box->setWindowTitle(TitleOf(request, english));
  box->setTextFormat(Qt::PlainText);
  box->setText(ToQString(request.text));
  AddButtons(*box, request, english);
  return box;
}

TMsgDlgBtn ClosingButton(const QMessageBox& box) {
  if (const QAbstractButton* pressed = box.clickedButton()) return ButtonOf(*pressed);
  if (const QAbstractButton* escape = box.escapeButton()) return ButtonOf(*escape);
  return ButtonOf(*box.defaultButton());
}

}  // namespace mv::qt
