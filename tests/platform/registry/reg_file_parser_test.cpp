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

TEST(RegFileParser, Version5Utf16EscapesDefaultValueAnyCaseAndBinaryData) {
  std::string bytes = Utf16Le(
      u"Windows Registry Editor Version 5.00\r\n\r\n"
      u"[HKEY_LOCAL_MACHINE\\SOFTWARE\\Merovan\\Orvex4]\r\n"
      u"\"ServerPath\"=\"C:\\\\App\\\\Server\\\\\"\r\n"
      u"\"Quote\"=\"say \\\"hi\\\" \\q\"\r\n"
      u"\"Na\\\"me\"=\"\u4f3a\u670d\u5668\"\r\n"
      u"@=\"default\"\r\n"
      u"\"Count\"=dword:0000000a\n"
      u"\"Blob\"=hex:01,02,\\\n  03,04,\\\n  05\n"
      u"\"Multi\"=hex(7):41,00,00,00,\\\n  00,00\n"
      u"\"Expand\"=hex(2):25,00,52,00,6f,00,6f,00,74,00,\\\n  25,00,00,00\n"
      u"\"Plain\"=hex(1):43,00,3a,00,00,00,58,00\n"
      u"\"Cut\"=hex:01,\\\n"
      u"\"After\"=\"still read\"\n");
  TRegFile file = TRegFile::Parse(bytes, 1252);
  EXPECT_EQ(Read(file, u"ServerPath"), u"C:\\App\\Server\\");
  EXPECT_EQ(Read(file, u"quote"), u"say \"hi\" \\q");  // an unknown escape stays as written
  EXPECT_EQ(Read(file, u"NA\"ME"), u"\u4f3a\u670d\u5668");
  EXPECT_EQ(Read(file, u""), u"default");
  EXPECT_EQ(file.ReadString(u"software\\MEROVAN\\orvex4\\", u"serverpath"), u"C:\\App\\Server\\");
  EXPECT_EQ(file.ReadString(u"SOFTWARE\\Merovan", u"ServerPath"), std::nullopt);
  // Binary data is no text; expandable and typed text is, up to its first NUL.
  for (std::u16string_view name : {u"Count", u"Blob", u"Multi"})
    EXPECT_EQ(Read(file, name), std::nullopt);
  EXPECT_EQ(Read(file, u"Expand"), u"%Root%");
  EXPECT_EQ(Read(file, u"Plain"), u"C:");
  EXPECT_EQ(Read(file, u"After"), u"still read");
  ASSERT_EQ(file.warnings().size(), 1u);
  EXPECT_EQ(file.warnings()[0].line, 17);
  // The same file whose byte-order mark was lost.
  EXPECT_EQ(Read(TRegFile::Parse(bytes.substr(2), 1252), u"Quote"), u"say \"hi\" \\q");
}

TEST(RegFileParser, NarrowEncodings) {
  // Big5 trail bytes may be 0x5C, the backslash: the text is decoded before it is split.
  TRegFile regedit4 = TRegFile::Parse(
      "REGEDIT4\n[HKLM\\SOFTWARE\\Merovan\\Orvex4]\n\"Name\"=\"\xB3\x5C\xA5\x5C\xBB\x5C\"\n"
      "\"Expand\"=hex(2):b3,5c,25,41,25,00\n",
      950);
  EXPECT_EQ(Read(regedit4, u"Name"), u"\u8a31\u529f\u84cb");
  EXPECT_EQ(Read(regedit4, u"Expand"), u"\u8a31%A%");
  // UTF-8 in a version 5 file, and in any file that starts with the UTF-8 byte-order mark.
  for (std::string header :
       {"Windows Registry Editor Version 5.00\n", "\xEF\xBB\xBFREGEDIT4\r\n"}) {
    TRegFile file = TRegFile::Parse(
        header + "[HKLM\\SOFTWARE\\Merovan\\Orvex4]\n\"Name\"=\"\xE4\xBC\xBA\xE6\x9C\x8D\"\n", 950);
    EXPECT_EQ(Read(file, u"Name"), u"\u4f3a\u670d") << header;
  }
}

TEST(RegFileParser, LaterLinesReplaceAndDeleteEarlierOnes) {
  // Deleting a key takes its subkeys but not a sibling whose name merely starts the same.
  TRegFile file = TRegFile::Parse(
      "REGEDIT4\n"
      "[HKLM\\SOFTWARE\\Merovan\\Orvex4]\n\"Old\"=\"x\"\n"
      "[HKLM\\SOFTWARE\\Merovan\\Orvex4\\Sub]\n\"S\"=\"sub\"\n"
      "[HKLM\\SOFTWARE\\Merovan!]\n\"X\"=\"sibling\"\n\"A\"=\"first\"\n\"B\"=\"string\"\n\"C\"="
      "\"gone\"\n"
      "[-HKLM\\SOFTWARE\\merovan]\n\"Lost\"=\"x\"\n"
      "[HKLM\\SOFTWARE\\Merovan\\Orvex4]\n\"New\"=\"again\"\n"
      "[HKEY_LOCAL_MACHINE\\software\\MEROVAN!]\n\"a\"=\"second\"\n\"B\"=dword:1\n\"C\"=-\n",
      1252);
  EXPECT_EQ(Read(file, u"New"), u"again");
  EXPECT_EQ(Read(file, u"Old"), std::nullopt);
  EXPECT_EQ(file.ReadString(u"SOFTWARE\\Merovan\\Orvex4\\Sub", u"S"), std::nullopt);
  EXPECT_EQ(file.ReadString(u"SOFTWARE\\Merovan", u"Lost"), std::nullopt);
  EXPECT_EQ(file.ReadString(u"SOFTWARE\\Merovan!", u"X"), u"sibling");
  EXPECT_EQ(file.ReadString(u"SOFTWARE\\Merovan!", u"A"), u"second");
  EXPECT_EQ(file.ReadString(u"SOFTWARE\\Merovan!", u"B"), std::nullopt);
  EXPECT_EQ(file.ReadString(u"SOFTWARE\\Merovan!", u"C"), std::nullopt);
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
