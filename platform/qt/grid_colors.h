// Colour values of the settings (0x00BBGGRR for an RGB colour, 0xFF000000 plus an index for a
// system colour) as Qt colours, and the three row colours of a grid.
#pragma once

#include <QAbstractItemView>
#include <QColor>
#include <QPalette>

#include "platform/controls/grid_columns.h"

namespace mv::qt {

// The colour `color` stands for. An RGB value 0x00BBGGRR is QColor(RR, GG, BB); any top byte but
// 0xFF is read the same way from the low three bytes. A system colour 0xFF000000 + index takes
// the colour of the matching role of `palette` (the active group):
//    0 scroll bar    Button        11 inactive border  Window         22 3-D light     Midlight
//    1 desktop       Dark          12 MDI workspace    Dark           23 tip text      ToolTipText
//    2 caption       Highlight     13 selection        Highlight      24 tip           ToolTipBase
//    3 inactive cap. Mid           14 selected text    HighlightedText 26 hot-track    Link
//    4 menu          Window        15 button face      Button         27 cap. gradient Highlight
//    5 window        Base          16 button shadow    Dark           28 inact. grad.  Mid
//    6 window frame  Shadow        17 grey text        PlaceholderText 29 menu select. Highlight
//    7 menu text     WindowText    18 button text      ButtonText     30 menu bar      Window
//    8 window text   Text          19 inact. cap. text WindowText
//    9 caption text  HighlightedText 20 button light   Light
//   10 active border Window        21 3-D dark shadow  Shadow
// The window colour (5) is the background of edits, lists and grids, Qt's Base, not the
// background of dialogs, which is the button face (15). An index without a colour (25, or one
// above 30) gives an invalid QColor.
[[nodiscard]] QColor ColorFromValue(controls::TColor color, const QPalette& palette);

// Colours the rows of `view`: `first` is the background of the selected rows, whose text keeps
// the ordinary text colour (the default first colour is a pale blue on which white text would
// not read); `second` the background of the rows; `third` that of every other row (alternating
// row colours are switched on). System colours are those of the application's palette for the
// view. A colour that is not valid leaves its part of the view's palette as it was.
void ApplyGridColors(QAbstractItemView& view, controls::TColor first, controls::TColor second,
                     controls::TColor third);

}  // namespace mv::qt
