// On copies of the demo database and real sample packages: SEGX in both text forms, GetMsgType on
// the mailbox tables, the message-type lists of each language, the split of real signed message
// files, the user-defined fields of a service and the start of the backup and restore tool.
#include "common/services/msg_types.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <tuple>

#include "common/frame/backup_startup.h"
#include "common/frame/errors.h"
#include "common/services/msg_fields.h"
#include "common/services/msg_lists.h"
#include "common/services/signed_files.h"
#include "common/services/user_fields.h"
#include "common/text/lang_changer.h"
#include "platform/db/connections.h"
#include "tests/common/text/text_fixture.h"
#include "tests/platform/db/db_fixture.h"

namespace mv::test {
namespace {

namespace fs = std::filesystem;

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
}

// A copy of the demo database as DBMAIN, with a few more captions of user-defined fields.
class DemoDatabaseTest : public TextFixture {
 protected:
  DemoDatabaseTest() {
    fs::copy_file(MV_DEMO_DATABASE_FILE, dir_.File("main.db"));
    db::OpenConnection("DBMAIN", "sqlite:" + dir_.File("main.db"));
    Exec(
        u"insert into Settings values ('TDEC_SERVICE', 4, '', NULL), "
        u"('TDEC_SERVICE', 5, 'Vessel', '船名'), ('ETDEC_SERVICE', 1, 'Halvo ref', '')");
  }
  ~DemoDatabaseTest() override {
    db::CloseConnection("DBMAIN");
    DefinedRecord = {};
  }
  std::string TypeOf(double when, const std::string& refNo, const std::string& sender,
                     int mode = 1) {
    std::string result = "unset";
    GetMsgType("Inbox", MakeMsgKey(when, refNo, sender), mode, result);
    return result;
  }
  std::string FirstCaption() const { return DefinedRecord.EngCaption->at(0); }

  TempDir dir_;
};

TEST_F(DemoDatabaseTest, StoredMessagesMatchWithinATenthOfASecond) {
  const double t = 45601.0 + (14 * 3600 + 2 * 60 + 47) / 86400.0;  // demo row TD24000124
  for (const auto& [tenths, type] :
       {std::pair{0.9, "HKCTRA"}, {-0.9, "HKCTRA"}, {1.1, ""}, {-1.1, ""}})
    EXPECT_EQ(TypeOf(t + tenths / 864000, "TD24000124", "hkgovt"), type) << tenths;
  Exec(
      "insert into Inbox (RefNo, DateTime, Sender, MType, Recipient) values ('R', 1, 'S', 'A', "
      "'me'), ('R', 1 + 0.5 / 864000, 'S', 'B', 'me'), ('O''NEIL', 9, 'a''b', 'C', 'me')");
  EXPECT_EQ(TypeOf(1 + 0.4 / 864000, "R", "S", 2), "A\x01S\x01me");  // the first in the window
  EXPECT_EQ(TypeOf(9, "O'NEIL", "a'b"), "C");                        // quotes are values, not SQL
  std::string result;
  GetMsgType("Inbox",
             "+9\x01O'NEIL\x01"
             "a'b",
             1, result);  // a plus sign as the client reads it
  EXPECT_EQ(result, "C");
  for (const char* day : {"today", "+-9", "++9", "+"}) {
    result = "old";
    EXPECT_THROW(GetMsgType("Inbox", std::string(day) + "\x01R\x01S", 1, result), EConvertError)
        << day;
    EXPECT_EQ(result, "");
  }
}

TEST_F(DemoDatabaseTest, TypeListsFollowTheLanguage) {
  installation_.WriteSystemIni("[E]\nHKTDEC=Declaration\n[C]\nHKTDEC=" + Big5("報關") + "\n");
  Global_Merovan_Ini = "SEDIFSYS.INI";
  const std::string gbk = codepage::FromWide(u"报关", codepage::kGbk);
  const std::pair<uint8_t, TStringList> cases[] = {{kLangEnglish, {"HKTDEC=Declaration"}},
                                                   {kLangChinese, {"HKTDEC=" + Big5("報關")}},
                                                   {kLangSimplified, {"HKTDEC=" + gbk}},
                                                   {2, {}}};
  for (const auto& [language, lines] : cases) {
    LangChanger().SetLanguage(language);
    EXPECT_EQ(*GetMsgList("TDEC=E,C"), lines) << int(language);
  }
  LangChanger().SetLanguage(kLangEnglish);  // without "=" the whole entry names the sections
  EXPECT_EQ(*GetMsgList("C,NONE"), TStringList{"HKTDEC=" + Big5("報關")});
}

TEST_F(DemoDatabaseTest, UserDefinedFieldsTakeTheirCaptionsFromSettings) {
  GetUserDefineFields("RCM_SERVICE", DefinedRecord);
  EXPECT_EQ(*DefinedRecord.FieldName, (TStringList{"Ref1", "Ref2", "Ref3", "Ref4", "Ref5"}));
  GetUserDefineFields("TDEC_SERVICE", DefinedRecord);
  EXPECT_EQ(*DefinedRecord.EngCaption,
            (TStringList{"Purchase Order", "Origin", "Ref #3", "Ref #4", "Vessel"}));
  EXPECT_EQ(DefinedRecord.ChiCaption->at(4), Big5("船名"));
  Exec("drop table Settings");
  GetUserDefineFields("TDEC_SERVICE", DefinedRecord);
  EXPECT_EQ(FirstCaption(), "Ref #1");
  ASSERT_EQ(dialogs_.Requests().size(), 1u);
  EXPECT_EQ(dialogs_.Requests()[0].text.rfind(u"不能讀取自訂欄位\r\n原因 : ", 0), 0u);
}

TEST_F(DemoDatabaseTest, BackupToolReadsOnlyWhatItNeeds) {
  installation_.WriteSystemIni(
      "[Receipient]\nGovernment= \t hkgovt-with-a-very-long-identity-of-40-chars\x01\n"
      "ECIC=ecic\nMerovan=\x02mvn\n[Advance]\nEDIOutPath=/out\nWarnTDEC=0\n"
      "[Language]\nAnsiGUI=1\nInterface=0\n");
  LangChanger().SetLanguage(kLangEnglish);
  SysLanguageMode = kLangEnglish;
  Init_BackupRestore();
  EXPECT_EQ(FirstCaption(), "Purchase Order");
  EXPECT_EQ(Advance.Government, "HKGOVT-WITH-A-VERY-LONG-IDENTITY-OF");
  EXPECT_EQ(Advance.Merovan + "|" + Advance.ECIC, "MVN|");
  EXPECT_EQ(Advance.EDIInPath, installation_.BaseFolder() + "/INBOX/");
  EXPECT_EQ(Advance.EDIOutPath, "/out/");
  EXPECT_FALSE(Advance.WarnTDEC || Advance.SupportTypeB);
  EXPECT_TRUE(LangChanger().AnsiInterface());
  // LanguageMode only: neither the installation's language nor the interface is switched.
  EXPECT_EQ((std::tuple<int, int, int>(LanguageMode, SysLanguageMode, LangChanger().Language())),
            (std::tuple<int, int, int>(0, 1, 1)));
  EXPECT_EQ(Service, nullptr);
}

TEST_F(DemoDatabaseTest, OnlyTheFirstBackupToolAsksForTheEditionAndAnsiGui) {
  installation_.WriteSystemIni("[System]\nEdition=Halvo\n[Language]\nAnsiGUI=1\n");
  Init_BackupRestore();
  EXPECT_EQ(FirstCaption(), "Halvo ref");
  EXPECT_TRUE(Advance.SupportTypeB && LangChanger().AnsiInterface());
  LangChanger().SetAnsiInterface(false);
  Init_LumoraBackupRestore();
  EXPECT_EQ(FirstCaption(), "Purchase Order");
  EXPECT_TRUE(Advance.SupportTypeB && !LangChanger().AnsiInterface());
}

TEST_F(DemoDatabaseTest, BackupPackagesLoadFromTheServerFolderTitledByLanguage) {
  for (const std::string name : {"ALPHA.so", "BETA.so"})
    fs::copy_file(SAMPLE_PACKAGE_DIR "/" + name, ServerPath + name);
  LangChanger().SetLanguage(kLangEnglish);
  LoadPkg_BackupRestore({"ALPHA,Backup," + Big5("備份"), "GONE,Gone," + Big5("沒有")});
  LangChanger().SetLanguage(kLangChinese);
  LoadPkg_BackupRestore({"BETA,Restore," + Big5("還原"), "GONE,Gone," + Big5("沒有")});
  ASSERT_EQ(AryPkgInfo.size(), 2u);
  EXPECT_EQ(AryPkgInfo[0].ServiceName + AryPkgInfo[0].ServiceExtra, "ALPHABackup");
  EXPECT_EQ(AryPkgInfo[1].ServiceExtra, Big5("還原"));
  EXPECT_NE(AryPkgInfo[1].Handle, 0u);
  ASSERT_EQ(dialogs_.Requests().size(), 2u);
  EXPECT_EQ(dialogs_.Requests()[0].text, u"Can't load Package: GONE,Gone,沒有");
  EXPECT_EQ(dialogs_.Requests()[1].text, u"不能安裝建立裝置: GONE,Gone,沒有");
}

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
