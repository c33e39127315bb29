// The caption target of a Qt window: the language switch names a control, this finds the widget
// or action of that object name under a root widget and sets the text it shows.
#pragma once

#include <QPointer>
#include <QWidget>

#include "platform/dialogs/caption_target.h"

namespace mv::qt {

class QtCaptionTarget : public dialogs::TCaptionTarget {
 public:
  // Captions go to `root` and everything under it. The root is not owned; once it is destroyed
  // every SetCaption answers false.
  explicit QtCaptionTarget(QWidget* root) : root_(root) {}

  // Finds the object named `controlName` (UTF-8): the root itself, else the first descendant
  // Qt finds (widgets, actions, menus). What "caption" means by kind:
  //   a page of a QTabWidget        -> its tab's text
  //   QAction, QAbstractButton      -> text (push buttons, check boxes, radio and tool buttons)
  //   QLabel                        -> text
  //   QGroupBox, QMenu              -> title
  //   a window or a QDockWidget     -> window title
  // False when no object has that name or the object shows no caption (an edit, a list, a
  // layout); among several objects of that name the first that shows a caption gets it.
  bool SetCaption(std::string_view controlName, const std::u16string& caption) override;

 private:
  QPointer<QWidget> root_;
};

}  // namespace mv::qt
