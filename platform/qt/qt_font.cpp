#include "platform/qt/qt_font.h"

namespace mv::qt {

QFont ToQFont(const TextFont& font) {
  QFont out(QString::fromStdU16String(font.family));
  if (font.pointSize > 0) out.setPointSizeF(font.pointSize);
  return out;
}

}  // namespace mv::qt
