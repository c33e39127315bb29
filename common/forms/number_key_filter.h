// A key filter for number fields: of the characters typed into a field it is installed on, only
// the digits 0 to 9 arrive; every other character is discarded, backspace included. Keys that
// type no character (arrows, Delete, Home, End, Tab) pass.
#pragma once

#include <QObject>

namespace mv {

class TNumberKeyFilter : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

  // Whether the typed text `text` (UTF-16, as a key event carries it) may reach a number field:
  // the empty text (a key that types nothing) and the digits 0 to 9; false for anything else.
  [[nodiscard]] static bool Passes(const QString& text);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace mv
