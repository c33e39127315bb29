#include "common/forms/date_range_form_link.h"

#include <QCoreApplication>
#include <algorithm>
#include <vector>

#include "common/dates/date_range_setter.h"
#include "common/dates/preset_dialog_opener.h"
#include "common/forms/date_range_setter_form.h"
#include "platform/qt/qt_text.h"

namespace mv {
namespace {

TForm_DateRangeSetter_Link* instance = nullptr;

void OpenPresetDialog(TDateParam* param, TUI_Link& caller) {
  TForm_DateRangeSetter_Link::GetInstance().Execute(QPoint(), param, &caller);
}

// Loading the forms library gives every period combo box's button its dialog.
[[maybe_unused]] const TPresetDialogOpener kOpenerBefore = SetPresetDialogOpener(&OpenPresetDialog);

}  // namespace

TForm_DateRangeSetter_Link& TForm_DateRangeSetter_Link::GetInstance() {
  if (instance == nullptr) {
    instance = new TForm_DateRangeSetter_Link();
    qAddPostRoutine(&TForm_DateRangeSetter_Link::Free);
  }
  return *instance;
}

void TForm_DateRangeSetter_Link::Free() {
  delete instance;
  instance = nullptr;
}

TForm_DateRangeSetter_Link::TForm_DateRangeSetter_Link() : Form(new TFmDateRangeSetter()) {
  Form->Setter = Setter;
  Form->Link = this;
}

TForm_DateRangeSetter_Link::~TForm_DateRangeSetter_Link() {
  delete Form;
}

void TForm_DateRangeSetter_Link::Execute(QPoint /*point*/, TDateParam* param, TUI_Link* caller) {
  CallerLink = caller;
  Setter->CheckItemCanDelete(this, caller);
  Selection = param;
  UpdateUserDefined();
  Form->exec();
}

TUI_Link* TForm_DateRangeSetter_Link::Caller() const {
  if (CallerLink == nullptr) return nullptr;
  const std::vector<TUI_Link*>& links = Setter->UILinks();
  return std::find(links.begin(), links.end(), CallerLink) != links.end() ? CallerLink : nullptr;
}

void TForm_DateRangeSetter_Link::UpdateUserDefined() {
  Form->ListBox1->clear();
  for (int i = 0; i < Setter->Count(); ++i)
    Form->ListBox1->addItem(qt::ToQString(Setter->GetDateParam(i)->DescriptionW()));
  ShowSelection(Selection);
}

void TForm_DateRangeSetter_Link::UpdateSelection(int index) {
  Selection = Setter->GetDateParam(index);
}

void TForm_DateRangeSetter_Link::NotifyChanged() {}

void TForm_DateRangeSetter_Link::ShowSelection(TDateParam* param) {
  if (param == nullptr) return;
  Form->ListBox1->setCurrentRow(Setter->IndexOfDateParam(param));
  Form->ButtonDelete->setEnabled(!param->Locked);
}

}  // namespace mv
