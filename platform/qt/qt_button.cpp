#include "platform/qt/qt_button.h"

namespace mv::qt {

QtButton::QtButton(QAbstractButton& button) : QObject(&button), button_(&button) {
  connect(&button, &QAbstractButton::clicked, this, &QtButton::Clicked);
}

QtButton::~QtButton() {
  if (TGoingAwayEvent handler = std::move(onGoingAway_)) handler();
}

void QtButton::Clicked() {
  // A copy: the handler may replace itself while it runs.
  if (TClickEvent handler = onClick_) handler();
}

bool QtButton::Enabled() const {
  return button_ && !button_->testAttribute(Qt::WA_ForceDisabled);
}

void QtButton::SetEnabled(bool enabled) {
  if (button_) button_->setEnabled(enabled);
}

controls::TButton& ButtonControl(QAbstractButton& button) {
  if (auto* bound = button.findChild<QtButton*>(QString(), Qt::FindDirectChildrenOnly))
    return *bound;
  return *new QtButton(button);
}

}  // namespace mv::qt
