#include <gtest/gtest.h>

#include "common/frame/errors.h"
#include "common/text/error_texts.h"
#include "common/text/lang_changer.h"
#include "common/text/messages.h"
#include "common/text/status_tables.h"
#include "tests/common/text/text_fixture.h"

namespace mv::test {
namespace {

using FixedTablesTest = TextFixture;

TEST_F(FixedTablesTest, StatusNamesIgnoreCaseAndKnowUnknownLetters) {
  EXPECT_EQ(StatusDescription('t'), "Merovan processing");
  EXPECT_EQ(StatusDescription('Y'), "Query Outstanding");
  EXPECT_EQ(StatusDescription('d'), StatusDescription('G'));
  EXPECT_EQ(StatusDescription('B'), "Unknown");
  EXPECT_EQ(StatusDescription('\xA4'), "Unknown");
  EXPECT_EQ(StatusDesc_C('B'), "\xA4\xA3\xB8\xD4");  // 不詳 in Big5
  EXPECT_EQ(StatusDesc_CW('i'), u"備妥(文檔載入)");
  EXPECT_EQ(StatusDesc_CW('D'), u"傳送至政府");
  EXPECT_EQ(StatusDesc_CW('g'), u"傳送至政府");
  EXPECT_EQ(StatusDesc_CW('\0'), u"不詳");
}

TEST_F(FixedTablesTest, ErrorMsgReplacesOnlyTheFourFileErrors) {
  LangChanger().SetLanguage(kLangEnglish);
  EXPECT_EQ(ErrorMsg(EInOutError(100, "Disk read error")), "Disk read error");
  EXPECT_EQ(ErrorMsg(EInOutError(103, "File not open")), "Error in closing data file");
  EXPECT_EQ(ErrorMsg(EInOutError(105, "x")), "Error in writing data to an input file");
  EXPECT_EQ(ErrorMsg(EInOutError(106, "Invalid numeric input")), "Invalid numeric input");
  EXPECT_EQ(ErrorMsg(EConvertError("'x' is not a valid integer value")),
            "'x' is not a valid integer value");
  LangChanger().SetLanguage(kLangChinese);
  EXPECT_EQ(ErrorMsg(EInOutError(102, "File not assigned")),
            Big5("開啟已開啟的資料檔案時發生錯誤"));
  EXPECT_EQ(ErrorMsg(EInOutError(104, "x")), Big5("從輸出檔案讀取資料時發生錯誤"));
}

TEST_F(FixedTablesTest, CommunicationErrorTexts) {
  WriteCatalogue(
      "99=Try again later.\n"
      "6099=請稍後再試。\n"
      "4999=Communication error %d.\n"
      "10999=通訊錯誤 %d。\n"
      "5000=The port cannot be opened.\n"
      "11000=無法開啟通訊埠。\n");
  LangChanger().SetLanguage(kLangEnglish);
  EXPECT_EQ(get_comm_err_str(4999), "Communication error 4999.");
  EXPECT_EQ(get_comm_err_str(-3), "Communication error -3.");
  EXPECT_EQ(get_comm_err_str(5000), "Com Port Error: The port cannot be opened.");
  EXPECT_EQ(get_comm_err_str(5001), "Com Port Error: ");
  EXPECT_EQ(get_comm_err_str(99), "Try again later.");
  LangChanger().SetLanguage(kLangChinese);
  EXPECT_EQ(get_comm_err_str(5000), Big5("連接埠錯誤: 無法開啟通訊埠。"));
  EXPECT_EQ(get_comm_err_str(99), Big5("請稍後再試。"));
  EXPECT_EQ(get_comm_err_str(4998), Big5("通訊錯誤 4998。"));
}

TEST(ColorBlocks, MarksGoTheirStretchesAndOtherTextStay) {
  EXPECT_EQ(RemoveColorBlock("Status: <color=red>Error</color> (see log)"),
            "Status: Error (see log)");
  EXPECT_EQ(RemoveColorBlock("<COLOR=#FF0000>a</Color><color=$0000FF>b"), "ab");
  EXPECT_EQ(RemoveColorBlock("a < b <color=> <color=re d> <color=red"),
            "a < b <color=> <color=re d> <color=red");
  EXPECT_EQ(RemoveColorBlock(u"<color=clRed>錯誤</color>"), u"錯誤");
  // Big5 text around the marks: 0xA5 0x5C is one character.
  EXPECT_EQ(RemoveColorBlock("\xA5\x5C<color=1>\xA5\x5C</color>"), "\xA5\x5C\xA5\x5C");
}

}  // namespace
}  // namespace mv::test
