#include "platform/qt/qt_font.h"

namespace mv::qt {

QFont ToQFont(const FontSpec& spec) {
  QFont font(QString::fromStdU16String(spec.family));
  if (spec.pointSize > 0) font.setPointSizeF(spec.pointSize);
  return font;
}

}  // namespace mv::qt
