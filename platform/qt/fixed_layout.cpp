#include "platform/qt/fixed_layout.h"

#include <algorithm>
#include <cmath>

#include "platform/dialogs/dialogs.h"

namespace mv::qt {
namespace {

constexpr int kDesignDpi = 96;

}  // namespace

double DesignScale() {
  const int dpi = dialogs::Provider().ScreenDpi();
  return dpi > 0 ? static_cast<double>(dpi) / kDesignDpi : 1.0;
}

int ScaledPixels(int value, double ratio) {
  return static_cast<int>(std::lround(value * ratio));
}

void PlaceScaled(QWidget& widget, const QRect& design, double ratio) {
  widget.setGeometry(ScaledPixels(design.left(), ratio), ScaledPixels(design.top(), ratio),
                     ScaledPixels(design.width(), ratio), ScaledPixels(design.height(), ratio));
}

QStringList DesignFonts() {
  return {QStringLiteral("MS Sans Serif"), QStringLiteral("DejaVu Sans Condensed")};
}

void FixFormScaled(QWidget& form, int width, int height, int pixels, double ratio) {
  QFont font;
  font.setFamilies(DesignFonts());
  font.setPixelSize(std::max(1, ScaledPixels(pixels, ratio)));
  form.setFont(font);
  form.setFixedSize(ScaledPixels(width, ratio), ScaledPixels(height, ratio));
}

}  // namespace mv::qt
