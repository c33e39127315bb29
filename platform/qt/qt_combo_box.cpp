#include "platform/qt/qt_combo_box.h"

#include "platform/qt/qt_text.h"

namespace mv::qt {

QtComboBox::QtComboBox(QComboBox& combo) : QObject(&combo), combo_(&combo) {
  connect(&combo, &QComboBox::activated, this, &QtComboBox::UserChose);
}

QtComboBox::~QtComboBox() {
  if (TGoingAwayEvent handler = std::move(onGoingAway_)) handler();
}

void QtComboBox::UserChose() {
  // A copy: the handler may replace itself while it runs.
  if (TChangeEvent handler = onChange_) handler(*this);
}

void QtComboBox::Clear() {
  if (combo_) combo_->clear();
}

void QtComboBox::AddItem(const std::u16string& text) {
  if (!combo_) return;
  // A combo box shows its first item as soon as it has one; the item shown stays the program's
  // choice.
  const int shown = combo_->currentIndex();
  combo_->addItem(ToQString(text));
  if (shown == -1) combo_->setCurrentIndex(-1);
}

int QtComboBox::ItemCount() const {
  return combo_ ? combo_->count() : 0;
}

std::u16string QtComboBox::ItemText(int index) const {
  if (!combo_ || index < 0 || index >= combo_->count()) return {};
  return combo_->itemText(index).toStdU16String();
}

int QtComboBox::ItemIndex() const {
  return combo_ ? combo_->currentIndex() : -1;
}

void QtComboBox::SetItemIndex(int index) {
  if (!combo_) return;
  combo_->setCurrentIndex(index >= 0 && index < combo_->count() ? index : -1);
}

bool QtComboBox::Enabled() const {
  return combo_ && !combo_->testAttribute(Qt::WA_ForceDisabled);
}

void QtComboBox::SetEnabled(bool enabled) {
  if (combo_) combo_->setEnabled(enabled);
}

controls::TComboBox& ComboBoxControl(QComboBox& combo) {
  if (auto* bound = combo.findChild<QtComboBox*>(QString(), Qt::FindDirectChildrenOnly))
    return *bound;
  return *new QtComboBox(combo);
}

}  // namespace mv::qt
