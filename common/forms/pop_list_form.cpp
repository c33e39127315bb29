#include "common/forms/pop_list_form.h"

#include <QKeyEvent>
#include <QVBoxLayout>

#include "common/text/lang_changer.h"
#include "platform/qt/qt_text.h"

namespace mv {
TPopListForm::TPopListForm(QWidget* owner) : TPopForm(owner), list_(new QListWidget(this)) {
  list_->setObjectName(QStringLiteral("list"));
  list_->setAccessibleName(qt::ToQString(LangChanger().CStrW(u"List", u"清單")));
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(1, 1, 1, 1);
  layout->addWidget(list_);
  setFocusProxy(list_);
  connect(list_, &QListWidget::itemDoubleClicked, this, [this](QListWidgetItem* item) {
    SetFormData(qt::ToU16String(item->text()));
    SetModalResult(mrOk);
    Close();
  });
}

void TPopListForm::SetItems(const std::vector<std::u16string>& items) {
  list_->clear();
  for (const auto& item : items) list_->addItem(qt::ToQString(item));
}

void TPopListForm::DoSetFormData(std::string& buf) {
  TPopForm::DoSetFormData(buf);
  list_->setCurrentRow(-1);
  for (int row = 0; row < list_->count(); ++row) {
    if (PickFormData(qt::ToU16String(list_->item(row)->text()), DataStyle()) == FormData()) {
      list_->setCurrentRow(row);
      break;
    }
  }
}

void TPopListForm::keyPressEvent(QKeyEvent* event) {
  // The list passes Enter on to the form, which closes with OK.
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (enter && list_->currentItem() != nullptr)
    SetFormData(qt::ToU16String(list_->currentItem()->text()));
  TPopForm::keyPressEvent(event);
}

}  // namespace mv
