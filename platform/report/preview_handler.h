// How reports are shown on screen: the host installs its preview form once; any code that has a
// report then shows it with Preview / PreviewModal without knowing the form.
#pragma once

#include <functional>

namespace mv::report {

class TReport;

// Shows `report` in a preview; with `modal` true it returns only when the preview closed.
using TPreviewHandler = std::function<void(TReport& report, bool modal)>;

// Installs the preview (an empty function removes it).
void SetPreviewHandler(TPreviewHandler handler);

// Shows `report` in the installed preview, at once (Preview) or until it closes (PreviewModal);
// false when no preview is installed.
bool Preview(TReport& report);
bool PreviewModal(TReport& report);

}  // namespace mv::report
