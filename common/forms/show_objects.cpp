#include "common/forms/show_objects.h"

#include "common/text/lang_changer.h"

namespace mv {
namespace {

// "count word", the count in decimal as %d writes it.
std::u16string CountText(int count) {
  const std::string digits = std::to_string(count);
  return std::u16string(digits.begin(), digits.end()) + u" " + RecordsWord();
}

}  // namespace

std::u16string RecordsWord() {
  return LangChanger().CStrW(std::u16string_view(u"records"), std::u16string_view(u"記錄"));
}

TShowObject::TShowObject(std::shared_ptr<controls::TTextControl> control)
    : control_(std::move(control)) {
  if (control_) baseCaption_ = control_->Text();
}

void TShowObject::Update() {
  if (control_) baseCaption_ = control_->Text();
}

void TShowObject::ShowAfterCaption(int count) {
  if (control_) control_->SetText(baseCaption_ + u" - (" + CountText(count) + u")");
}

void TShowPanel::Show(int count) {
  if (Control()) Control()->SetText(CountText(count));
}

}  // namespace mv
