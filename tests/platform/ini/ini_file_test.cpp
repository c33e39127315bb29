#include "platform/ini/ini_file.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <climits>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

#include "platform/files/lock_file.h"
#include "tests/support/temp_dir.h"

namespace mv::ini {
namespace {

using Strings = std::vector<std::string>;
using test::ScopedEnv;
using test::TempDir;

// Every test runs with Big5 as the system code page, the client's Chinese setting.
class IniTest : public ::testing::Test {
 protected:
  std::string Write(std::string_view bytes, std::string_view name = "t.ini") {
    return dir_.Write(name, bytes);
  }

  TempDir dir_;
  ScopedEnv codePage_{"MV_CODEPAGE", "950"};
};

// UTF-16LE bytes with the byte-order mark.
std::string Utf16File(std::u16string_view text) {
  std::string bytes = "\xFF\xFE";
  for (char16_t c : text) {
    bytes += static_cast<char>(c & 0xFF);
    bytes += static_cast<char>(c >> 8);
  }
  return bytes;
}

TEST_F(IniTest, LookupRules) {
  TIniFile ini(
      Write("before=unreachable\n[Main]\n  Key =  Value x  \n\tTabbed\t=\tv\t\n=empty name\n"
            "Path=a=b;c#d]\n\v;hidden=1\n\fFed\v=\f v f \v\n[ Spaced ]\nx=1\n[]\ne=2\n"
            "[Cut]k=lost\n\v\f[Open\no=3\n"));
  struct Case {
    const char* section;
    const char* key;
    const char* expected;
  } cases[] = {
      {"main", "KEY", "Value x"},
      {" Main ", "  key ", "Value x"},
      {"\tMain", "key", "-"},
      {"Main", "Key\t", "-"},
      {"Main", "tabbed", "v"},
      {"Main", "", "empty name"},
      {"Main", "path", "a=b;c#d]"},
      {"Main", ";hidden", "-"},
      {"Main", "fed", "v f"},
      {"spaced", "x", "1"},
      {"", "e", "2"},
      {"Cut", "k", "-"},
      {"open", "o", "3"},
      {"Main", "before", "-"},
      {"Missing", "x", "-"},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(ini.ReadString(c.section, c.key, "-"), c.expected) << c.section << "/" << c.key;
  }
  EXPECT_EQ(ini.ReadSections(), (Strings{"Main", "Spaced", "", "Cut", "Open"}));
  EXPECT_EQ(ini.ReadSection("MAIN"), (Strings{"Key", "Tabbed", "", "Path", "Fed"}));
  // A default loses its trailing spaces only; a found value is never the default.
  EXPECT_EQ(TIniFile(dir_.File("none.ini")).ReadString("Main", "Key", " d \t  "), " d \t");
  EXPECT_EQ(ini.ReadString("Main", "Missing", "   "), "");
}

TEST_F(IniTest, OuterQuotePairIsRemoved) {
  const char* values[][2] = {{"\"a b\"", "a b"},     {"'x'", "x"},     {"\"  in  \"", "  in  "},
                             {"\"\"", ""},           {"\"", "\""},     {"\"a'", "\"a'"},
                             {"\"\"q\"\"", "\"q\""}, {"'a\"", "'a\""}, {"x\"", "x\""}};
  std::string text = "[Q]\r\n";
  for (size_t i = 0; i < std::size(values); ++i) {
    text += std::string(1, static_cast<char>('a' + i)) + "= " + values[i][0] + " \r\n";
  }
  TIniFile ini(Write(text));
  for (size_t i = 0; i < std::size(values); ++i) {
    std::string key(1, static_cast<char>('a' + i));
    EXPECT_EQ(ini.ReadString("Q", key, "-"), values[i][1]) << values[i][0];
  }
}

TEST_F(IniTest, CommentsOddLinesAndLineEnds) {
  TIniFile ini(
      Write("[S]\r;hidden=1\n   ; also=2\r\n#hash=3\rodd line\na=1 ; not a comment\r\r\nb=2"));
  EXPECT_EQ(ini.ReadSection("S"), (Strings{"#hash", "a", "b"}));
  EXPECT_EQ(ini.ReadString("S", "a", "-"), "1 ; not a comment");
  EXPECT_EQ(ini.ReadString("S", "b", "-"), "2");
}

TEST_F(IniTest, FirstOfDuplicatesWins) {
  TIniFile ini(Write("[S]\nk=first\nK=\"second\"\nq='quoted'\n[s]\nk=other\nonly=here\n[E]\n;c\n"));
  EXPECT_EQ(ini.ReadString("s", "K", "-"), "first");
  EXPECT_EQ(ini.ReadString("S", "only", "-"), "-");
  EXPECT_EQ(ini.ReadSectionValues("S"), (Strings{"k=first", "K=first", "q=quoted"}));
  EXPECT_EQ(ini.ReadSections(), (Strings{"S", "s", "E"}));
  // A section exists for the reader when it has a key.
  EXPECT_TRUE(ini.SectionExists(" s "));
  EXPECT_FALSE(ini.SectionExists("E"));
  EXPECT_TRUE(ini.ValueExists("S", "Q"));
  EXPECT_FALSE(ini.ValueExists("S", "only"));
}

TEST_F(IniTest, Numbers) {
  const std::pair<const char*, int32_t> integers[] = {{"0", 0},
                                                      {"+7", 7},
                                                      {"-12", -12},
                                                      {"007", 7},
                                                      {"'5'", 5},
                                                      {"0X1f", 31},
                                                      {"$ff", 255},
                                                      {"-$10", -16},
                                                      {"$FFFFFFFF", -1},
                                                      {"$00000000FF", 255},
                                                      {"2147483647", INT_MAX},
                                                      {"-2147483648", INT_MIN},
                                                      {"$80000000", INT_MIN}};
  // Out of range or not a whole number: the default.
  const char* const notIntegers[] = {"2147483648", "-2147483649", "$100000000", "0x",  "$", "-", "",
                                     "12abc",      "1 2",         "\" 1\"",     "0x1G"};
  const std::pair<const char*, double> floats[] = {
      {"1.5", 1.5},   {"-2.5e3", -2500}, {"+.5", 0.5}, {"5.", 5},    {"1E2", 100},
      {"1e-2", 0.01}, {"1,5", -9},       {"", -9},     {".", -9},    {"e5", -9},
      {"1e", -9},     {"inf", -9},       {"nan", -9},  {"0x10", -9}, {"1e999", -9}};
  std::string text = "[N]\r\n";
  for (auto [value, expected] : integers) text += std::string("i") + value + "=" + value + "\r\n";
  for (const char* value : notIntegers) text += std::string("i") + value + "=" + value + "\r\n";
  for (auto [value, expected] : floats) text += std::string("f") + value + "=" + value + "\r\n";
  TIniFile ini(Write(text));
  for (auto [value, expected] : integers) {
    EXPECT_EQ(ini.ReadInteger("N", std::string("i") + value, 99), expected) << value;
  }
  for (const char* value : notIntegers) {
    EXPECT_EQ(ini.ReadInteger("N", std::string("i") + value, 99), 99) << value;
  }
  for (auto [value, expected] : floats) {
    EXPECT_EQ(ini.ReadFloat("N", std::string("f") + value, -9), expected) << value;
  }
  // ReadBool is ReadInteger(default ? 1 : 0) != 0.
  for (const char* yes : {"i-12", "i+7", "i0X1f", "i'5'"}) {
    EXPECT_TRUE(ini.ReadBool("N", yes, false)) << yes;
  }
  for (const char* other : {"i12abc", "i", "missing"}) {
    EXPECT_TRUE(ini.ReadBool("N", other, true)) << other;
    EXPECT_FALSE(ini.ReadBool("N", other, false)) << other;
  }
  EXPECT_FALSE(ini.ReadBool("N", "i0", true));
}

TEST_F(IniTest, LongValuesAreCutWithoutSplittingACharacter) {
  std::string big5;
  for (int i = 0; i < 1024; ++i) big5 += "\xA4\xA4";
  TIniFile ini(Write("[L]\nascii=" + std::string(3000, 'a') + "\nbig5=" + big5 + "\n"));
  EXPECT_EQ(ini.ReadString("L", "ascii", ""), std::string(kMaxValueLength, 'a'));
  EXPECT_EQ(ini.ReadString("L", "big5", ""), big5.substr(0, 2046));
  EXPECT_EQ(ini.ReadSectionValues("L")[1], "big5=" + big5.substr(0, 2046));
}

TEST_F(IniTest, Big5BytesAreKeptAndTrailBytesAreNotLetters) {
  // 也 = A4 5D (trail byte "]"), 兀 = A4 61 ("a"), 乙 = A4 41 ("A"), 功 = A5 5C.
  TIniFile ini(Write("[\xA4\x5D]\r\n\xA4\x61=\xA5\x5C\r\n\xA4\x41=second\r\nbad=\x80\xFF\xA4\r\n"));
  EXPECT_EQ(ini.ReadSections(), Strings{"\xA4\x5D"});
  EXPECT_EQ(ini.ReadString("\xA4\x5D", "\xA4\x61", "-"), "\xA5\x5C");
  EXPECT_EQ(ini.ReadString("\xA4\x5D", "\xA4\x41", "-"), "second");
  EXPECT_EQ(ini.ReadString("\xA4\x5D", "BAD", "-"), "\x80\xFF\xA4");
  ini.WriteString("\xA4\x5D", "\xA4\x41", "\xA4\xA4");
  EXPECT_EQ(dir_.Read("t.ini"),
            "[\xA4\x5D]\r\n\xA4\x61=\xA5\x5C\r\n\xA4\x41=\xA4\xA4\r\nbad=\x80\xFF\xA4\r\n");
}

TEST_F(IniTest, ByteOrderMarkedFilesRoundTrip) {
  // "e=" holds a character outside Big5 (a surrogate pair); its line must survive the write.
  TIniFile ini(Write(Utf16File(u"[\u4E2D]\nk=\"\u6587 \u4E2D\"\ne=\U0001F600\r\n[S]\nascii=1\n")));
  EXPECT_EQ(ini.ReadString("\xA4\xA4", "K", "-"), "\xA4\xE5 \xA4\xA4");
  EXPECT_EQ(ini.ReadSections(), (Strings{"\xA4\xA4", "S"}));
  ini.WriteString("\xA4\xA4", "new", "\xA4\xE5");
  EXPECT_EQ(dir_.Read("t.ini"), Utf16File(u"[\u4E2D]\r\nk=\"\u6587 \u4E2D\"\r\ne=\U0001F600\r\n"
                                          u"new=\u6587\r\n[S]\r\nascii=1\r\n"));
  // A UTF-8 byte-order mark is skipped when reading and kept when writing.
  TIniFile utf8(Write("\xEF\xBB\xBF[S]\nk=v\n"));
  EXPECT_EQ(utf8.ReadString("S", "k", "-"), "v");
  utf8.WriteString("S", "k", "w");
  EXPECT_EQ(dir_.Read("t.ini"), "\xEF\xBB\xBF[S]\r\nk=w\r\n");
}

TEST_F(IniTest, WriteEditsInPlace) {
  std::string path =
      Write("; head\n[Main]\n  Name = old value  \nodd\n; c\nname=dup\n\n[Other]\nx=1");
  uint64_t parses = TIniFile::ParseCount();
  TIniFile ini(path);
  ini.WriteString(" main ", " NAME ", " new ");
  ini.WriteString("main", "added", "\"as given\"");
  ini.WriteInteger("Other", "n", -5);
  ini.WriteBool("Fresh", "on", true);
  ini.WriteBool("Fresh", "off", false);
  EXPECT_EQ(dir_.Read("t.ini"),
            "; head\r\n[Main]\r\nName= new \r\nodd\r\n; c\r\nname=dup\r\nadded=\"as given\"\r\n\r\n"
            "[Other]\r\nx=1\r\nn=-5\r\n[Fresh]\r\non=1\r\noff=0\r\n");
  EXPECT_EQ(ini.ReadString("Main", "name", "-"), "new");
  EXPECT_EQ(ini.ReadString("Main", "added", "-"), "as given");
  EXPECT_EQ(TIniFile::ParseCount() - parses, 1u);  // writing does not read the file again
}

// Two objects of one file, as two processes have: each write applies only its own change to what
// the file holds at that moment, and the file is read again only when someone else changed it.
TEST_F(IniTest, WriteKeepsWhatOtherWritersWroteSinceTheRead) {
  std::string path = Write("[S]\r\na=0\r\n[T]\r\nt=1\r\n");
  TIniFile first(path), second(path);
  first.WriteString("S", "b", "1");
  second.WriteString("S", "c", "2");
  first.DeleteKey("S", "a");
  const uint64_t parses = TIniFile::ParseCount();
  second.EraseSection("T");
  EXPECT_EQ(TIniFile::ParseCount() - parses, 1u);  // second finds first's delete
  first.WriteString("S", "d", "3");
  EXPECT_EQ(TIniFile::ParseCount() - parses, 2u);
  first.WriteString("S", "e", "4");
  EXPECT_EQ(TIniFile::ParseCount() - parses, 2u);  // nobody else wrote in between
  EXPECT_EQ(dir_.Read("t.ini"), "[S]\r\nb=1\r\nc=2\r\nd=3\r\ne=4\r\n");
  EXPECT_EQ(first.ReadString("S", "c", "-"), "2");
  EXPECT_EQ(second.ReadString("S", "a", "-"), "-");  // as the file was at its last write
}

// A writer waits while another holds the file's write lock, and writes once it is given up.
TEST_F(IniTest, WriteWaitsForTheWriteLock) {
  std::string path = Write("[S]\r\n");
  const int32_t holder = files::LockFileExclusive(path + ".lck");
  ASSERT_GT(holder, 0);
  std::atomic<bool> givenUp{false};
  std::thread release([&] {
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    givenUp = true;
    files::UnlockFile(holder);
  });
  TIniFile(path).WriteString("S", "k", "v");
  EXPECT_TRUE(givenUp);
  release.join();
  EXPECT_EQ(dir_.Read("t.ini"), "[S]\r\nk=v\r\n");
  // A read, count and write of one step: its own writes do not wait for its lock.
  ChangeIniFile(path, [](TIniFile& ini) {
    ini.WriteInteger("S", "n", ini.ReadInteger("S", "n", 0) + 1);
    ini.WriteInteger("S", "n", ini.ReadInteger("S", "n", 0) + 1);
  });
  EXPECT_EQ(TIniFile(path).ReadInteger("S", "n", 0), 2);
}

TEST_F(IniTest, WriteTurnsEveryLineEndIntoCrLf) {
  for (const char* input : {"[S]\rk=1\rodd", "[S]\nk=1\nodd\n", "[S]\r\nk=1\r\nodd"}) {
    TIniFile(Write(input)).WriteString("S", "k", "2");
    EXPECT_EQ(dir_.Read("t.ini"), "[S]\r\nk=2\r\nodd\r\n") << input;
  }
  // A line break inside a value starts a line; the object reads what the file now holds.
  TIniFile ini(Write("[S]\n"));
  ini.WriteString("S", "a", "1\nb=2");
  EXPECT_EQ(dir_.Read("t.ini"), "[S]\r\na=1\r\nb=2\r\n");
  EXPECT_EQ(ini.ReadString("S", "b", "-"), "2");
  EXPECT_EQ(ini.ReadSection("S"), (Strings{"a", "b"}));
}

TEST_F(IniTest, DeleteKeyAndEraseSection) {
  TIniFile ini(Write("[S]\nk=1\nK=2\n[T]\nt=1\n; keep\nodd\n\n[t]\nu=2\n[U]\nv=3\n"));
  ini.DeleteKey("s", " k ");
  EXPECT_EQ(ini.ReadString("S", "k", "-"), "2");
  ini.EraseSection("T");
  EXPECT_EQ(dir_.Read("t.ini"), "[S]\r\nK=2\r\n; keep\r\n\r\n[U]\r\nv=3\r\n");
  EXPECT_EQ(ini.ReadSections(), (Strings{"S", "U"}));

  // Nothing to remove: the file is not touched, and a missing file is not made.
  TIniFile lf(Write("[S]\nk=1\n"));
  lf.DeleteKey("S", "none");
  lf.DeleteKey("None", "k");
  lf.EraseSection("None");
  EXPECT_EQ(dir_.Read("t.ini"), "[S]\nk=1\n");
  TIniFile(dir_.File("missing.ini")).DeleteKey("S", "k");
  EXPECT_FALSE(std::filesystem::exists(dir_.File("missing.ini")));
  TIniFile(dir_.File("missing.ini")).WriteString(" S ", "k", "v");
  EXPECT_EQ(dir_.Read("missing.ini"), "[S]\r\nk=v\r\n");
}

TEST_F(IniTest, FileNamesAndFolders) {
  Write("[S]\r\nk=v\r\n", "sedifsys.ini");
  TIniFile upper(dir_.File("SEDIFSYS.INI"));
  EXPECT_EQ(upper.ReadString("S", "k", "-"), "v");
  upper.WriteString("S", "k", "w");
  EXPECT_EQ(dir_.Read("sedifsys.ini"), "[S]\r\nk=w\r\n");

  Write("[W]\r\nk=machine\r\n", "machine/win.ini");
  ScopedEnv machine("MV_MACHINE_DIR", dir_.File("machine"));
  EXPECT_EQ(TIniFile("WIN.INI").ReadString("w", "k", "-"), "machine");
}

TEST_F(IniTest, FailedWriteNamesTheFileAndChangesNothing) {
  std::string path = dir_.File("no/such/x.ini");
  TIniFile ini(path);
  try {
    ini.WriteString("S", "k", "v");
    ADD_FAILURE() << "no exception";
  } catch (const EIniFileException& e) {
    EXPECT_NE(std::string(e.what()).find(path), std::string::npos) << e.what();
  }
  EXPECT_EQ(ini.ReadString("S", "k", "-"), "-");
}

}  // namespace
}  // namespace mv::ini
