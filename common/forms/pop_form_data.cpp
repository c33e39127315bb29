#include "common/forms/pop_form_data.h"

#include <algorithm>

namespace mv {

std::u16string PickFormData(std::u16string_view value, TDataStyle style) {
  const size_t bar = value.rfind(u'|');
  if (bar == std::u16string_view::npos) return std::u16string(value);
  switch (style) {
    case shGetLong:
      return std::u16string(value.substr(0, bar));
    case shGetShort:
      return std::u16string(value.substr(bar + 1));
    default:
      return std::u16string(value);
  }
}

std::u16string PopFormTextHead(std::u16string_view text) {
  size_t length = std::min(text.size(), kPopFormTextLimit);
  const bool splitsPair = length < text.size() && length > 0 && text[length - 1] >= 0xD800 &&
                          text[length - 1] <= 0xDBFF && text[length] >= 0xDC00 &&
                          text[length] <= 0xDFFF;
  if (splitsPair) --length;
  return std::u16string(text.substr(0, length));
}

QPoint BoundFormPosition(QPoint point, QSize form, std::optional<QSize> mainWindow) {
  int x = point.x();
  int y = point.y();
  if (mainWindow) {
    if (mainWindow->width() < x + form.width()) x = mainWindow->width() - form.width() - 4;
    if (mainWindow->height() < y + form.height()) y = mainWindow->height() - form.height() - 4;
  }
  return {std::max(x, 0), std::max(y, 0)};
}

}  // namespace mv
