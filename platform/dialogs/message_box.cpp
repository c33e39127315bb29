#include "platform/dialogs/message_box.h"

#include <algorithm>
#include <initializer_list>

namespace mv::dialogs {
namespace {

constexpr TBoxButtons kSets[] = {TBoxButtons::kOk,          TBoxButtons::kOkCancel,
                                 TBoxButtons::kYesNo,       TBoxButtons::kYesNoCancel,
                                 TBoxButtons::kRetryCancel, TBoxButtons::kAbortRetryIgnore};

bool BoxCanShow(TMsgDlgBtn button) {
  return button != mbAll && button != mbNoToAll && button != mbYesToAll && button != mbHelp;
}

}  // namespace

std::vector<TMsgDlgBtn> BoxButtons(TBoxButtons set) {
  switch (set) {
    case TBoxButtons::kOkCancel:
      return {mbOK, mbCancel};
    case TBoxButtons::kYesNo:
      return {mbYes, mbNo};
    case TBoxButtons::kYesNoCancel:
      return {mbYes, mbNo, mbCancel};
    case TBoxButtons::kRetryCancel:
      return {mbRetry, mbCancel};
    case TBoxButtons::kAbortRetryIgnore:
      return {mbAbort, mbRetry, mbIgnore};
    default:
      return {mbOK};
  }
}

TMessageBoxLayout MessageBoxLayout(const DialogRequest& request) {
  std::vector<TMsgDlgBtn> wanted = request.buttons.List();
  std::erase_if(wanted, [](TMsgDlgBtn b) { return !BoxCanShow(b); });
  TBoxButtons best = TBoxButtons::kOk;
  long bestCount = -1;
  for (const TBoxButtons set : kSets) {
    const std::vector<TMsgDlgBtn> shown = BoxButtons(set);
    const long count = std::count_if(wanted.begin(), wanted.end(), [&](TMsgDlgBtn b) {
      return std::find(shown.begin(), shown.end(), b) != shown.end();
    });
    if (count == static_cast<long>(wanted.size())) {
      best = set;
      break;
    }
    if (count > bestCount) {
      best = set;
      bestCount = count;
    }
  }
  const std::vector<TMsgDlgBtn> shown = BoxButtons(best);
  const auto at = std::find(shown.begin(), shown.end(), request.defaultButton);
  return {best, at == shown.end() ? 0 : static_cast<int>(at - shown.begin())};
}

}  // namespace mv::dialogs
