// The text catalogue, the texts loaded from it in the current or the installation's language, and
// the fixed status and error texts.
#include <gtest/gtest.h>

#include "common/frame/errors.h"
#include "common/frame/shared_state.h"
#include "common/text/error_texts.h"
#include "common/text/lang_changer.h"
#include "common/text/messages.h"
#include "common/text/status_tables.h"
#include "common/text/text_resources.h"
#include "modules/mv_text_catalogue.h"
#include "platform/files/paths.h"
#include "tests/common/text/text_fixture.h"

namespace mv::test {
namespace {

using modules::TTextCatalogue;

TEST(TextCatalogue, ReadsEntriesEscapesAndLineEnds) {
  TTextCatalogue c = TTextCatalogue::Parse(
      "\xEF\xBB\xBF; comment\r\n"
      "  # another\n"
      "\n"
      " 2000 =  Delete %s\r\n"
      "8000=\xE5\x88\xAA\xE9\x99\xA4%s\n"
      "1=Line one\\r\\nLine two\\tend\\\\\n"
      "2=\\  lead blank kept, trail kept \n"
      "3=C:\\Temp\\x\n"
      "4=");
  EXPECT_EQ(c.Find(2000), u"Delete %s");
  EXPECT_EQ(c.Find(8000), u"刪除%s");
  EXPECT_EQ(c.Find(1), u"Line one\r\nLine two\tend\\");
  EXPECT_EQ(c.Find(2), u"  lead blank kept, trail kept ");
  EXPECT_EQ(c.Find(3), u"C:\\Temp\\x");
  EXPECT_EQ(c.Find(5), u"");
  EXPECT_EQ(c.size(), 6u);  // "4=" is an entry
  EXPECT_TRUE(c.warnings().empty());
}

TEST(TextCatalogue, PassesOverBadLinesWithTheirNumbers) {
  TTextCatalogue c = TTextCatalogue::Parse(
      "7=first\n"
      "no equals sign\n"
      "-1=negative\n"
      "12a=not a number\n"
      "=no number\n"
      "99999999999=too big\n"
      "7=second\n"
      "8=\xFF\xFEok\n");
  EXPECT_EQ(c.Find(7), u"first");
  EXPECT_EQ(c.Find(8), u"\uFFFD\uFFFDok");
  ASSERT_EQ(c.warnings().size(), 6u);
  EXPECT_EQ(c.warnings()[0].line, 2);
  EXPECT_EQ(c.warnings()[5].line, 7);
  EXPECT_EQ(c.warnings()[5].message, "number 7 repeated");
}

TEST(TextCatalogue, FoundWithoutRegardToCaseAndReadOnce) {
  TempDir dir;
  const std::string server = dir.path() + "/";
  dir.Write("sedifmsg.txt", "10=Ten\n6010=\xE5\x8D\x81\n");
  EXPECT_EQ(modules::MV_LoadResStr(server, 10), u"Ten");
  EXPECT_EQ(modules::MV_LoadCStr(server, 10, 0), u"十");
  EXPECT_EQ(modules::MV_LoadCStr(server, 2147483647, 0), u"");
  dir.Write("sedifmsg.txt", "10=Changed\n");
  EXPECT_EQ(modules::MV_LoadResStr(server, 10), u"Ten");
  EXPECT_EQ(modules::MV_LoadResStr(dir.path() + "/missing/", 10), u"");
}

// The demo installation's catalogue has every text the library asks for, in both languages, and
// every Chinese text can be shown in Big5.
TEST(TextCatalogue, DemoCatalogueIsComplete) {
  std::optional<std::string> bytes =
      files::ReadWholeFile(std::string(MV_DEMO_SERVER_DIR) + "/" + modules::kTextCatalogueName);
  ASSERT_TRUE(bytes.has_value());
  TTextCatalogue c = TTextCatalogue::Parse(*bytes);
  EXPECT_TRUE(c.warnings().empty());
  std::vector<int> numbers = {99, 2000, 2001, 2002, 2003, 2165, 4999};
  for (int n = 5000; n <= 5015; ++n) numbers.push_back(n);
  for (int n : numbers) {
    SCOPED_TRACE(n);
    EXPECT_FALSE(c.Find(n).empty());
    std::u16string chinese = c.Find(n + 6000);
    EXPECT_FALSE(chinese.empty());
    EXPECT_EQ(codepage::ToWide(codepage::FromWide(chinese, codepage::kBig5), codepage::kBig5),
              chinese);
  }
  EXPECT_EQ(c.size(), 2 * numbers.size());
}

class TextResourcesTest : public TextFixture {
 protected:
  TextResourcesTest() {
    WriteCatalogue(
        "2000=Delete %s\n"
        "8000=刪除%s\n"
        "99=Try again later.\n"
        "4999=Communication error %d.\n"
        "10999=通訊錯誤 %d。\n"
        "5000=The port cannot be opened.\n"
        "11000=無法開啟通訊埠。\n"
        "30=English only\n"
        "6031=只有中文\n");
  }
  const modules::TFormatArg name_[1] = {std::string("Invoice")};
};

TEST_F(TextResourcesTest, LoadCStrFollowsTheCurrentLanguage) {
  const modules::TFormatArg code[] = {int64_t{42}};
  LangChanger().SetLanguage(kLangEnglish);
  EXPECT_EQ(LoadCStr(2000), "Delete %s");
  EXPECT_EQ(LoadCStr(2000, name_), "Delete Invoice");
  EXPECT_EQ(LoadCStrW(4999, code), u"Communication error 42.");
  EXPECT_EQ(LoadCStr(31), "");                  // no fallback to the other language
  EXPECT_EQ(LoadResStr(8000), Big5("刪除%s"));  // exactly the number, whatever the language
  LangChanger().SetLanguage(kLangChinese);
  EXPECT_EQ(LoadCStr(4999, code), Big5("通訊錯誤 42。"));
  EXPECT_EQ(LoadCStr(30), "");
  LangChanger().SetLanguage(kLangSimplified);
  EXPECT_EQ(LoadCStr(2000, name_), "\xC9\xBE\xB3\xFDInvoice");
}

TEST_F(TextResourcesTest, LoadSStrFollowsTheInstallationAndFallsBackToEnglish) {
  LangChanger().SetLanguage(kLangEnglish);
  SysLanguageMode = 0;
  EXPECT_EQ(LoadSStr(2000, name_), Big5("刪除Invoice"));
  EXPECT_EQ(LoadSStr(30), "English only");  // Chinese missing
  EXPECT_EQ(LoadSStr(31), Big5("只有中文"));
  EXPECT_EQ(LoadSStr(32), "");
  EXPECT_EQ(LoadCStr(2000, name_, true), Big5("刪除Invoice"));
  EXPECT_EQ(LoadCStr(2000, name_, false), "Delete Invoice");
  SysLanguageMode = 1;
  EXPECT_EQ(LoadCStr(31, true), "");  // a missing English text stays empty
  EXPECT_EQ(LoadSStr(2000), "Delete %s");
}

TEST_F(TextResourcesTest, CommunicationAndFileErrorTextsFollowTheLanguage) {
  LangChanger().SetLanguage(kLangEnglish);
  EXPECT_EQ(get_comm_err_str(4999), "Communication error 4999.");
  EXPECT_EQ(get_comm_err_str(5000), "Com Port Error: The port cannot be opened.");
  EXPECT_EQ(get_comm_err_str(5001), "Com Port Error: ");
  EXPECT_EQ(get_comm_err_str(99), "Try again later.");
  LangChanger().SetLanguage(kLangChinese);
  EXPECT_EQ(get_comm_err_str(5000), Big5("連接埠錯誤: 無法開啟通訊埠。"));
  // ErrorMsg replaces only the four file errors 102-105.
  LangChanger().SetLanguage(kLangEnglish);
  EXPECT_EQ(ErrorMsg(EInOutError(101, "Disk write error")), "Disk write error");
  EXPECT_EQ(ErrorMsg(EInOutError(105, "x")), "Error in writing data to an input file");
  EXPECT_EQ(ErrorMsg(EInOutError(106, "Invalid numeric input")), "Invalid numeric input");
  EXPECT_EQ(ErrorMsg(EConvertError("'x' is not a valid integer value")),
            "'x' is not a valid integer value");
  LangChanger().SetLanguage(kLangChinese);
  EXPECT_EQ(ErrorMsg(EInOutError(102, "File not assigned")),
            Big5("開啟已開啟的資料檔案時發生錯誤"));
}

TEST_F(TextResourcesTest, StatusNamesIgnoreCaseAndKnowUnknownLetters) {
  EXPECT_EQ(StatusDescription('t'), "Merovan processing");
  EXPECT_EQ(StatusDescription('d'), StatusDescription('G'));
  EXPECT_EQ(StatusDescription('B'), "Unknown");
  EXPECT_EQ(StatusDescription('\xA4'), "Unknown");
  EXPECT_EQ(StatusDesc_C('B'), "\xA4\xA3\xB8\xD4");  // 不詳 in Big5
  EXPECT_EQ(StatusDesc_CW('g'), u"傳送至政府");
  EXPECT_EQ(StatusDesc_CW('\0'), u"不詳");
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
