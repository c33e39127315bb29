// The preview's rules without a window: typed numbers, paging keys and the bilingual texts.
#include <gtest/gtest.h>

#include <climits>

#include "common/forms/preview_rules.h"

namespace mv::forms {
namespace {

TEST(PreviewRules, Str2IntSkipsBlanksAndGivesZeroForAnyOtherCharacter) {
  EXPECT_EQ(Str2Int(u"1 2"), 12);
  EXPECT_EQ(Str2Int(u" 007 "), 7);
  EXPECT_EQ(Str2Int(u"12a"), 0);
  EXPECT_EQ(Str2Int(u"a12"), 0);
  EXPECT_EQ(Str2Int(u""), 0);
  EXPECT_EQ(Str2Int(u"   "), 0);
  EXPECT_EQ(Str2Int(u"-3"), 0);
  EXPECT_EQ(Str2Int(u"100%"), 0);
  EXPECT_EQ(Str2Int(u"1\t2"), 0);                         // only the blank is skipped
  EXPECT_EQ(Str2Int(u"１２"), 0);                         // full-width digits are not digits here
  EXPECT_EQ(Str2Int(std::u16string_view(u"9\0", 2)), 0);  // a NUL is a character like any other
  EXPECT_EQ(Str2Int(u"99999999999999999999"), INT_MAX);
}

TEST(PreviewRules, PagingKeysStopAtTheEdges) {
  EXPECT_EQ(PageAfterKey(kKeyPageUp, 1, 3), 1);
  EXPECT_EQ(PageAfterKey(kKeyPageUp, 2, 3), 1);
  EXPECT_EQ(PageAfterKey(kKeyPageDown, 3, 3), 3);
  EXPECT_EQ(PageAfterKey(kKeyPageDown, 2, 3), 3);
  EXPECT_EQ(PageAfterKey(kKeyEnd, 1, 3), 3);
  EXPECT_EQ(PageAfterKey(kKeyHome, 3, 3), 1);
  EXPECT_EQ(PageAfterKey(0, 2, 3), 2);
  EXPECT_EQ(PageAfterKey(37, 2, 3), 2);
  EXPECT_EQ(PageAfterKey(kKeyEnd, 0, 0), 0);  // no pages: nowhere to go
}

TEST(PreviewRules, StatusTextsInBothLanguages) {
  EXPECT_EQ(PageText(1, 2, 10), u"Page 2 of 10");
  EXPECT_EQ(PageText(0, 2, 10), u"第2頁，共10頁");
  EXPECT_EQ(ProgressText(1, 42), u"Generating ... Please Wait ... 42%");
  EXPECT_EQ(ProgressText(0, 7), u"建立中 ... 請等候 ... 7%");
  EXPECT_EQ(NoPrinterText(1), u"There is no printer installed. Unable to print.");
  EXPECT_EQ(NoPrinterText(3), u"沒有設定打印機。無法列印。");
  EXPECT_EQ(kZoomItems[8].english, u"Page Width");
  EXPECT_EQ(kZoomItems[9].english, u"Whole Page");
  EXPECT_EQ(kZoomItems[7].percent, 10);
}

}  // namespace
}  // namespace mv::forms
