// The rules of a drop-down pick form that need no widgets: which half of a "code|name" value goes
// into the edit, how much of the edit's text the form starts from, and where the form may stand.
#pragma once

#include <QPoint>
#include <QSize>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace mv {

// Which half of a value joined by "|" a pick form keeps.
enum TDataStyle : uint8_t { shNone = 0, shGetLong = 1, shGetShort = 2 };

// How a form was closed: mrOk writes the value back, anything else leaves the edit alone.
enum TModalResult { mrNone = 0, mrOk = 1, mrCancel = 2 };

// The most characters of the edit's text a pick form starts from.
inline constexpr size_t kPopFormTextLimit = 326;

// Of UTF-16 `value` with a "|": shGetLong the part before the last "|", shGetShort the part after
// it, shNone the whole; a value without "|" (or another style number) stays whole.
// "x|y|z" -> "x|y" / "z".
[[nodiscard]] std::u16string PickFormData(std::u16string_view value, TDataStyle style);

// The first kPopFormTextLimit UTF-16 units of `text`, one fewer when the cut would leave half of
// a surrogate pair.
[[nodiscard]] std::u16string PopFormTextHead(std::u16string_view text);

// Where a form of `form` size asked to stand at `point` (screen coordinates) is placed: pulled
// back to `mainWindow`'s width minus the form's width minus 4 when it would reach past the main
// window's width, the same for heights (the main window's size, not the screen's, is the bound);
// negative coordinates become 0. Without a main window only the last rule applies.
[[nodiscard]] QPoint BoundFormPosition(QPoint point, QSize form, std::optional<QSize> mainWindow);

}  // namespace mv
