#include "platform/qt/qt_text_controls.h"

#include "platform/qt/qt_text.h"

namespace mv::qt {
QtLabelText::QtLabelText(QLabel* label) : label_(label) {
  if (label_) label_->setTextFormat(Qt::PlainText);
}

std::u16string QtLabelText::Text() const {
  return label_ ? ToU16String(label_->text()) : std::u16string();
}

void QtLabelText::SetText(const std::u16string& text) {
  if (label_) label_->setText(ToQString(text));
}

bool QtLabelText::Visible() const {
  return label_ && !label_->isHidden();
}

void QtLabelText::SetVisible(bool visible) {
  if (label_) label_->setVisible(visible);
}

QtWindowTitle::QtWindowTitle(QWidget* window) : window_(window) {}

std::u16string QtWindowTitle::Text() const {
  return window_ ? ToU16String(window_->windowTitle()) : std::u16string();
}

void QtWindowTitle::SetText(const std::u16string& text) {
  if (window_) window_->setWindowTitle(ToQString(text));
}

bool QtWindowTitle::Visible() const {
  return window_ && !window_->isHidden();
}

void QtWindowTitle::SetVisible(bool visible) {
  if (window_) window_->setVisible(visible);
}

std::shared_ptr<controls::TTextControl> AddStatusPanel(QStatusBar& statusBar,
                                                       const char* objectName) {
  auto* label = new QLabel(&statusBar);
  label->setObjectName(QString::fromUtf8(objectName));
  label->setFrameShape(QFrame::Panel);
  label->setFrameShadow(QFrame::Sunken);
  statusBar.addPermanentWidget(label);
  return std::make_shared<QtLabelText>(label);
}

}  // namespace mv::qt
