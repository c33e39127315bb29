#include "platform/qt/qt_text_controls.h"

namespace mv::qt {
namespace {

std::u16string ToU16(const QString& text) {
  return {reinterpret_cast<const char16_t*>(text.utf16()), static_cast<size_t>(text.size())};
}

QString FromU16(const std::u16string& text) {
  return QStringView(text).toString();
}

}  // namespace

QtLabelText::QtLabelText(QLabel* label) : label_(label) {
  if (label_) label_->setTextFormat(Qt::PlainText);
}

std::u16string QtLabelText::Text() const {
  return label_ ? ToU16(label_->text()) : std::u16string();
}

void QtLabelText::SetText(const std::u16string& text) {
  if (label_) label_->setText(FromU16(text));
}

bool QtLabelText::Visible() const {
  return label_ && !label_->isHidden();
}

void QtLabelText::SetVisible(bool visible) {
  if (label_) label_->setVisible(visible);
}

QtWindowTitle::QtWindowTitle(QWidget* window) : window_(window) {}

std::u16string QtWindowTitle::Text() const {
  return window_ ? ToU16(window_->windowTitle()) : std::u16string();
}

void QtWindowTitle::SetText(const std::u16string& text) {
  if (window_) window_->setWindowTitle(FromU16(text));
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
