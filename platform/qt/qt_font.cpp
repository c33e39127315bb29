#include "platform/qt/qt_font.h"

namespace mv::qt {

QFont ToQFont(const TextFont& font) {
  QFont out(QStringView(font.family).toString());
  if (font.pointSize > 0) out.setPointSizeF(font.pointSize);
  return out;
}

}  // namespace mv::qt
