#include "modules/mv_dialogs.h"

#include "platform/codepage/codepage.h"

namespace mv::modules {
namespace {

using dialogs::TMsgDlgBtn;
using dialogs::TMsgDlgButtons;
using dialogs::TMsgDlgType;

constexpr int kDesignDpi = 96;

TMsgDlgBtn DefaultButton(const TMsgDlgButtons& buttons) {
  for (TMsgDlgBtn b : {dialogs::mbOK, dialogs::mbYes, dialogs::mbRetry}) {
    if (buttons.Contains(b)) return b;
  }
  return buttons.List().front();
}

dialogs::DialogRequest MakeRequest(const std::u16string& caption, const std::u16string& text,
                                   TMsgDlgType kind, TMsgDlgButtons buttons) {
  if (buttons.Empty()) buttons = {dialogs::mbOK};
  dialogs::DialogRequest request;
  request.kind = kind;
  request.caption = caption;
  request.text = text;
  request.buttons = buttons;
  request.defaultButton = DefaultButton(buttons);
  return request;
}

// `text` as the user's code page holds it, cut to at most `maxBytes` bytes (0 or less: no cut)
// after a whole character.
std::u16string FitUserCodePage(const std::u16string& text, int maxBytes) {
  const int codePage = codepage::UserCodePage();
  std::u16string out;
  size_t bytes = 0;
  for (size_t i = 0; i < text.size();) {
    size_t units = (i + 1 < text.size() && text[i] >= 0xD800 && text[i] <= 0xDBFF &&
                    text[i + 1] >= 0xDC00 && text[i + 1] <= 0xDFFF)
                       ? 2
                       : 1;
    std::string narrow = codepage::FromWide(std::u16string_view(text).substr(i, units), codePage);
    bytes += narrow.size();
    if (maxBytes > 0 && bytes > static_cast<size_t>(maxBytes)) break;
    out += codepage::ToWide(narrow, codePage);
    i += units;
  }
  return out;
}

}  // namespace

void MV_Msg(const std::u16string& caption, const std::u16string& text, TMsgDlgType kind) {
  dialogs::ShowDialog(MakeRequest(caption, text, kind, {dialogs::mbOK}));
}

TMsgDlgBtn MV_MsgDlg(const std::u16string& caption, const std::u16string& text, TMsgDlgType kind,
                     TMsgDlgButtons buttons) {
  return dialogs::ShowDialog(MakeRequest(caption, text, kind, buttons));
}

bool MV_Confirm(const std::u16string& caption, const std::u16string& text) {
  return MV_ConfirmDlg(caption, text, {dialogs::mbYes, dialogs::mbNo}) == dialogs::mbYes;
}

TMsgDlgBtn MV_ConfirmDlg(const std::u16string& caption, const std::u16string& text,
                         TMsgDlgButtons buttons) {
  return MV_MsgDlg(caption, text, dialogs::mtConfirmation, buttons);
}

std::unique_ptr<dialogs::TMsgDialog> MV_CreateMsgDialog(const std::u16string& caption,
                                                        const std::u16string& text,
                                                        TMsgDlgType kind, TMsgDlgButtons buttons) {
  return dialogs::Provider().Create(MakeRequest(caption, text, kind, buttons));
}

std::unique_ptr<dialogs::TMsgDialog> MV_MsgForm(const std::u16string& caption,
                                                const std::u16string& text, TMsgDlgType kind,
                                                TMsgDlgButtons buttons) {
  std::unique_ptr<dialogs::TMsgDialog> dialog = MV_CreateMsgDialog(caption, text, kind, buttons);
  const int dpi = dialogs::Provider().ScreenDpi();
  if (dpi > 0 && dpi != kDesignDpi) dialog->ScaleBy(dpi, kDesignDpi);
  return dialog;
}

bool MV_MyInputQuery(const std::u16string& caption, const std::u16string& prompt,
                     std::u16string& value, int maxLength, bool ansi) {
  dialogs::InputQueryRequest request{caption, prompt, value, maxLength > 0 ? maxLength : 0};
  if (!dialogs::Provider().InputQuery(request)) return false;
  value = ansi ? FitUserCodePage(request.value, maxLength) : std::move(request.value);
  return true;
}

}  // namespace mv::modules
