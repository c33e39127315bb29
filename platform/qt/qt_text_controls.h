// The text controls of Qt widgets: a QLabel, a panel of a window's QStatusBar (a QLabel placed
// in it) and a window's title. Each adapter watches its widget: once the widget is destroyed the
// adapter reads an empty, hidden control and ignores writes, so a display may outlive its widget.
#pragma once

#include <QLabel>
#include <QPointer>
#include <QStatusBar>
#include <QWidget>
#include <memory>

#include "platform/controls/text_control.h"

namespace mv::qt {

// A QLabel's text and whether it is shown (not hidden; its window may still be closed). Texts are
// shown as plain text, never as rich text, so that data such as "<b>" in a caption reads as it
// stands.
class QtLabelText : public controls::TTextControl {
 public:
  explicit QtLabelText(QLabel* label);
  [[nodiscard]] std::u16string Text() const override;
  void SetText(const std::u16string& text) override;
  [[nodiscard]] bool Visible() const override;
  void SetVisible(bool visible) override;

 private:
  QPointer<QLabel> label_;
};

// A window's title (QWidget::windowTitle) and whether the window is shown.
class QtWindowTitle : public controls::TTextControl {
 public:
  explicit QtWindowTitle(QWidget* window);
  [[nodiscard]] std::u16string Text() const override;
  void SetText(const std::u16string& text) override;
  [[nodiscard]] bool Visible() const override;
  void SetVisible(bool visible) override;

 private:
  QPointer<QWidget> window_;
};

// Adds a panel to `statusBar`: a plain-text QLabel named `objectName` (UTF-8), placed at the
// bar's right end beside other permanent widgets; returns its text control. The bar owns the label;
// the control only watches it.
std::shared_ptr<controls::TTextControl> AddStatusPanel(QStatusBar& statusBar,
                                                       const char* objectName);

}  // namespace mv::qt
