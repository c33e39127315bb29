// What the Qt tests share: a QApplication for the whole program (made before the first test)
// and a way to act on a modal dialog while the code under test runs it.
#pragma once

#include <QWidget>
#include <functional>

namespace mv::test {

// Calls `action` with the active modal widget as soon as one is shown. Schedule it, then call
// the routine that runs the dialog: the action runs inside that dialog's event loop. A dialog
// that the action leaves open is failed and closed after a few seconds.
void WhenModal(std::function<void(QWidget& modal)> action);

}  // namespace mv::test
