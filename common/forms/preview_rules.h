// The rules of the print preview that need no window: reading a typed number, the page a
// navigation key leads to, the status texts in both languages and the zoom list.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace mv::forms {

// Navigation key codes of GotoPage: page up, page down, end, home; 0 moves nowhere.
inline constexpr int kKeyPageUp = 33;
inline constexpr int kKeyPageDown = 34;
inline constexpr int kKeyEnd = 35;
inline constexpr int kKeyHome = 36;

// The number typed in a field (UTF-16): digits 0-9 accumulate (value times 10 plus the digit),
// blanks are skipped, any other character makes the result 0 at once. "1 2" is 12, "12a" is 0,
// "" is 0. A value beyond the range of int stays at its largest value.
[[nodiscard]] int Str2Int(std::u16string_view text);

// The page that `key` leads to from page `current` of `count` pages: page up goes back one
// page unless on the first, page down on one unless on the last, end to the last, home to the
// first; any other key stays. With no pages the answer is `current`.
[[nodiscard]] int PageAfterKey(int key, int current, int count);

// "Page n of total" in English (language 1), "第n頁，共total頁" otherwise (UTF-16).
[[nodiscard]] std::u16string PageText(uint8_t language, int page, int count);
// "Generating ... Please Wait ... " / "建立中 ... 請等候 ... " followed by the percent and "%".
[[nodiscard]] std::u16string ProgressText(uint8_t language, int percent);
// "There is no printer installed. Unable to print." / "沒有設定打印機。無法列印。"
[[nodiscard]] std::u16string NoPrinterText(uint8_t language);

// The zoom list: what each item does and its captions.
enum TZoomKind { zkPercent, zkPageWidth, zkWholePage };
struct TZoomItem {
  TZoomKind kind;
  int percent;  // zkPercent only
  std::u16string_view english;
  std::u16string_view chinese;
};
inline constexpr std::array<TZoomItem, 10> kZoomItems{{
    {zkPercent, 500, u"500%", u"500%"},
    {zkPercent, 200, u"200%", u"200%"},
    {zkPercent, 150, u"150%", u"150%"},
    {zkPercent, 100, u"100%", u"100%"},
    {zkPercent, 75, u"75%", u"75%"},
    {zkPercent, 50, u"50%", u"50%"},
    {zkPercent, 25, u"25%", u"25%"},
    {zkPercent, 10, u"10%", u"10%"},
    {zkPageWidth, 0, u"Page Width", u"頁寬"},
    {zkWholePage, 0, u"Whole Page", u"整頁"},
}};

}  // namespace mv::forms
