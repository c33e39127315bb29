// Bilingual texts and message boxes.
#pragma once

#include <string>
#include <string_view>

namespace mv {

// Field `n` (counted from 1) of `text` split at `delimiter`; empty when there is no such field.
std::string UserTitle(std::string_view text, char delimiter, int n);

// Shows an error box (error icon, one OK button) with the application title as caption.
void ShowErrorBox(const std::u16string& text);

}  // namespace mv
