#include <gtest/gtest.h>

#include "modules/mv_text_catalogue.h"
#include "modules/mv_texts.h"
#include "platform/codepage/codepage.h"
#include "platform/files/paths.h"
#include "tests/support/temp_dir.h"

namespace mv::modules {
namespace {

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
  EXPECT_EQ(c.Find(4), u"");
  EXPECT_EQ(c.Find(5), u"");
  EXPECT_EQ(c.size(), 6u);
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
  EXPECT_EQ(c.warnings()[4].line, 6);
  EXPECT_EQ(c.warnings()[5].line, 7);
  EXPECT_EQ(c.warnings()[5].message, "number 7 repeated");
}

TEST(Texts, FindsTheCatalogueWithoutRegardToCaseAndKeepsIt) {
  test::TempDir dir;
  const std::string server = dir.path() + "/";
  dir.Write("sedifmsg.txt", "10=Ten\n6010=\xE5\x8D\x81\n");
  EXPECT_EQ(MV_LoadResStr(server, 10), u"Ten");
  EXPECT_EQ(MV_LoadCStr(server, 10, 1), u"Ten");
  EXPECT_EQ(MV_LoadCStr(server, 10, 0), u"十");
  EXPECT_EQ(MV_LoadCStr(server, 10, 3), u"十");
  EXPECT_EQ(MV_LoadCStr(server, 2147483647, 0), u"");
  // Read once: a later change of the file is not seen.
  dir.Write("sedifmsg.txt", "10=Changed\n");
  EXPECT_EQ(MV_LoadResStr(server, 10), u"Ten");
  EXPECT_EQ(MV_LoadResStr(dir.path() + "/missing/", 10), u"");
}

// The demo installation's catalogue has every text the library asks for, in both languages, and
// every Chinese text can be shown in Big5.
TEST(Texts, DemoCatalogueIsComplete) {
  std::optional<std::string> bytes =
      files::ReadWholeFile(std::string(MV_DEMO_SERVER_DIR) + "/" + kTextCatalogueName);
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

}  // namespace
}  // namespace mv::modules
