// Code-page fields. Every QLineEdit holds UTF-16 text; an edit marked as a code-page field stands
// for a field whose value is text of the user's code page (a Big5 field of a document), so forms
// that exchange its value do so through narrow text and what the code page cannot hold is lost
// on the way, as it would be when the value is stored.
#pragma once

#include <QLineEdit>
#include <QWidget>

namespace mv::qt {

// Marks (true) or unmarks (false) `edit` as a code-page field (a dynamic property of the edit).
void SetCodePageField(QLineEdit& edit, bool codePage);

// True when `widget` is an edit marked as a code-page field; false for nullptr, an unmarked edit
// or any other widget.
[[nodiscard]] bool IsCodePageField(const QWidget* widget);

}  // namespace mv::qt
