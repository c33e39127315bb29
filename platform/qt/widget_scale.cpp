#include "platform/qt/widget_scale.h"

#include <QLayout>
#include <QPushButton>
#include <algorithm>
#include <cmath>

namespace mv::qt {
namespace {

int Scaled(int value, double ratio) {
  return static_cast<int>(std::lround(value * ratio));
}

void ScaleFont(QWidget& widget, double ratio) {
  QFont font = widget.font();
  if (font.pointSizeF() > 0) {
    font.setPointSizeF(font.pointSizeF() * ratio);
  } else {
    font.setPixelSize(std::max(1, Scaled(font.pixelSize(), ratio)));
  }
  widget.setFont(font);
}

// Done before the font changes, while the size hint still belongs to the old font.
void ScaleButton(QPushButton& button, double ratio) {
  const QSize size = button.sizeHint().expandedTo(button.minimumSize());
  button.setMinimumSize(Scaled(size.width(), ratio), Scaled(size.height(), ratio));
}

void ScaleLayout(QLayout& layout, double ratio) {
  const QMargins m = layout.contentsMargins();
  layout.setContentsMargins(Scaled(m.left(), ratio), Scaled(m.top(), ratio),
                            Scaled(m.right(), ratio), Scaled(m.bottom(), ratio));
  if (const int spacing = layout.spacing(); spacing > 0) layout.setSpacing(Scaled(spacing, ratio));
}

}  // namespace

void ScaleWidget(QWidget& root, double ratio) {
  for (QPushButton* button : root.findChildren<QPushButton*>()) ScaleButton(*button, ratio);
  for (QLayout* layout : root.findChildren<QLayout*>()) ScaleLayout(*layout, ratio);
  ScaleFont(root, ratio);
}

}  // namespace mv::qt
