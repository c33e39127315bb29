#include "platform/report/preview_handler.h"

namespace mv::report {
namespace {

TPreviewHandler& Installed() {
  static TPreviewHandler handler;
  return handler;
}

bool Show(TReport& report, bool modal) {
  if (!Installed()) return false;
  Installed()(report, modal);
  return true;
}

}  // namespace

void SetPreviewHandler(TPreviewHandler handler) {
  Installed() = std::move(handler);
}

bool Preview(TReport& report) {
  return Show(report, false);
}

bool PreviewModal(TReport& report) {
  return Show(report, true);
}

}  // namespace mv::report
