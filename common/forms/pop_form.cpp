#include "common/forms/pop_form.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMouseEvent>

#include "common/text/conversions.h"
#include "common/text/lang_changer.h"
#include "platform/qt/code_page_field.h"
#include "platform/qt/qt_text.h"

namespace mv {
namespace {

// The size of the outermost window above `owner`, frame included.
std::optional<QSize> MainWindowSize(const QWidget* owner) {
  if (owner == nullptr) return std::nullopt;
  const QWidget* window = owner->window();
  while (window->parentWidget() != nullptr) window = window->parentWidget()->window();
  return window->frameGeometry().size();
}

}  // namespace

TPopForm::TPopForm(QWidget* owner) : QWidget(owner, Qt::Popup) {}

TPopForm::~TPopForm() {
  if (open_ && speedButton_) speedButton_->setChecked(false);
}

void TPopForm::SetSpeedButton(QToolButton* button) {
  if (buttonClicked_) disconnect(buttonClicked_);
  speedButton_ = button;
  if (!button) return;
  PlaceBelowButton();
  button->setCheckable(true);
  button->setAutoExclusive(false);
  if (button->accessibleName().isEmpty()) {
    button->setAccessibleName(qt::ToQString(LangChanger().CStrW(u"Open list", u"開啟清單")));
  }
  buttonClicked_ = connect(button, &QToolButton::clicked, this, [this](bool checked) {
    if (!checked) return;
    PlaceBelowButton();
    Show();
  });
}

void TPopForm::PlaceBelowButton() {
  if (!testAttribute(Qt::WA_Resized)) adjustSize();
  const QPoint corner(speedButton_->width() - width(), speedButton_->height() + 1);
  SetFormPosition(speedButton_->mapToGlobal(corner));
}

void TPopForm::SetSourceControl(QLineEdit* edit) {
  sourceControl_ = edit;
  if (edit) SetFormPosition(edit->mapToGlobal(QPoint(4, edit->height() + 1)));
}

void TPopForm::SetFormPosition(QPoint point) {
  if (!testAttribute(Qt::WA_Resized)) adjustSize();
  move(BoundFormPosition(point, frameGeometry().size(), MainWindowSize(parentWidget())));
}

bool TPopForm::IsUnicodeEdit() const {
  return sourceControl_ && !qt::IsCodePageField(sourceControl_);
}

void TPopForm::Show() {
  std::string buf;
  if (sourceControl_) {
    buf = MV_WideStringToAnsi(PopFormTextHead(qt::ToU16String(sourceControl_->text())));
    if (sourceControl_->focusPolicy() != Qt::NoFocus && sourceControl_->isEnabled()) {
      sourceControl_->setFocus();
    }
  }
  DoSetFormData(buf);
  modalResult_ = mrNone;
  setAttribute(Qt::WA_NoMouseReplay, false);
  if (speedButton_) speedButton_->setChecked(true);
  open_ = true;
  show();
  setFocus(Qt::PopupFocusReason);  // the keys go to the form (its focus proxy), not the edit
}

void TPopForm::Close() {
  close();
  // Should no close event come (the form is hidden already), an open form's steps run here.
  if (open_) FinishClose();
}

void TPopForm::DoSetFormData(std::string& buf) {
  if (onSetFormData_) onSetFormData_(*this, buf);
  formData_ = IsUnicodeEdit() ? qt::ToU16String(sourceControl_->text()) : MV_AnsiToWideString(buf);
}

void TPopForm::DoGetFormData(std::string& buf) {
  formData_ = PickFormData(formData_, dataStyle_);
  if (IsUnicodeEdit()) sourceControl_->setText(qt::ToQString(formData_));
  buf = MV_WideStringToAnsi(formData_);
  if (onGetFormData_) onGetFormData_(*this, buf);
}

void TPopForm::FinishClose() {
  open_ = false;
  if (modalResult_ == mrOk) {
    std::string buf;
    DoGetFormData(buf);
    if (sourceControl_ && !IsUnicodeEdit())
      sourceControl_->setText(qt::ToQString(MV_AnsiToWideString(buf)));
    if (sourceControl_) sourceControl_->selectAll();
  }
  if (speedButton_) speedButton_->setChecked(false);
}

void TPopForm::closeEvent(QCloseEvent* event) {
  QWidget::closeEvent(event);
  if (open_) FinishClose();
}

void TPopForm::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      modalResult_ = mrOk;
      Close();
      break;
    case Qt::Key_Escape:
      modalResult_ = mrCancel;
      Close();
      break;
    default:
      QWidget::keyPressEvent(event);
  }
}

void TPopForm::mousePressEvent(QMouseEvent* event) {
  // A press on the drop-down button closes the form and must not reach the button again, which
  // would open the form anew.
  if (speedButton_ && !rect().contains(event->position().toPoint())) {
    const QPoint onButton = speedButton_->mapFromGlobal(event->globalPosition().toPoint());
    if (speedButton_->rect().contains(onButton)) setAttribute(Qt::WA_NoMouseReplay);
  }
  QWidget::mousePressEvent(event);
}

}  // namespace mv
