#include "platform/qt/up_down.h"

#include <QKeyEvent>
#include <algorithm>

namespace mv::qt {

QtUpDown::QtUpDown(QLineEdit& buddy, int minimum, int maximum, QWidget* parent)
    : QWidget(parent),
      buddy_(&buddy),
      up_(new QToolButton(this)),
      down_(new QToolButton(this)),
      minimum_(minimum),
      maximum_(std::max(minimum, maximum)),
      position_(minimum) {
  for (auto [button, arrow, step] : {std::tuple{up_, Qt::UpArrow, 1}, {down_, Qt::DownArrow, -1}}) {
    button->setArrowType(arrow);
    button->setAutoRepeat(true);
    // The edit takes the keys; the arrows are for the mouse, as the arrow keys do the same.
    button->setFocusPolicy(Qt::NoFocus);
    connect(button, &QToolButton::clicked, this, [this, step = step] { Step(step); });
  }
  up_->setAccessibleName(QStringLiteral("Up"));
  down_->setAccessibleName(QStringLiteral("Down"));
  buddy.installEventFilter(this);
  SetPosition(minimum);
}

int QtUpDown::Position() const {
  if (!buddy_) return position_;
  bool ok = false;
  const int shown = buddy_->text().trimmed().toInt(&ok);
  return ok && shown >= minimum_ && shown <= maximum_ ? shown : position_;
}

void QtUpDown::SetPosition(int position) {
  position_ = std::clamp(position, minimum_, maximum_);
  if (buddy_) buddy_->setText(QString::number(position_));
}

void QtUpDown::Step(int step) {
  const int position = Position();
  if (step > 0 && position < maximum_) SetPosition(position + 1);
  if (step < 0 && position > minimum_) SetPosition(position - 1);
}

bool QtUpDown::eventFilter(QObject* watched, QEvent* event) {
  // The event's type first: the edit may be in its destructor (a plain QWidget by then) while
  // its last events pass here.
  if (event->type() == QEvent::KeyPress && watched == buddy_) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Up || key == Qt::Key_Down) {
      Step(key == Qt::Key_Up ? 1 : -1);
      return true;
    }
  }
  return QWidget::eventFilter(watched, event);
}

void QtUpDown::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  const int half = height() / 2;
  up_->setGeometry(0, 0, width(), half);
  down_->setGeometry(0, half, width(), height() - half);
}

}  // namespace mv::qt
