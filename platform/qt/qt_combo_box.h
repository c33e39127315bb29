// The combo-box control (platform/controls/combo_box.h) of a QComboBox. The user's choice is the
// combo box's activated signal, never currentIndexChanged, which also fires when the program
// clears or refills the list. The adapter is a child object of its combo box and goes with it.
#pragma once

#include <QComboBox>
#include <QObject>
#include <QPointer>

#include "platform/controls/combo_box.h"

namespace mv::qt {

class QtComboBox : public QObject, public controls::TComboBox {
  Q_OBJECT

 public:
  // Binds `combo`; use ComboBoxControl, which makes one adapter per combo box.
  explicit QtComboBox(QComboBox& combo);
  // Tells the going-away handler (once); the combo box itself is not used any more by then.
  ~QtComboBox() override;

  void Clear() override;
  void AddItem(const std::u16string& text) override;
  int ItemCount() const override;
  std::u16string ItemText(int index) const override;
  int ItemIndex() const override;
  void SetItemIndex(int index) override;
  // The combo box's own setting, whatever its parents' state.
  bool Enabled() const override;
  void SetEnabled(bool enabled) override;
  TChangeEvent OnChange() const override { return onChange_; }
  void SetOnChange(TChangeEvent handler) override { onChange_ = std::move(handler); }
  void SetOnGoingAway(TGoingAwayEvent handler) override { onGoingAway_ = std::move(handler); }

 private:
  void UserChose();

  QPointer<QComboBox> combo_;
  TChangeEvent onChange_;
  TGoingAwayEvent onGoingAway_;
};

// The one control adapter of `combo`, made on first use as a child of the combo box.
controls::TComboBox& ComboBoxControl(QComboBox& combo);

}  // namespace mv::qt
