// An up-down control attached to a line edit: two small arrow buttons beside the edit that count
// the edit's number up or down, between a minimum and a maximum. The arrow keys in the edit do
// the same.
#pragma once

#include <QLineEdit>
#include <QPointer>
#include <QToolButton>
#include <QWidget>

namespace mv::qt {

class QtUpDown : public QWidget {
  Q_OBJECT

 public:
  // An up-down of `buddy` (not owned) counting within `minimum` .. `maximum`; its position
  // starts at `minimum` and is written into the edit.
  QtUpDown(QLineEdit& buddy, int minimum, int maximum, QWidget* parent);

  // The number shown: the edit's text when it is a whole number within the range, else the last
  // position the up-down set.
  [[nodiscard]] int Position() const;
  // Shows `position`, kept within the range, in the edit.
  void SetPosition(int position);
  // Counts one up (`step` 1) or down (-1), never past the range.
  void Step(int step);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  QPointer<QLineEdit> buddy_;
  QToolButton* up_;
  QToolButton* down_;
  int minimum_;
  int maximum_;
  int position_;
};

}  // namespace mv::qt
