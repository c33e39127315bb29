// Message-type lists read from the system configuration file in each language.
#include "common/services/msg_lists.h"

#include <gtest/gtest.h>

#include "common/frame/shared_state.h"
#include "common/text/lang_changer.h"
#include "tests/common/text/text_fixture.h"

namespace mv::test {
namespace {

class GetMsgListTest : public TextFixture {
 protected:
  GetMsgListTest() {
    Global_Merovan_Ini = "SEDIFSYS.INI";
    installation_.WriteSystemIni(
        "[E_TDEC_TYPES]\nHKTDEC=Trade declaration\nHKTDAM=Amendment\n"
        "[C_TDEC_TYPES]\nHKTDEC=" +
        Big5("貿易報關") + "\nHKTDAM=" + Big5("修改報關單") + "\n");
  }
  TStringList ListIn(uint8_t language, const std::string& entry) {
    LangChanger().SetLanguage(language);
    return *GetMsgList(entry);
  }
};

TEST_F(GetMsgListTest, TheLanguageChoosesTheSection) {
  const std::string entry = "TDEC=E_TDEC_TYPES,C_TDEC_TYPES";
  EXPECT_EQ(ListIn(kLangEnglish, entry),
            (TStringList{"HKTDEC=Trade declaration", "HKTDAM=Amendment"}));
  EXPECT_EQ(ListIn(kLangChinese, entry),
            (TStringList{"HKTDEC=" + Big5("貿易報關"), "HKTDAM=" + Big5("修改報關單")}));
  EXPECT_EQ(ListIn(kLangSimplified, entry),
            (TStringList{"HKTDEC=" + Gbk("贸易报关"), "HKTDAM=" + Gbk("修改报关单")}));
  EXPECT_EQ(ListIn(2, entry), TStringList{});
  // Without "=" the whole entry is the value.
  EXPECT_EQ(ListIn(kLangEnglish, "E_TDEC_TYPES,C_TDEC_TYPES").size(), 2u);
}

TEST_F(GetMsgListTest, UnknownSectionsGiveEmptyLists) {
  EXPECT_EQ(ListIn(kLangEnglish, "X=NO_SUCH,C_TDEC_TYPES"), TStringList{});
  EXPECT_EQ(ListIn(kLangChinese, "X=E_TDEC_TYPES"), TStringList{});
  EXPECT_EQ(ListIn(kLangSimplified, "X=E_TDEC_TYPES"), TStringList{});
  EXPECT_EQ(ListIn(kLangEnglish, ""), TStringList{});
}

}  // namespace
}  // namespace mv::test
