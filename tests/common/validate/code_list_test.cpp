// The code list the build generated for the demo installation from ICU's data, against the two
// code pages it covers. (Hand-made lists with comments, duplicates and bad values are read by
// syntax_checks_test.cpp.)
#include "common/validate/chinese_code_list.h"

#include <gtest/gtest.h>

#include "common/frame/shared_state.h"
#include "common/validate/syntax_checks.h"
#include "platform/codepage/codepage.h"
#include "platform/codepage/simplified.h"
#include "platform/files/paths.h"

namespace mv::test {
namespace {

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

TEST(DemoCodeList, ADocumentMixingBothScriptsIsMixed) {
  const std::string saved = ServerPath;
  ServerPath = MV_DEMO_SERVER_DIR "/";
  char charset = kCharsetEnglish;
  std::string seen;
  for (std::u16string_view field : {u"Invoice 1，", u"發票", u"发票"}) {
    ChkChiCharset(field, u"Field", charset);
    seen += charset;
  }
  EXPECT_EQ(seen, "CTM");
  ServerPath = saved;
}

}  // namespace
}  // namespace mv::test
