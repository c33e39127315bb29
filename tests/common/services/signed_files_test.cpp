// Splitting real signed message files into their document and signature parts.
#include "common/services/signed_files.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>

#include "tests/support/temp_dir.h"

namespace mv::test {
namespace {

class SignedFilesTest : public ::testing::Test {
 protected:
  // Splits the file `name` holding `bytes`; the result code.
  int Split(const std::string& name, std::string_view bytes) {
    return XMLInitMsgList(dir_.Write(name, bytes), data_, sig_);
  }

  TempDir dir_;
  std::string data_ = "old", sig_ = "old";
};

TEST_F(SignedFilesTest, SplitsCrLfAndLfFilesAlike) {
  const std::string lines[] = {"<?xml version=\"1.0\"?>", "  <TDEC>",   "\t<RefNo>TD1</RefNo>",
                               "<electronicSignature>",   "  MIIB3QYJ", "  KoZIhvcN  ",
                               "</electronicSignature>",  "</TDEC>",    ""};
  for (const std::string end : {"\r\n", "\n", "\r"}) {
    std::string text;
    for (const std::string& line : lines) text += line + end;
    ASSERT_EQ(Split("msg.xml", text), kSplitDone) << end.size();
    EXPECT_EQ(data_, dir_.File("msg.d"));
    EXPECT_EQ(sig_, dir_.File("msg.s"));
    EXPECT_EQ(dir_.Read("msg.d"),
              "<?xml version=\"1.0\"?><TDEC><RefNo>TD1</RefNo><electronicSignature>");
    EXPECT_EQ(dir_.Read("msg.s"), "MIIB3QYJKoZIhvcN");
  }
}

TEST_F(SignedFilesTest, EmptySignatureAndFileNamesWithoutExtension) {
  ASSERT_EQ(Split("folder.v2/signed", "<a><electronicSignature></electronicSignature>tail"),
            kSplitDone);
  EXPECT_EQ(data_, dir_.File("folder.v2/signed.d"));
  EXPECT_EQ(dir_.Read("folder.v2/signed.d"), "<a><electronicSignature>");
  EXPECT_TRUE(std::filesystem::exists(sig_));
  EXPECT_EQ(dir_.Read("folder.v2/signed.s"), "");
  // Big5 text passes byte for byte, and the first pair of tags decides.
  const std::string big5 = "\xb3\x66\xa9\xf6";  // two Big5 characters
  ASSERT_EQ(Split("b.x.xml", big5 + "<electronicSignature>S1</electronicSignature>"
                                    "<electronicSignature>S2</electronicSignature>"),
            kSplitDone);
  EXPECT_EQ(dir_.Read("b.x.d"), big5 + "<electronicSignature>");
  EXPECT_EQ(dir_.Read("b.x.s"), "S1");
}

TEST_F(SignedFilesTest, MissingOrMisplacedTagsWriteNothing) {
  const std::pair<std::string, int> cases[] = {
      {"<doc/>", kSplitNoTags},
      {"", kSplitNoTags},
      {"<doc>sig</electronicSignature>", kSplitNoOpening},
      {"<doc><electronicSignature>sig", kSplitNoClosing},
      {"</electronicSignature>sig<electronicSignature>", kSplitTagsReversed},
      {"<electronic\nSignature>x</electronicSignature>", kSplitDone},  // lines join first
      {"<electronic Signature>x</electronicSignature>", kSplitNoOpening},
  };
  for (const auto& [text, code] : cases) {
    data_ = sig_ = "old";
    EXPECT_EQ(Split("t.xml", text), code) << text;
    if (code != kSplitDone) {
      EXPECT_EQ(data_, "");
      EXPECT_EQ(sig_, "");
      EXPECT_FALSE(std::filesystem::exists(dir_.File("t.d"))) << text;
    }
    std::filesystem::remove(dir_.File("t.d"));
    std::filesystem::remove(dir_.File("t.s"));
  }
}

TEST_F(SignedFilesTest, FileProblemsHaveTheirOwnCodes) {
  EXPECT_EQ(XMLInitMsgList("", data_, sig_), kSplitNoFileName);
  EXPECT_EQ(XMLInitMsgList(dir_.File("absent.xml"), data_, sig_), kSplitNotFound);
  EXPECT_EQ(XMLInitMsgList(dir_.MakeDir("folder.xml"), data_, sig_), kSplitNotFound);
  EXPECT_EQ(data_ + sig_, "");
  const std::string text = "<d><electronicSignature>s</electronicSignature>";
  // A part that cannot be written (a folder in its place, which stops root too): no part is
  // left behind.
  dir_.MakeDir("w.s");
  EXPECT_EQ(Split("w.xml", text), kSplitWriteError);
  EXPECT_EQ(data_ + sig_, "");
  EXPECT_FALSE(std::filesystem::exists(dir_.File("w.d")));
  dir_.MakeDir("v.d");
  EXPECT_EQ(Split("v.xml", text), kSplitWriteError);
}

TEST_F(SignedFilesTest, ReadOnlyFolderAndUnreadableFile) {
  if (geteuid() == 0) GTEST_SKIP() << "permission bits do not stop root";
  const std::string text = "<d><electronicSignature>s</electronicSignature>";
  const std::string locked = dir_.Write("ro/m.xml", text);
  std::filesystem::permissions(
      dir_.File("ro"), std::filesystem::perms::owner_read | std::filesystem::perms::owner_exec);
  EXPECT_EQ(XMLInitMsgList(locked, data_, sig_), kSplitWriteError);
  std::filesystem::permissions(locked, std::filesystem::perms::none);
  EXPECT_EQ(XMLInitMsgList(locked, data_, sig_), kSplitReadError);
  std::filesystem::permissions(dir_.File("ro"), std::filesystem::perms::owner_all);
}

}  // namespace
}  // namespace mv::test
