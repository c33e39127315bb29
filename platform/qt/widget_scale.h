// Scaling a laid-out widget the way a form is scaled to the screen: fonts, button sizes and the
// gaps of its layouts, so that the layout gives a window larger by the same ratio.
#pragma once

#include <QWidget>

namespace mv::qt {

// Scales `root` by `ratio` (> 0): its font (children without a font of their own follow), the
// smallest size of every push button under it (a button's style minimum would not grow with the
// font), and the margins and spacing of every layout under it. Calls compose.
void ScaleWidget(QWidget& root, double ratio);

}  // namespace mv::qt
