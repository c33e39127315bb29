// Windows: the dialogs provider over the system's MessageBoxW.
#include <windows.h>

#include "platform/dialogs/message_box.h"

namespace mv::dialogs {
namespace {

UINT ButtonsFlag(TBoxButtons set) {
  switch (set) {
    case TBoxButtons::kOkCancel:
      return MB_OKCANCEL;
    case TBoxButtons::kYesNo:
      return MB_YESNO;
    case TBoxButtons::kYesNoCancel:
      return MB_YESNOCANCEL;
    case TBoxButtons::kRetryCancel:
      return MB_RETRYCANCEL;
    case TBoxButtons::kAbortRetryIgnore:
      return MB_ABORTRETRYIGNORE;
    default:
      return MB_OK;
  }
}

UINT IconFlag(TMsgDlgType kind) {
  switch (kind) {
    case mtWarning:
      return MB_ICONWARNING;
    case mtError:
      return MB_ICONERROR;
    case mtInformation:
      return MB_ICONINFORMATION;
    case mtConfirmation:
      return MB_ICONQUESTION;
    default:
      return 0;
  }
}

TMsgDlgBtn ButtonOfAnswer(int answer, TMsgDlgBtn otherwise) {
  switch (answer) {
    case IDOK:
      return mbOK;
    case IDCANCEL:
      return mbCancel;
    case IDABORT:
      return mbAbort;
    case IDRETRY:
      return mbRetry;
    case IDIGNORE:
      return mbIgnore;
    case IDYES:
      return mbYes;
    case IDNO:
      return mbNo;
    default:
      return otherwise;
  }
}

}  // namespace

TMsgDlgBtn TMessageBoxProvider::Show(const DialogRequest& request) {
  const TMessageBoxLayout layout = MessageBoxLayout(request);
  const UINT flags = ButtonsFlag(layout.buttons) | IconFlag(request.kind) |
                     static_cast<UINT>(layout.defaultIndex * MB_DEFBUTTON2) | MB_SETFOREGROUND;
  const std::wstring text(request.text.begin(), request.text.end());
  const std::wstring caption(request.caption.begin(), request.caption.end());
  const int answer = ::MessageBoxW(::GetActiveWindow(), text.c_str(), caption.c_str(), flags);
  return ButtonOfAnswer(answer, request.defaultButton);
}

std::unique_ptr<TMsgDialog> TMessageBoxProvider::Create(const DialogRequest& request) {
  return std::make_unique<TProviderMsgDialog>(*this, request);
}

bool TMessageBoxProvider::InputQuery(InputQueryRequest& /*request*/) {
  return false;
}

}  // namespace mv::dialogs
