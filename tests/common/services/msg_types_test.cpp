// SEGX in both text forms, GetMsgType on a copy of the demo database's mailbox tables, the
// message-type lists of each language, and the split of real signed message files.
#include "common/services/msg_types.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>

#include "common/frame/errors.h"
#include "common/services/msg_fields.h"
#include "common/services/msg_lists.h"
#include "common/services/signed_files.h"
#include "common/text/lang_changer.h"
#include "platform/db/connections.h"
#include "tests/common/text/text_fixture.h"
#include "tests/platform/db/db_fixture.h"

namespace mv::test {
namespace {

template <class Text>
Text Segx(const Text& s, int n) {
  Text result(1, 'x');
  SEGX(',', s, n, result);
  return result;
}

TEST(SegxTest, FieldsAndThe255CharacterWindow) {
  const std::string abc = "a,b,c";
  EXPECT_EQ(Segx(abc, 3) + Segx(abc, 4) + Segx(abc, 0) + "|" + Segx<std::string>("w", 1), "c|w");
  // Each step cuts what the step before kept to 255 characters (UTF-16 units when wide).
  const std::u16string wide(254, u'貨');
  EXPECT_EQ(Segx(u"a," + wide + u",z", 3), u"");
  EXPECT_EQ(Segx(u"a," + wide.substr(1) + u",z", 3), u"z");
  std::string chain;
  for (int i = 0; i < 40; ++i) chain += std::string(20, 'f') + ",";
  EXPECT_EQ(Segx(chain, 14) + "|" + Segx(chain, 15), "fff|");
}

class MsgTypesTest : public TextFixture {
 protected:
  MsgTypesTest() {
    std::filesystem::copy_file(MV_DEMO_DATABASE_FILE, dir_.File("mail.db"));
    db::OpenConnection("DBMAIN", "sqlite:" + dir_.File("mail.db"));
  }
  ~MsgTypesTest() override { db::CloseConnection("DBMAIN"); }
  std::string TypeOf(double when, const std::string& refNo, const std::string& sender,
                     int mode = 1) {
    std::string result = "unset";
    GetMsgType("Inbox", MakeMsgKey(when, refNo, sender), mode, result);
    return result;
  }

  TempDir dir_;
};

TEST_F(MsgTypesTest, StoredMessagesMatchWithinATenthOfASecond) {
  const double t = 45601.0 + (14 * 3600 + 2 * 60 + 47) / 86400.0;  // demo row TD24000124
  for (const auto& [tenths, type] :
       {std::pair{0.9, "HKCTRA"}, {-0.9, "HKCTRA"}, {1.1, ""}, {-1.1, ""}})
    EXPECT_EQ(TypeOf(t + tenths / 864000, "TD24000124", "hkgovt"), type) << tenths;
  Exec(
      "insert into Inbox (RefNo, DateTime, Sender, MType, Recipient) values ('R', 1, 'S', 'A', "
      "'me'), ('R', 1 + 0.5 / 864000, 'S', 'B', 'me'), ('O''NEIL', 9, 'a''b', 'C', 'me')");
  EXPECT_EQ(TypeOf(1 + 0.4 / 864000, "R", "S", 2), "A\x01S\x01me");  // the first in the window
  EXPECT_EQ(TypeOf(9, "O'NEIL", "a'b"), "C");                        // quotes are values, not SQL
  EXPECT_EQ(TypeOf(9, "x' or '1'='1", "a'b"), "");
  std::string result = "old";
  EXPECT_THROW(GetMsgType("Inbox", "today\x01R\x01S", 1, result), EConvertError);
  EXPECT_EQ(result, "");
}

TEST_F(MsgTypesTest, TypeListsFollowTheLanguage) {
  installation_.WriteSystemIni("[E]\nHKTDEC=Declaration\n[C]\nHKTDEC=" + Big5("報關") + "\n");
  Global_Merovan_Ini = "SEDIFSYS.INI";
  const std::pair<uint8_t, TStringList> cases[] = {{kLangEnglish, {"HKTDEC=Declaration"}},
                                                   {kLangChinese, {"HKTDEC=" + Big5("報關")}},
                                                   {kLangSimplified, {"HKTDEC=" + Gbk("报关")}},
                                                   {2, {}}};
  for (const auto& [language, lines] : cases) {
    LangChanger().SetLanguage(language);
    EXPECT_EQ(*GetMsgList("TDEC=E,C"), lines) << int(language);
  }
  EXPECT_EQ(*GetMsgList("C,NONE"), TStringList{});
}

namespace fs = std::filesystem;

class SignedFilesTest : public ::testing::Test {
 protected:
  int Split(const std::string& name, std::string_view bytes) {
    return XMLInitMsgList(dir_.Write(name, bytes), data_, sig_);
  }

  TempDir dir_;
  std::string data_, sig_;
};

TEST_F(SignedFilesTest, SplitsCrLfAndLfFilesAlike) {
  for (const std::string end : {"\r\n", "\n"}) {
    ASSERT_EQ(Split("m.v1.xml", "<T>" + end + "\t<No>1</No> " + end + "<electronicSignature>" +
                                    end + "  MIIB " + end + "</electronicSignature></T>" + end),
              kSplitDone);
    EXPECT_EQ(data_, dir_.File("m.v1.d"));
    EXPECT_EQ(dir_.Read("m.v1.d") + "|" + dir_.Read("m.v1.s"),
              "<T><No>1</No><electronicSignature>|MIIB");
  }
  ASSERT_EQ(Split("x.y/signed", "<electronicSignature></electronicSignature>"), kSplitDone);
  EXPECT_EQ(sig_, dir_.File("x.y/signed.s"));
  EXPECT_TRUE(fs::exists(sig_) && fs::file_size(sig_) == 0);  // an empty signature
}

TEST_F(SignedFilesTest, EveryFailureHasItsCodeAndLeavesNoParts) {
  EXPECT_EQ(Split("t.xml", "<doc/>"), kSplitNoTags);
  EXPECT_EQ(Split("t.xml", "s</electronicSignature>"), kSplitNoOpening);
  EXPECT_EQ(Split("t.xml", "<electronicSignature>s"), kSplitNoClosing);
  EXPECT_EQ(Split("t.xml", "</electronicSignature><electronicSignature>"), kSplitTagsReversed);
  EXPECT_EQ(XMLInitMsgList("", data_, sig_), kSplitNoFileName);
  EXPECT_EQ(XMLInitMsgList(dir_.File("absent.xml"), data_, sig_), kSplitNotFound);
  // A folder where a part belongs stops even root; the part already written is removed.
  dir_.MakeDir("w.s");
  EXPECT_EQ(Split("w.xml", "<electronicSignature>s</electronicSignature>"), kSplitWriteError);
  EXPECT_EQ(data_ + sig_, "");
  EXPECT_FALSE(fs::exists(dir_.File("w.d")) || fs::exists(dir_.File("t.d")));
}

TEST_F(SignedFilesTest, ReadOnlyFolderAndUnreadableFile) {
  if (geteuid() == 0) GTEST_SKIP() << "permission bits do not stop root";
  const std::string file = dir_.Write("ro/m.xml", "<electronicSignature></electronicSignature>");
  fs::permissions(dir_.File("ro"), fs::perms::owner_read | fs::perms::owner_exec);
  EXPECT_EQ(XMLInitMsgList(file, data_, sig_), kSplitWriteError);
  fs::permissions(file, fs::perms::none);
  EXPECT_EQ(XMLInitMsgList(file, data_, sig_), kSplitReadError);
  fs::permissions(dir_.File("ro"), fs::perms::owner_all);
}

}  // namespace
}  // namespace mv::test
