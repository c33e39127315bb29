#include "platform/registry/reg_file_parser.h"

#include <gtest/gtest.h>

namespace mv::registry {
namespace {

const std::u16string kKey = u"\\SOFTWARE\\Merovan\\Orvex4";

// UTF-16LE bytes with the byte-order mark, as the registry editor exports.
std::string Utf16Le(std::u16string_view text) {
  std::string bytes = "\xFF\xFE";
  for (char16_t c : text) {
    bytes += static_cast<char>(c & 0xFF);
    bytes += static_cast<char>(c >> 8);
  }
  return bytes;
}

std::optional<std::u16string> Read(const TRegFile& file, std::u16string_view value) {
  return file.ReadString(kKey, value);
}

TEST(RegFileParser, Version5Utf16WithEscapesDefaultValueAndAnyCase) {
  std::string bytes = Utf16Le(
      u"Windows Registry Editor Version 5.00\r\n\r\n"
      u"[HKEY_LOCAL_MACHINE\\SOFTWARE\\Merovan\\Orvex4]\r\n"
      u"\"ServerPath\"=\"C:\\\\App\\\\Server\\\\\"\r\n"
      u"\"Quote\"=\"say \\\"hi\\\" \\q\"\r\n"
      u"\"Na\\\"me\"=\"\u4f3a\u670d\u5668\"\r\n"
      u"@=\"default\"\r\n");
  TRegFile file = TRegFile::Parse(bytes, 1252);
  EXPECT_EQ(Read(file, u"ServerPath"), u"C:\\App\\Server\\");
  EXPECT_EQ(Read(file, u"quote"), u"say \"hi\" \\q");  // an unknown escape stays as written
  EXPECT_EQ(Read(file, u"NA\"ME"), u"\u4f3a\u670d\u5668");
  EXPECT_EQ(Read(file, u""), u"default");
  EXPECT_EQ(file.ReadString(u"software\\MEROVAN\\orvex4\\", u"serverpath"), u"C:\\App\\Server\\");
  EXPECT_EQ(file.ReadString(u"SOFTWARE\\Merovan", u"ServerPath"), std::nullopt);
  EXPECT_EQ(Read(file, u"Missing"), std::nullopt);
  EXPECT_TRUE(file.warnings().empty());
  // The same file whose byte-order mark was lost.
  EXPECT_EQ(Read(TRegFile::Parse(bytes.substr(2), 1252), u"Quote"), u"say \"hi\" \\q");
}

TEST(RegFileParser, NarrowEncodings) {
  // Big5 trail bytes may be 0x5C, the backslash: the text is decoded before it is split.
  std::string big5 = "\xB3\x5C\xA5\x5C\xBB\x5C";
  TRegFile regedit4 = TRegFile::Parse(
      "REGEDIT4\n[HKLM\\SOFTWARE\\Merovan\\Orvex4]\n\"Name\"=\"" + big5 + "\"\n", 950);
  EXPECT_EQ(Read(regedit4, u"Name"), u"\u8a31\u529f\u84cb");

  std::string utf8Value = "\"Name\"=\"\xE4\xBC\xBA\xE6\x9C\x8D\"\n";
  TRegFile version5 = TRegFile::Parse(
      "Windows Registry Editor Version 5.00\n[HKLM\\SOFTWARE\\Merovan\\Orvex4]\n" + utf8Value, 950);
  EXPECT_EQ(Read(version5, u"Name"), u"\u4f3a\u670d");
  TRegFile bom = TRegFile::Parse(
      "\xEF\xBB\xBFREGEDIT4\r\n[HKLM\\SOFTWARE\\Merovan\\Orvex4]\r\n" + utf8Value, 950);
  EXPECT_EQ(Read(bom, u"Name"), u"\u4f3a\u670d");
}

TEST(RegFileParser, BinaryDataIsNotTextButExpandableTextIs) {
  TRegFile file = TRegFile::Parse(Utf16Le(u"Windows Registry Editor Version 5.00\n"
                                          u"[HKLM\\SOFTWARE\\Merovan\\Orvex4]\n"
                                          u"\"Count\"=dword:0000000a\n"
                                          u"\"Blob\"=hex:01,02,\\\n  03,04,\\\n  05\n"
                                          u"\"Multi\"=hex(7):41,00,00,00,\\\n  00,00\n"
                                          u"\"Expand\"=hex(2):25,00,52,00,6f,00,6f,00,74,00,\\\n"
                                          u"  25,00,00,00\n"
                                          u"\"Plain\"=hex(1):43,00,3a,00,00,00,58,00\n"
                                          u"\"Cut\"=hex:01,\\\n"
                                          u"\"After\"=\"still read\"\n"),
                                  1252);
  EXPECT_EQ(Read(file, u"Count"), std::nullopt);
  EXPECT_EQ(Read(file, u"Blob"), std::nullopt);
  EXPECT_EQ(Read(file, u"Multi"), std::nullopt);
  EXPECT_EQ(Read(file, u"Expand"), u"%Root%");
  EXPECT_EQ(Read(file, u"Plain"), u"C:");
  EXPECT_EQ(Read(file, u"After"), u"still read");
  ASSERT_EQ(file.warnings().size(), 1u);
  EXPECT_EQ(file.warnings()[0].line, 12);

  TRegFile narrow = TRegFile::Parse(
      "REGEDIT4\n[HKLM\\SOFTWARE\\Merovan\\Orvex4]\n\"Expand\"=hex(2):b3,5c,25,41,25,00\n", 950);
  EXPECT_EQ(Read(narrow, u"Expand"), u"\u8a31%A%");
}

TEST(RegFileParser, LaterLinesReplaceAndDeleteEarlierOnes) {
  TRegFile replaced = TRegFile::Parse(
      "REGEDIT4\n[HKLM\\K]\n\"A\"=\"first\"\n\"B\"=\"string\"\n"
      "\"C\"=\"gone\"\n[HKEY_LOCAL_MACHINE\\k]\n\"a\"=\"second\"\n"
      "\"B\"=dword:1\n\"C\"=-\n",
      1252);
  EXPECT_EQ(replaced.ReadString(u"K", u"A"), u"second");
  EXPECT_EQ(replaced.ReadString(u"K", u"B"), std::nullopt);
  EXPECT_EQ(replaced.ReadString(u"K", u"C"), std::nullopt);

  // Deleting a key takes its subkeys but not a sibling whose name merely starts the same.
  TRegFile deleted = TRegFile::Parse(
      "REGEDIT4\n"
      "[HKLM\\SOFTWARE\\Merovan\\Orvex4]\n\"Old\"=\"x\"\n"
      "[HKLM\\SOFTWARE\\Merovan\\Orvex4\\Sub]\n\"S\"=\"sub\"\n"
      "[HKLM\\SOFTWARE\\Merovan!]\n\"X\"=\"sibling\"\n"
      "[-HKLM\\SOFTWARE\\merovan]\n\"Lost\"=\"x\"\n"
      "[HKLM\\SOFTWARE\\Merovan\\Orvex4]\n\"New\"=\"again\"\n",
      1252);
  EXPECT_EQ(Read(deleted, u"New"), u"again");
  EXPECT_EQ(Read(deleted, u"Old"), std::nullopt);
  EXPECT_EQ(deleted.ReadString(u"SOFTWARE\\Merovan\\Orvex4\\Sub", u"S"), std::nullopt);
  EXPECT_EQ(deleted.ReadString(u"SOFTWARE\\Merovan", u"Lost"), std::nullopt);
  EXPECT_EQ(deleted.ReadString(u"SOFTWARE\\Merovan!", u"X"), u"sibling");
}

TEST(RegFileParser, OtherRootsAndMalformedLinesAreSkipped) {
  TRegFile file = TRegFile::Parse(
      "REGEDIT4\r\n"
      "; a comment\r\n"
      "[HKEY_CURRENT_USER\\SOFTWARE\\Merovan\\Orvex4]\r\n"
      "\"User\"=\"cu\"\r\n"
      "[HKLM\\SOFTWARE\\Merovan\\Orvex4\r\n"
      "\"Orphan\"=\"x\"\r\n"
      "[HKLM\\SOFTWARE\\Merovan\\Orvex4]\r\n"
      "\"Open=\"x\"\r\n"
      "\"NoEquals\" \"x\"\r\n"
      "\"Tail\"=\"x\" y\r\n"
      "\"Word\"=dword:123456789\r\n"
      "\"Hex\"=hex(2):4g,00\r\n"
      "Bare=x\r\n"
      "\"Good\" = \"kept\" ; note\r\n",
      1252);
  EXPECT_EQ(Read(file, u"Good"), u"kept");
  for (std::u16string_view name :
       {u"User", u"Orphan", u"Open", u"NoEquals", u"Tail", u"Word", u"Hex"}) {
    EXPECT_EQ(Read(file, name), std::nullopt);
  }
  std::vector<int> lines;
  for (const TRegWarning& w : file.warnings()) lines.push_back(w.line);
  EXPECT_EQ(lines, (std::vector<int>{5, 8, 9, 10, 11, 12, 13}));

  for (std::string_view text :
       {"", "[HKLM\\K]\n\"A\"=\"x\"\n", "REGEDIT5\n[HKLM\\K]\n\"A\"=\"x\"\n"}) {
    TRegFile bad = TRegFile::Parse(text, 1252);
    EXPECT_EQ(bad.ReadString(u"K", u"A"), std::nullopt);
    EXPECT_EQ(bad.warnings().size(), 1u);
  }
}

}  // namespace
}  // namespace mv::registry
