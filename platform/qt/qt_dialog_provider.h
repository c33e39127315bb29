// The dialogs provider of a desktop host: every box, confirmation and input query of the library
// becomes a real Qt dialog. A host makes one after its QApplication and installs it with
// mv::dialogs::SetProvider (or ScopedProvider).
#pragma once

#include <functional>
#include <memory>

#include "platform/dialogs/dialogs.h"

namespace mv::qt {

class QtDialogProvider : public dialogs::DialogProvider {
 public:
  // `isEnglish` tells the language of button captions and default titles: true for English,
  // false for Traditional Chinese. It is asked each time a dialog is made, so a host passes
  // something that reads the library's current language and a language switch takes effect with
  // the next dialog. Empty: always English.
  explicit QtDialogProvider(std::function<bool()> isEnglish = {});

  // Replaces the language source (see the constructor).
  void SetLanguage(std::function<bool()> isEnglish) { isEnglish_ = std::move(isEnglish); }

  // Shows a QMessageBox (see MakeMsgBox) modally and returns the button that closed it.
  dialogs::TMsgDlgBtn Show(const dialogs::DialogRequest& request) override;
  // The same box, made now in the current language and not shown (a QtMsgDialog).
  std::unique_ptr<dialogs::TMsgDialog> Create(const dialogs::DialogRequest& request) override;
  // Shows the input dialog (see MakeInputDialog); true and `request.value` set on OK, false and
  // `request` unchanged on Cancel.
  bool InputQuery(dialogs::InputQueryRequest& request) override;
  // The logical dots per inch of the primary screen, rounded; 96 when there is no screen.
  int ScreenDpi() const override;
  // The cursor is the application's override cursor: crHourGlass shows the wait cursor, any other
  // shape but crDefault the arrow, and crDefault removes the override this provider set.
  dialogs::TCursor ScreenCursor() const override { return cursor_; }
  void SetScreenCursor(dialogs::TCursor cursor) override;

 private:
  bool English() const { return !isEnglish_ || isEnglish_(); }

  std::function<bool()> isEnglish_;
  dialogs::TCursor cursor_ = dialogs::crDefault;
};

}  // namespace mv::qt
