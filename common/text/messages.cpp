#include "common/text/messages.h"

#include "modules/mv_colorblock.h"
#include "modules/mv_strings.h"
#include "platform/codepage/codepage.h"
#include "platform/dialogs/dialogs.h"
#include "platform/system/machine.h"

namespace mv {

std::string UserTitle(std::string_view text, char delimiter, int n) {
  return modules::MV_UserTitle(text, delimiter, n);
}

std::string RemoveColorBlock(std::string_view text) {
  return modules::MV_RemoveColorBlock(text);
}

std::u16string RemoveColorBlock(std::u16string_view text) {
  return modules::MV_RemoveColorBlock(text);
}

void ShowErrorBox(const std::u16string& text) {
  dialogs::DialogRequest request;
  request.kind = dialogs::mtError;
  request.caption = codepage::ToWide(sys::ApplicationTitle(), codepage::SystemCodePage());
  request.text = text;
  request.buttons = {dialogs::mbOK};
  request.defaultButton = dialogs::mbOK;
  dialogs::ShowDialog(request);
}

}  // namespace mv
