// A drop-down pick form with a list of values ("A01|Apples" ...): the row that matches the
// edit's value is current when it opens (else the first once the list has the focus), the arrows
// move through the list, Enter or a double click takes the current row and Esc leaves the edit as
// it was.
#pragma once

#include <QListWidget>
#include <string>
#include <vector>

#include "common/forms/pop_form.h"

namespace mv {

class TPopListForm : public TPopForm {
  Q_OBJECT

 public:
  // An empty list form owned by `owner`; the list's accessible name is "List" / "清單".
  explicit TPopListForm(QWidget* owner = nullptr);

  // The values listed, UTF-16, in this order (control characters shown as they are).
  void SetItems(const std::vector<std::u16string>& items);
  QListWidget& List() { return *list_; }

 protected:
  // The starting value, then the first row whose value, cut by DataStyle, equals it becomes
  // current (none when no row does).
  void DoSetFormData(std::string& buf) override;
  // Enter takes the current row as the value, then closes with OK.
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QListWidget* list_;
};

}  // namespace mv
