#include "platform/qt/grid_colors.h"

#include <QApplication>
#include <array>

namespace mv::qt {
namespace {

constexpr controls::TColor kSystemColor = 0xFF000000;
constexpr QPalette::ColorRole kNoRole = QPalette::NColorRoles;

// The palette role of each system colour index (see the header); kNoRole where none.
constexpr std::array<QPalette::ColorRole, 31> kSystemRoles = {QPalette::Button,
                                                              QPalette::Dark,
                                                              QPalette::Highlight,
                                                              QPalette::Mid,
                                                              QPalette::Window,
                                                              QPalette::Base,
                                                              QPalette::Shadow,
                                                              QPalette::WindowText,
                                                              QPalette::Text,
                                                              QPalette::HighlightedText,
                                                              QPalette::Window,
                                                              QPalette::Window,
                                                              QPalette::Dark,
                                                              QPalette::Highlight,
                                                              QPalette::HighlightedText,
                                                              QPalette::Button,
                                                              QPalette::Dark,
                                                              QPalette::PlaceholderText,
                                                              QPalette::ButtonText,
                                                              QPalette::WindowText,
                                                              QPalette::Light,
                                                              QPalette::Shadow,
                                                              QPalette::Midlight,
                                                              QPalette::ToolTipText,
                                                              QPalette::ToolTipBase,
                                                              kNoRole,
                                                              QPalette::Link,
                                                              QPalette::Highlight,
                                                              QPalette::Mid,
                                                              QPalette::Highlight,
                                                              QPalette::Window};

void SetIfValid(QPalette& palette, QPalette::ColorRole role, const QColor& color) {
  if (!color.isValid()) return;
  for (QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
    palette.setColor(group, role, color);
  }
}

}  // namespace

QColor ColorFromValue(controls::TColor color, const QPalette& palette) {
  if ((color & 0xFF000000) != kSystemColor) {
    return QColor(color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF);
  }
  const controls::TColor index = color & 0x00FFFFFF;
  if (index >= kSystemRoles.size() || kSystemRoles[index] == kNoRole) return {};
  return palette.color(QPalette::Active, kSystemRoles[index]);
}

void ApplyGridColors(QAbstractItemView& view, controls::TColor first, controls::TColor second,
                     controls::TColor third) {
  const QPalette system = QApplication::palette(&view);
  QPalette palette = view.palette();
  const QColor selection = ColorFromValue(first, system);
  SetIfValid(palette, QPalette::Highlight, selection);
  if (selection.isValid())
    SetIfValid(palette, QPalette::HighlightedText, system.color(QPalette::Text));
  SetIfValid(palette, QPalette::Base, ColorFromValue(second, system));
  SetIfValid(palette, QPalette::AlternateBase, ColorFromValue(third, system));
  view.setPalette(palette);
  view.setAlternatingRowColors(true);
}

}  // namespace mv::qt
