// The code list of Chinese characters: parsing, and the list generated for the demo installation
// from ICU's data, against the two code pages it covers.
#include "common/validate/chinese_code_list.h"

#include <gtest/gtest.h>

#include "common/frame/errors.h"
#include "common/frame/shared_state.h"
#include "common/validate/syntax_checks.h"
#include "platform/codepage/codepage.h"
#include "platform/codepage/simplified.h"
#include "platform/files/paths.h"

namespace mv::test {
namespace {

TEST(CodeList, ParsesNameValueLines) {
  const TChineseCodeList list = TChineseCodeList::Parse(
      "\xEF\xBB\xBF"
      "4e00=C\r\n; comment\n767C=T\n53D1=S\n4E8C=TT\n4E09=\n4E0G=C\n4E00=T\n4E03 =C\nFF0C=C");
  EXPECT_EQ(list.ClassOf(u'一'), 'C');
  EXPECT_EQ(list.ClassOf(u'發'), 'T');
  EXPECT_EQ(list.ClassOf(u'发'), 'S');
  EXPECT_EQ(list.ClassOf(u'二'), TChineseCodeList::kOtherValue);
  EXPECT_EQ(list.ClassOf(u'三'), TChineseCodeList::kOtherValue);
  EXPECT_EQ(list.ClassOf(u'七'), TChineseCodeList::kNoEntry);
  EXPECT_EQ(list.ClassOf(u'，'), 'C');
  EXPECT_EQ(list.Entries(), 6u);
  EXPECT_TRUE(TChineseCodeList::Parse("; nothing\r\n").Empty());
}

// The demo's list, as the build generated it.
class DemoCodeList : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    list_ = new TChineseCodeList(
        TChineseCodeList::Parse(files::ReadWholeFile(MV_DEMO_SERVER_DIR "/TCCS.map").value_or("")));
  }
  static void TearDownTestSuite() { delete list_; }

  // Every character of the double-byte codes lead x trail of `codePage` that is an ideograph.
  static std::u16string Ideographs(int codePage, int leadFirst, int leadLast, int trailFirst) {
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

  static inline TChineseCodeList* list_ = nullptr;
};

TEST_F(DemoCodeList, ClassifiesEveryIdeographOfBothCodePages) {
  const std::u16string big5 = Ideographs(codepage::kBig5, 0x81, 0xFE, 0x40);
  const std::u16string gb2312 = Ideographs(codepage::kGbk, 0xB0, 0xF7, 0xA1);
  EXPECT_GT(big5.size(), 13000u);
  EXPECT_EQ(gb2312.size(), 6763u);
  for (char16_t c : big5 + gb2312) {
    const char kind = list_->ClassOf(c);
    ASSERT_TRUE(kind == 'C' || kind == 'T' || kind == 'S') << std::hex << unsigned(c);
  }
  // A Traditional-only character has a Simplified form.
  for (char16_t c : big5) {
    if (list_->ClassOf(c) != 'T') continue;
    ASSERT_NE(codepage::ToSimplified(std::u16string(1, c)), std::u16string(1, c));
  }
}

TEST_F(DemoCodeList, KnownCharacters) {
  for (char16_t c : u"發們臺體") EXPECT_TRUE(c == 0 || list_->ClassOf(c) == 'T');
  for (char16_t c : u"发们说") EXPECT_TRUE(c == 0 || list_->ClassOf(c) == 'S');
  // In both code pages, whatever a transliterator says of them; punctuation of both.
  for (char16_t c : u"台后干一，。「」") EXPECT_TRUE(c == 0 || list_->ClassOf(c) == 'C');
  EXPECT_EQ(list_->ClassOf(u'A'), TChineseCodeList::kNoEntry);
}

TEST_F(DemoCodeList, ADocumentMixingBothScriptsIsMixed) {
  const std::string saved = ServerPath;
  ServerPath = MV_DEMO_SERVER_DIR "/";
  char charset = kCharsetEnglish;
  ChkChiCharset(u"Invoice No. 1，", u"Ref", charset);
  EXPECT_EQ(charset, kCharsetCommon);
  ChkChiCharset(u"發票", u"Subject", charset);
  EXPECT_EQ(charset, kCharsetTraditional);
  ChkChiCharset(u"发票", u"Remarks", charset);
  EXPECT_EQ(charset, kCharsetMixed);
  EXPECT_EQ(InstalledChineseCodeList().Entries(), list_->Entries());
  ServerPath = saved;
}

}  // namespace
}  // namespace mv::test
