#include "common/forms/preview_rules.h"

#include <climits>

#include "platform/codepage/codepage.h"

namespace mv::forms {
namespace {

std::u16string Number(int value) {
  return codepage::WideFromUtf8(std::to_string(value));
}

}  // namespace

int Str2Int(std::u16string_view text) {
  long long value = 0;
  for (char16_t c : text) {
    if (c == u' ') continue;
    if (c < u'0' || c > u'9') return 0;
    value = value * 10 + (c - u'0');
    if (value > INT_MAX) value = INT_MAX;
  }
  return static_cast<int>(value);
}

int PageAfterKey(int key, int current, int count) {
  if (count <= 0) return current;
  switch (key) {
    case kKeyPageUp:
      return current > 1 ? current - 1 : current;
    case kKeyPageDown:
      return current < count ? current + 1 : current;
    case kKeyEnd:
      return count;
    case kKeyHome:
      return 1;
    default:
      return current;
  }
}

std::u16string PageText(uint8_t language, int page, int count) {
  if (language == 1) return u"Page " + Number(page) + u" of " + Number(count);
  return u"第" + Number(page) + u"頁，共" + Number(count) + u"頁";
}

std::u16string ProgressText(uint8_t language, int percent) {
  const std::u16string_view lead =
      language == 1 ? u"Generating ... Please Wait ... " : u"建立中 ... 請等候 ... ";
  return std::u16string(lead) + Number(percent) + u"%";
}

std::u16string NoPrinterText(uint8_t language) {
  return language == 1 ? u"There is no printer installed. Unable to print."
                       : u"沒有設定打印機。無法列印。";
}

}  // namespace mv::forms
