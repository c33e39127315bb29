#include "platform/qt/qt_dialog_provider.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <cmath>

#include "platform/qt/input_query_dialog.h"
#include "platform/qt/qt_msg_dialog.h"

namespace mv::qt {

QtDialogProvider::QtDialogProvider(std::function<bool()> isEnglish)
    : isEnglish_(std::move(isEnglish)) {}

dialogs::TMsgDlgBtn QtDialogProvider::Show(const dialogs::DialogRequest& request) {
  return QtMsgDialog(request, English()).ShowModal();
}

std::unique_ptr<dialogs::TMsgDialog> QtDialogProvider::Create(
    const dialogs::DialogRequest& request) {
  return std::make_unique<QtMsgDialog>(request, English());
}

bool QtDialogProvider::InputQuery(dialogs::InputQueryRequest& request) {
  std::unique_ptr<QDialog> dialog = MakeInputDialog(request, English());
  return RunInputDialog(*dialog, request);
}

int QtDialogProvider::ScreenDpi() const {
  const QScreen* screen = QGuiApplication::primaryScreen();
  if (screen == nullptr) return 96;
  return static_cast<int>(std::lround(screen->logicalDotsPerInch()));
}

void QtDialogProvider::SetScreenCursor(dialogs::TCursor cursor) {
  if (cursor == cursor_) return;
  const QCursor shape(cursor == dialogs::crHourGlass ? Qt::WaitCursor : Qt::ArrowCursor);
  if (cursor_ == dialogs::crDefault) {
    QGuiApplication::setOverrideCursor(shape);
  } else if (cursor == dialogs::crDefault) {
    QGuiApplication::restoreOverrideCursor();
  } else {
    QGuiApplication::changeOverrideCursor(shape);
  }
  cursor_ = cursor;
}

}  // namespace mv::qt
