// Forms laid out at fixed coordinates, designed at 96 dots per inch and scaled to the screen the
// way the library's message forms are: by the dialogs provider's ScreenDpi / 96.
#pragma once

#include <QRect>
#include <QStringList>
#include <QWidget>

namespace mv::qt {

// ScreenDpi of the installed dialogs provider divided by 96; 1 when it reports 0 or less.
[[nodiscard]] double DesignScale();

// `value` (design pixels) times `ratio`, rounded to the nearest pixel.
[[nodiscard]] int ScaledPixels(int value, double ratio);

// Places `widget` at `design` (left, top, width, height in design pixels, relative to its
// parent) times `ratio`.
void PlaceScaled(QWidget& widget, const QRect& design, double ratio);

// The fonts the forms are designed with, in order of preference: "MS Sans Serif", then its
// nearest narrow match that Debian ships, "DejaVu Sans Condensed" (package fonts-dejavu-extra).
[[nodiscard]] QStringList DesignFonts();

// Gives `form` the fixed client size `width` x `height` (design pixels) times `ratio` and the
// first of DesignFonts the machine has (characters it lacks come from the system's fallback
// fonts, Chinese ones too) at `pixels` (design pixels) times `ratio`; its children follow it.
void FixFormScaled(QWidget& form, int width, int height, int pixels, double ratio);

}  // namespace mv::qt
