// The button control (platform/controls/button.h) of a QAbstractButton (a tool button beside a
// combo box, a push button). The adapter is a child object of its button and goes with it.
#pragma once

#include <QAbstractButton>
#include <QObject>
#include <QPointer>

#include "platform/controls/button.h"

namespace mv::qt {

class QtButton : public QObject, public controls::TButton {
  Q_OBJECT

 public:
  // Binds `button`; use ButtonControl, which makes one adapter per button.
  explicit QtButton(QAbstractButton& button);
  // Tells the going-away handler (once); the button itself is not used any more by then.
  ~QtButton() override;

  // The button's own setting, whatever its parents' state.
  bool Enabled() const override;
  void SetEnabled(bool enabled) override;
  void SetOnClick(TClickEvent handler) override { onClick_ = std::move(handler); }
  void SetOnGoingAway(TGoingAwayEvent handler) override { onGoingAway_ = std::move(handler); }

 private:
  void Clicked();

  QPointer<QAbstractButton> button_;
  TClickEvent onClick_;
  TGoingAwayEvent onGoingAway_;
};

// The one control adapter of `button`, made on first use as a child of the button.
controls::TButton& ButtonControl(QAbstractButton& button);

}  // namespace mv::qt
