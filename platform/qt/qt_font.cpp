#include "platform/qt/qt_font.h"

#include "platform/qt/qt_text.h"

namespace mv::qt {

QFont ToQFont(const TextFont& font) {
  QFont out(ToQString(font.family));
  if (font.pointSize > 0) out.setPointSizeF(font.pointSize);
  return out;
}

}  // namespace mv::qt
