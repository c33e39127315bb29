// Length, character-set, mask and number-format checks, with the messages they show through a
// recording dialogs provider; the field-by-field check over a SQLite dataset.
#include "common/validate/syntax_checks.h"

#include <gtest/gtest.h>

#include <random>
#include <regex>

#include "common/frame/errors.h"
#include "common/text/lang_changer.h"
#include "platform/db/dataset.h"
#include "platform/system/machine.h"
#include "tests/common/text/text_fixture.h"
#include "tests/platform/db/db_fixture.h"

namespace mv::test {
namespace {

using namespace mv::dialogs;

// A code list of a few characters: 台 common, 發 們 Traditional, 发 们 Simplified, 丐 with a
// value that is no class.
constexpr std::string_view kCodeList =
    "; test list\r\n53F0=C\r\n767C=T\r\n5011=T\r\n53D1=S\r\n4EEC=S\r\n4E10=X\r\n53F0=T\r\n";

class SyntaxChecksTest : public TextFixture {
 protected:
  SyntaxChecksTest() {
    WriteCatalogue(
        "2165=%s contains the character \"%s\", which is not allowed here.\n"
        "8165=%s含有不容許的字元「%s」。\n");
    LangChanger().SetLanguage(kLangEnglish);
  }
  void WriteCodeList(std::string_view text) const {
    installation_.Dir().Write("client/server/TCCS.map", text);
  }
  // The text of the one box shown so far (the test fails when there is not exactly one).
  std::u16string Shown() const {
    EXPECT_EQ(dialogs_.Requests().size(), 1u);
    if (dialogs_.Requests().empty()) return {};
    const DialogRequest& box = dialogs_.Requests().back();
    EXPECT_EQ(box.kind, mtError);
    EXPECT_EQ(box.buttons, TMsgDlgButtons{mbOK});
    EXPECT_EQ(box.caption, codepage::ToWide(sys::ApplicationTitle(), codepage::SystemCodePage()));
    return box.text;
  }
  // Charset after ChkChiCharset of `text` with `charset` given.
  char Fold(std::u16string_view text, char charset) {
    ChkChiCharset(text, u"F", charset);
    return charset;
  }
};

TEST_F(SyntaxChecksTest, FieldLengthRaisesTheBilingualMessage) {
  EXPECT_NO_THROW(CheckFieldLength(u"報單12", 4, "Ref"));
  try {
    CheckFieldLength(u"報單123", 4, "Ref");
    FAIL();
  } catch (const std::runtime_error& error) {
    EXPECT_STREQ(error.what(), "Ref: Your input is too long, please shorten.");
  }
  LangChanger().SetLanguage(kLangChinese);
  try {
    CheckFieldLength(u"12345", 4, "");
    FAIL();
  } catch (const std::runtime_error& error) {
    EXPECT_EQ(error.what(), Big5("你所輸入之資料太長。請縮短。"));
  }
  EXPECT_TRUE(dialogs_.Requests().empty());
}

TEST_F(SyntaxChecksTest, EnglishCharacterSet) {
  EXPECT_NO_THROW(ChkEngCharSet("Line 1 ~!\r\nLine 2\n", u"Remarks"));
  EXPECT_THROW(ChkEngCharSet("A\tB\x01", u"Remarks"), EAbort);
  EXPECT_EQ(Shown(), u"Remarks contains the character \"\t\", which is not allowed here.");
  // A Big5 character is shown whole, in the current language's text.
  LangChanger().SetLanguage(kLangChinese);
  EXPECT_THROW(ChkEngCharSet("OK" + Big5("報單"), u"備註"), EAbort);
  EXPECT_EQ(dialogs_.Requests().back().text, u"備註含有不容許的字元「報」。");
}

TEST_F(SyntaxChecksTest, DocumentSyntaxSet) {
  EXPECT_NO_THROW(ChkSyntax(u"abc XYZ 0-9 !\"%&'()*+,-./:;<=>?\r\n", u"Goods"));
  for (std::u16string_view refused : {u"_", u"@", u"#", u"[", u"~", u"\t", u"é", u"報"}) {
    EXPECT_THROW(ChkSyntax(std::u16string(u"ok") + std::u16string(refused), u"Goods"), EAbort);
  }
  EXPECT_EQ(dialogs_.Requests().size(), 8u);
  // The character is shown as typed, not upper-cased; a character outside the first plane whole.
  dialogs_.Clear();
  EXPECT_THROW(ChkSyntax(u"ab\U0002000Bc", u"Goods"), EAbort);
  EXPECT_EQ(Shown(), u"Goods contains the character \"\U0002000B\", which is not allowed here.");
  // Upper-casing comes first: the dotless i becomes "I" and passes.
  EXPECT_NO_THROW(ChkSyntax(u"\u0131", u"Goods"));
}

TEST_F(SyntaxChecksTest, ChineseClassesAcrossFields) {
  WriteCodeList(kCodeList);
  char charset = kCharsetEnglish;
  ChkChiCharset(u"Invoice 發", u"Goods", charset);
  EXPECT_EQ(charset, kCharsetTraditional);
  ChkChiCharset(u"发", u"Goods", charset);
  EXPECT_EQ(charset, kCharsetMixed);
  ChkChiCharset(u"abc", u"Goods", charset);
  EXPECT_EQ(charset, kCharsetMixed);
  EXPECT_TRUE(dialogs_.Requests().empty());

  // The first rule that holds wins.
  EXPECT_EQ(Fold(u"abc", kCharsetEnglish), 'E');
  EXPECT_EQ(Fold(u"台", kCharsetEnglish), 'C');  // first line of a code counts
  EXPECT_EQ(Fold(u"abc", kCharsetCommon), 'C');
  EXPECT_EQ(Fold(u"台", kCharsetSimplified), 'S');
  EXPECT_EQ(Fold(u"們", kCharsetCommon), 'T');
  EXPECT_EQ(Fold(u"们發", kCharsetEnglish), 'M');
  EXPECT_EQ(Fold(u"们", kCharsetTraditional), 'M');
  EXPECT_EQ(Fold(u"", kCharsetMixed), 'M');
}

TEST_F(SyntaxChecksTest, ChineseCheckRefusesWhatTheListDoesNotClassify) {
  WriteCodeList(kCodeList);
  char charset = kCharsetTraditional;
  for (std::u16string_view text : {u"台丐", u"台们語", u"台\x7F", u"台\t"}) {
    EXPECT_THROW(ChkChiCharset(text, u"Goods", charset), EAbort);
  }
  EXPECT_EQ(charset, kCharsetTraditional);
  ASSERT_EQ(dialogs_.Requests().size(), 4u);
  EXPECT_EQ(dialogs_.Requests()[0].text,
            u"Goods contains the character \"丐\", which is not allowed here.");
  EXPECT_EQ(dialogs_.Requests()[1].text,
            u"Goods contains the character \"語\", which is not allowed here.");
}

TEST_F(SyntaxChecksTest, WithoutACodeListChineseIsNotChecked) {
  char charset = kCharsetEnglish;
  ChkChiCharset(u"語言 ÿ", u"Goods", charset);
  EXPECT_EQ(charset, kCharsetEnglish);
  EXPECT_THROW(ChkChiCharset(u"語\t", u"Goods", charset), EAbort);
}

TEST(TabDelimited, TabsOutsideQuotesOnly) {
  EXPECT_TRUE(IsTabDelimited(u"a\tb"));
  EXPECT_FALSE(IsTabDelimited(u"\"a\tb\",c"));
  EXPECT_FALSE(IsTabDelimited(u"plain,csv"));
  EXPECT_TRUE(IsTabDelimited(u"\"a\"\tb"));
  // Doubled quotes are escaped quotes: the stretch goes on past them.
  EXPECT_FALSE(IsTabDelimited(u"\"say \"\"hi\t\"\"\",x"));
  // An empty quoted field ("") is dropped first; what follows is outside any quote.
  EXPECT_TRUE(IsTabDelimited(u"\"\"\tx"));
  // A quote without its partner hides nothing.
  EXPECT_TRUE(IsTabDelimited(u"\"a\tb"));
  EXPECT_TRUE(IsTabDelimited(u"\"a\",\"b\tc"));
  EXPECT_FALSE(IsTabDelimited(u""));
}

TEST(ChineseText, HasChineseInBothForms) {
  ScopedEnv codePage("MV_CODEPAGE", "950");
  EXPECT_TRUE(HasChinese(Big5("報單")));
  EXPECT_TRUE(HasChinese(u"報單"));
  EXPECT_FALSE(HasChinese(std::string("TDEC")));
  EXPECT_FALSE(HasChinese(u"TDEC"));
}

TEST(Formats, MaskRules) {
  const TCharSet none;
  const TCharSet slash = MakeCharSet("/-");
  EXPECT_TRUE(ChkFormat(u"ab12", u"AA99", none));
  EXPECT_FALSE(ChkFormat(u"ab12", u"AA9", none));
  EXPECT_TRUE(ChkFormat(u"a1Z9", u"XXXX", none));
  EXPECT_FALSE(ChkFormat(u"a_", u"XX", none));
  EXPECT_TRUE(ChkFormat(u"HK/1-", u"AAO9O", slash));
  EXPECT_FALSE(ChkFormat(u"HK.1", u"AAO9", slash));
  EXPECT_TRUE(ChkFormat(u"報?", u"**", none));
  EXPECT_TRUE(ChkFormat(u"TD-1", u"TD-9", none));
  EXPECT_FALSE(ChkFormat(u"td-1", u"td-9", none));  // the value is upper-cased, the mask not
  EXPECT_FALSE(ChkFormat(u"", u"", none));
  EXPECT_FALSE(ChkFormat(u"  ", u"**", none));
  EXPECT_FALSE(ChkFormat(u"Ａ1", u"A9", none));
  // "O" looks at the low byte: U+4E2F ends in 0x2F, "/".
  EXPECT_TRUE(ChkFormat(u"\u4E2F", u"O", slash));
  EXPECT_TRUE(ChkFormat(u"ß", u"ß", none));  // its upper case is two letters: kept as it is

  EXPECT_TRUE(ChkFormat(std::string("ab12"), std::string("AA99"), none));
  EXPECT_FALSE(ChkFormat(std::string("ab12"), std::string("AA9"), none));
  EXPECT_TRUE(ChkFormat(std::string("1/2"), std::string("9O9"), slash));
  EXPECT_TRUE(ChkFormat(std::string("\xB3\xF8"), std::string("**"), none));
  EXPECT_FALSE(ChkFormat(std::string(" "), std::string("*"), none));
}

// The decimal format check as its rule reads: a number, padded, fits one of the masks.
bool FloatByMasks(const std::u16string& value, int n, int x) {
  static const std::regex number(R"(^ *[+-]?(\d+\.?\d*|\.\d+)([eE][+-]?\d+)? *$)");
  if (n < 0 || x < 0 || x > n || !std::regex_match(codepage::Utf8FromWide(value), number))
    return false;
  const bool point = value.find(u'.') != std::u16string::npos;
  std::u16string s = value;
  const size_t width = static_cast<size_t>(point ? n + 1 : n);
  if (s.size() < width) s.insert(0, width - s.size(), u'9');
  for (int d = 0; d <= x; ++d) {
    std::u16string mask(static_cast<size_t>(n - d), u'9');
    if (d > 0) mask += u"." + std::u16string(static_cast<size_t>(d), u'9');
    if (ChkFormat(s, mask, TCharSet())) return true;
  }
  return false;
}

TEST(Formats, DecimalNumbers) {
  EXPECT_TRUE(ChkFloatFmt_NDotDotXCommaY(u"12.5", 5, 2));
  EXPECT_TRUE(ChkFloatFmt_NDotDotXCommaY(u"123.45", 5, 2));
  EXPECT_TRUE(ChkFloatFmt_NDotDotXCommaY(u"12345", 5, 2));
  EXPECT_FALSE(ChkFloatFmt_NDotDotXCommaY(u"1234.56", 5, 2));
  EXPECT_FALSE(ChkFloatFmt_NDotDotXCommaY(u"123.456", 5, 2));
  EXPECT_FALSE(ChkFloatFmt_NDotDotXCommaY(u"-1.5", 5, 2));
  EXPECT_FALSE(ChkFloatFmt_NDotDotXCommaY(u"1", 2, 3));
  EXPECT_FALSE(ChkFloatFmt_NDotDotXCommaY(u"1", -1, 0));
  EXPECT_FALSE(ChkFloatFmt_NDotDotXCommaY(u"1x", 5, 2));
  EXPECT_FALSE(ChkFloatFmt_NDotDotXCommaY(u"12.", 5, 2));
  EXPECT_TRUE(ChkFloatFmt_NDotDotXCommaY(u".5", 5, 2));
  EXPECT_TRUE(ChkFloatFmt_NDotDotXCommaY(u"7", 2000000000, 0));

  // Against the rule itself, on random texts of digits, points, signs and blanks.
  std::mt19937 random(7);
  const std::u16string alphabet = u"0123456789..-+ e";
  for (int i = 0; i < 20000; ++i) {
    std::u16string value(random() % 8, u' ');
    for (char16_t& c : value) c = alphabet[random() % alphabet.size()];
    const int n = static_cast<int>(random() % 8) - 1;
    const int x = static_cast<int>(random() % 8) - 1;
    EXPECT_EQ(ChkFloatFmt_NDotDotXCommaY(value, n, x), FloatByMasks(value, n, x))
        << "\"" << codepage::Utf8FromWide(value) << "\" " << n << " " << x;
  }
}

// The field-by-field check of a dataset's current row.
class SynFieldTest : public SyntaxChecksTest {
 protected:
  SynFieldTest() {
    WriteCodeList(kCodeList);
    Exec(
        "create table Doc (RefNo varchar(10), Subject nvarchar(20), Code char(4), Qty int, "
        "Note nvarchar(20))");
  }
  void Row(const std::u16string& values) {
    Exec(u"delete from Doc");
    Exec(u"insert into Doc values (" + values + u")");
    ds_.Close();
    ds_.Open();
    if (ds_.FieldCount() > 1) ds_.Fields(1).SetDisplayLabel("Subject of the message");
  }

  TempDir dir_;
  SqliteBackend db_{dir_};
  db::TMVADODataSet ds_;
};

TEST_F(SynFieldTest, WideFieldsFoldTheirClassesNarrowOnesAreEnglish) {
  ds_.SetCommandText("select * from Doc");
  Row(u"'REF1', '發票', 'AB12', 3, '发票'");
  char charset = kCharsetEnglish;
  EXPECT_THROW(ChkSynField(ds_, {}, charset), EAbort);  // 票 is not in the list
  EXPECT_EQ(Shown(),
            u"Subject of the message contains the character \"票\", which is not allowed "
            u"here.");

  Row(u"'REF1', '發', 'AB12', 3, '发'");
  charset = kCharsetEnglish;
  ChkSynField(ds_, {}, charset);
  EXPECT_EQ(charset, kCharsetMixed);
  charset = kCharsetEnglish;
  ChkSynField(ds_, {"NOTE"}, charset);
  EXPECT_EQ(charset, kCharsetTraditional);

  // A narrow field is checked as English text; a number field is not looked at.
  Row(u"'REF\t1', '台', 'AB12', 3, ''");
  dialogs_.Clear();
  EXPECT_THROW(ChkSynField(ds_, {}), EAbort);
  EXPECT_EQ(Shown(), u"RefNo contains the character \"\t\", which is not allowed here.");
  EXPECT_NO_THROW(ChkSynField(ds_, {"refno"}));
}

TEST_F(SynFieldTest, CalculatedFieldsAreSkipped) {
  ds_.SetCommandText("select RefNo from Doc");
  Row(u"'REF1', '', 'AB12', 3, ''");
  ds_.AddCalculatedField("Shown", db::ftString,
                         [](db::TMVADODataSet&) { return db::Variant(std::string("a\tb")); });
  EXPECT_NO_THROW(ChkSynField(ds_, {}));
  EXPECT_TRUE(dialogs_.Requests().empty());
}

}  // namespace
}  // namespace mv::test
