// Length, character-set, mask and number-format checks, with the messages they show through a
// recording dialogs provider; the field-by-field check over a SQLite dataset; the code list the
// build generated for the demo installation from ICU's data, against the two code pages it covers.
#include "common/validate/syntax_checks.h"

#include <gtest/gtest.h>

#include "common/frame/errors.h"
#include "common/text/lang_changer.h"
#include "common/validate/chinese_code_list.h"
#include "platform/codepage/simplified.h"
#include "platform/db/dataset.h"
#include "platform/files/paths.h"
#include "platform/system/machine.h"
#include "tests/common/text/text_fixture.h"
#include "tests/platform/db/db_fixture.h"

namespace mv::test {
namespace {

class SyntaxChecksTest : public TextFixture {
 protected:
  SyntaxChecksTest() {
    WriteCatalogue("2165=%s contains \"%s\".\n8165=%s含有「%s」。\n");
    // 台 common, 發 們 Traditional, 发 们 Simplified, 丐 no class; the first line of a code wins.
    installation_.Dir().Write("client/server/TCCS.map",
                              "; list\r\n53F0=C\r\n767C=T\r\n5011=T\r\n53D1=S\r\n4EEC=S\r\n"
                              "4E10=X\r\n53F0=T\r\n");
    LangChanger().SetLanguage(kLangEnglish);
  }
  // The texts of the boxes shown, each an error box with one OK button under the program's title.
  std::u16string Shown() const {
    std::u16string texts;
    for (const dialogs::DialogRequest& box : dialogs_.Requests()) {
      EXPECT_TRUE(box.kind == dialogs::mtError &&
                  box.buttons == dialogs::TMsgDlgButtons{dialogs::mbOK});
      EXPECT_EQ(box.caption, codepage::ToWide(sys::ApplicationTitle(), codepage::SystemCodePage()));
      texts += box.text + u"|";
    }
    return texts;
  }
};

TEST_F(SyntaxChecksTest, FieldLengthRaisesTheBilingualMessage) {
  const auto message = [](std::u16string_view text, std::string_view caption) {
    try {
      CheckFieldLength(text, 4, caption);
    } catch (const std::runtime_error& error) {
      return std::string(error.what());
    }
    return std::string("passed");
  };
  EXPECT_EQ(message(u"報單12", "Ref"), "passed");
  EXPECT_EQ(message(u"報單123", "Ref"), "Ref: Your input is too long, please shorten.");
  LangChanger().SetLanguage(kLangChinese);
  EXPECT_EQ(message(u"12345", ""), Big5("你所輸入之資料太長。請縮短。"));
  EXPECT_EQ(Shown(), u"");
}

TEST_F(SyntaxChecksTest, EnglishAndSyntaxSetsStopAtTheFirstRefusedCharacter) {
  EXPECT_NO_THROW(ChkEngCharSet("Line 1 ~!\r\nLine 2\n", u"Remarks"));
  EXPECT_NO_THROW(ChkSyntax(u"abc XYZ 0-9 !\"%&'()*+,-./:;<=>?\r\n", u"Goods"));
  EXPECT_NO_THROW(ChkSyntax(u"\u0131", u"Goods"));  // upper-cased first: the dotless i is "I"
  EXPECT_THROW(ChkEngCharSet("A\tB\x01", u"Remarks"), EAbort);
  EXPECT_THROW(ChkEngCharSet("OK" + Big5("報單"), u"Remarks"), EAbort);  // shown whole
  // ß and ﬁ keep their case, as their upper case is more than one character.
  for (std::u16string_view refused :
       {u"a_", u"a~", u"a\t", u"aé", u"a\U0002000B", u"stra\u00DFe", u"\uFB01x"})
    EXPECT_THROW(ChkSyntax(refused, u"Goods"), EAbort);
  EXPECT_EQ(Shown(),
            u"Remarks contains \"\t\".|Remarks contains \"報\".|Goods contains \"_\".|Goods "
            u"contains \"~\".|Goods contains \"\t\".|Goods contains \"é\".|Goods contains "
            u"\"\U0002000B\".|Goods contains \"ß\".|Goods contains \"ﬁ\".|");
}

TEST_F(SyntaxChecksTest, ChineseClassesFoldAcrossFields) {
  const auto fold = [](std::u16string_view text, char charset) {
    ChkChiCharset(text, u"F", charset);
    return charset;
  };
  std::string seen;
  for (auto [text, charset] : {std::pair{u"abc", 'E'},
                               {u"台", 'E'},
                               {u"台", 'S'},
                               {u"們", 'C'},
                               {u"们發", 'E'},
                               {u"们", 'T'}})
    seen += fold(text, charset);
  EXPECT_EQ(seen, "ECSTMM");
  char charset = kCharsetTraditional;
  for (std::u16string_view text : {u"台丐", u"台们語", u"台\x7F"})
    EXPECT_THROW(ChkChiCharset(text, u"Goods", charset), EAbort);
  EXPECT_EQ(charset, kCharsetTraditional);
  EXPECT_EQ(Shown(), u"Goods contains \"丐\".|Goods contains \"語\".|Goods contains \"\x7F\".|");
  // Without a code list only the English characters are checked.
  ServerPath = installation_.Dir().MakeDir("elsewhere") + "/";
  EXPECT_EQ(fold(u"語言 ÿ", 'E'), 'E');
}

TEST(TabDelimited, TabsOutsideQuotesOnly) {
  for (auto [line, answer] : {std::pair{u"\"a\tb\",c", false},
                              {u"\"a\"\tb", true},
                              {u"\"say \"\"hi\t\"\"\",x", false},
                              {u"\"a\",\"b\tc", true}})
    EXPECT_EQ(IsTabDelimited(line), answer) << codepage::Utf8FromWide(line);
}

TEST(Formats, MasksDecimalNumbersAndChineseText) {
  EXPECT_TRUE(HasChinese(u"報單") && !HasChinese(std::string("TDEC")));
  const TCharSet none, slash = MakeCharSet("/-");
  std::string answers;
  for (auto [value, mask] : {std::pair{u"a1Z9", u"XXXX"},
                             {u"a_", u"XX"},
                             {u"HK/1-", u"AAO9O"},
                             {u"HK.1", u"AAO9"},
                             {u"td-1", u"TD-9"},
                             {u"td-1", u"td-9"},
                             {u"", u""},
                             {u"Ａ1", u"A9"},
                             {u"\u4E2F", u"O"},
                             {u"\u4E41\u3431\u4E58", u"A9X"},
                             {u"\u4E41", u"9"},
                             {u"ß", u"ß"}})
    answers += ChkFormat(value, mask, slash) ? '1' : '0';
  // Every rule but "*" and "itself" reads the low byte: U+4E2F is "/", 乁 "A", 㐱 "1", 乘 "X".
  // ß, whose upper case is two letters, stays itself.
  EXPECT_EQ(answers, "101010001101");
  EXPECT_TRUE(ChkFormat(std::string("ab1/"), std::string("AA9O"), slash));
  {
    ScopedEnv big5("MV_CODEPAGE", "950");
    // The second byte of Big5 地 is "a": not a letter to upper-case.
    EXPECT_TRUE(ChkFormat(Big5("地a"), Big5("地A"), none));
  }
  EXPECT_FALSE(ChkFormat(std::string(" "), std::string("*"), none));
  answers.clear();
  for (std::u16string_view value : {u"12.5", u"12345", u".5", u"1234.56", u"123.456", u"12."})
    answers += ChkFloatFmt_NDotDotXCommaY(value, 5, 2) ? '1' : '0';
  EXPECT_EQ(answers, "111000");
  EXPECT_FALSE(ChkFloatFmt_NDotDotXCommaY(u"1", 2, 3) || ChkFloatFmt_NDotDotXCommaY(u"1", -1, 0));
  EXPECT_TRUE(ChkFloatFmt_NDotDotXCommaY(u"7", 2000000000, 0));
}

TEST_F(SyntaxChecksTest, DatasetFieldsByTheirType) {
  TempDir dir;
  SqliteBackend db{dir};
  Exec(
      "create table Doc (RefNo varchar(10), Subject nvarchar(20), Code char(4), Qty int, "
      "Note nvarchar(20))");
  Exec(
      u"insert into Doc values ('REF1', '發', 'AB12', 3, '发'), ('REF\t1', '台', 'AB12', 3, "
      u"null), ('REF1', '發票', 'AB12', 3, '')");
  db::TMVADODataSet ds;
  ds.SetCommandText("select * from Doc");
  ds.Open();
  ds.Fields(1).SetDisplayLabel("Subject line");
  ds.AddCalculatedField("Shown", db::ftString, [](db::TMVADODataSet&) {
    return db::Variant(std::string("a\tb"));  // never looked at
  });
  char charset = kCharsetEnglish;
  ChkSynField(ds, {}, charset);
  EXPECT_EQ(charset, kCharsetMixed);
  charset = kCharsetEnglish;
  ChkSynField(ds, {"NOTE"}, charset);
  EXPECT_EQ(charset, kCharsetTraditional);
  ds.Next();
  EXPECT_NO_THROW(ChkSynField(ds, {"refno"}));
  EXPECT_THROW(ChkSynField(ds, {}), EAbort);
  ds.Next();
  EXPECT_THROW(ChkSynField(ds, {}, charset), EAbort);
  EXPECT_EQ(Shown(), u"RefNo contains \"\t\".|Subject line contains \"票\".|");
}

// Every ideograph of the double-byte codes lead x trail of `codePage`.
std::u16string Ideographs(int codePage, int leadFirst, int leadLast, int trailFirst) {
  std::u16string out;
  for (int lead = leadFirst; lead <= leadLast; ++lead) {
    for (int trail = trailFirst; trail <= 0xFE; ++trail) {
      const char bytes[] = {static_cast<char>(lead), static_cast<char>(trail)};
      const std::u16string c = codepage::ToWide(std::string_view(bytes, 2), codePage);
      if (c.size() == 1 && c[0] >= 0x4E00 && c[0] <= 0x9FFF) out += c;
    }
  }
  return out;
}

TEST(DemoCodeList, ClassifiesEveryIdeographOfBig5AndGB2312) {
  const TChineseCodeList list =
      TChineseCodeList::Parse(files::ReadWholeFile(MV_DEMO_SERVER_DIR "/TCCS.map").value_or(""));
  const std::u16string big5 = Ideographs(codepage::kBig5, 0x81, 0xFE, 0x40);
  const std::u16string gb2312 = Ideographs(codepage::kGbk, 0xB0, 0xF7, 0xA1);
  ASSERT_GT(big5.size(), 13000u);
  ASSERT_EQ(gb2312.size(), 6763u);
  for (char16_t c : big5 + gb2312) {
    const char kind = list.ClassOf(c);
    ASSERT_TRUE(kind == 'C' || kind == 'S' ||
                (kind == 'T' && codepage::ToSimplified({&c, 1}) != std::u16string(1, c)))
        << std::hex << unsigned(c);
  }
  std::string kinds;
  for (char16_t c : std::u16string_view(u"發們臺发们说台后干一，。")) kinds += list.ClassOf(c);
  EXPECT_EQ(kinds, "TTTSSSCCCCCC");
}

}  // namespace
}  // namespace mv::test
