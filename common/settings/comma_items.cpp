#include "common/frame/errors.h"
#include "common/settings/comma_items_p.h"
#include "platform/codepage/codepage.h"

namespace mv {

std::u16string TakeCommaItem(std::u16string& text) {
  const size_t comma = text.find(u',');
  std::u16string item = text.substr(0, comma);
  text.erase(0, comma == std::u16string::npos ? comma : comma + 1);
  return item;
}

std::optional<int32_t> WholeNumber(std::u16string_view item) {
  // Digits, signs and blanks are ASCII, so any other character fails the conversion anyway.
  try {
    return StrToInt(codepage::Utf8FromWide(item));
  } catch (const EConvertError&) {
    return std::nullopt;
  }
}

}  // namespace mv
