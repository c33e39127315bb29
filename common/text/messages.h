// Bilingual texts and message boxes: the whole messages unit. The numbered texts, the dialogs,
// the status names, the error texts and the user's language have headers of their own, which
// this one brings in.
#pragma once

#include <string>
#include <string_view>

#include "common/text/error_texts.h"
#include "common/text/message_dialogs.h"
#include "common/text/status_tables.h"
#include "common/text/text_resources.h"
#include "common/text/user_language.h"

namespace mv {

// Field `n` (counted from 1) of `text` split at `delimiter`; empty when there is no such field.
std::string UserTitle(std::string_view text, char delimiter, int n);

// The text without its colour marks (the syntax is in modules/mv_colorblock.h), narrow (bytes in
// the user's code page) or wide; text that is not a well-formed mark is kept as it stands.
std::string RemoveColorBlock(std::string_view text);
std::u16string RemoveColorBlock(std::u16string_view text);

// Shows an error box (error icon, one OK button) with the application title as caption.
void ShowErrorBox(const std::u16string& text);

}  // namespace mv
