// The table file on its own: every value form at its edges, written and read back, and the
// damaged files a reader must refuse with the line or row that is wrong.
#include "common/tables/table_file.h"

#include <gtest/gtest.h>

#include <cmath>

#include "common/tables/field_text.h"

namespace mv::tables {
namespace {

using db::Variant;

TEST(FieldTextTest, EveryClassRoundTripsAtItsEdges) {
  const std::pair<TValueClass, Variant> values[] = {
      {TValueClass::Integer, Variant(int64_t{INT64_MIN})},
      {TValueClass::Integer, Variant(int64_t{INT64_MAX})},
      {TValueClass::Real, Variant(0.1 + 0.2)},
      {TValueClass::Real, Variant(-1e-320)},
      {TValueClass::Real, Variant(HUGE_VAL)},
      {TValueClass::Date, Variant(db::TDateTime{45331.123456789012})},
      {TValueClass::Bool, Variant(true)},
      {TValueClass::Bytes, Variant(std::vector<uint8_t>{})},
      {TValueClass::Bytes, Variant(std::vector<uint8_t>{0})},
      {TValueClass::Bytes, Variant(std::vector<uint8_t>{0xFF, 0xFE})},
      {TValueClass::Bytes, Variant(std::vector<uint8_t>{1, 2, 3})},
      {TValueClass::Text, Variant(std::u16string(u"\\N"))},
      {TValueClass::Text, Variant(std::u16string(u"a\tb\r\n\\c\x02\x7F 報關 😀"))},
      {TValueClass::Text, Variant(std::u16string(u"nul\0end", 7))},
      {TValueClass::Text, Variant(std::u16string(u"lone \xD800 and \xDC00"))},
      {TValueClass::Text, Variant(std::u16string())},
      {TValueClass::Integer, Variant()},
  };
  for (const auto& [valueClass, value] : values) {
    std::string text;
    AppendField(valueClass, value, text);
    EXPECT_EQ(text.find_first_of("\t\n\r"), std::string::npos) << text;
    EXPECT_EQ(ParseField(valueClass, text), value) << text;
  }
  std::string text;
  AppendField(TValueClass::Bytes, Variant(std::vector<uint8_t>{'M', 'a'}), text);
  EXPECT_EQ(text, "TWE=");
  EXPECT_THROW(AppendField(TValueClass::Integer, Variant(1.5), text), EFieldTextError);
  EXPECT_THROW(AppendField(TValueClass::Integer, Variant("twelve"), text), EFieldTextError);
}

TEST(FieldTextTest, RefusesWhatNoWriterWrites) {
  for (const char* bad : {"\xC0\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xE4\xB8", "a\\",
                          "\\x41", "\\u12", "\\uZZZZ", "tab\there"}) {
    EXPECT_THROW((void)ParseField(TValueClass::Text, bad), EFieldTextError) << bad;
  }
  for (const char* bad : {"", "1 ", "+1", "0x10", "9223372036854775808"}) {
    EXPECT_THROW((void)ParseField(TValueClass::Integer, bad), EFieldTextError) << bad;
  }
  for (const char* bad : {"TWE", "TW==E===", "T===", "TWE=TWE=", "TW\x00=", "T-E="}) {
    EXPECT_THROW((void)ParseField(TValueClass::Bytes, bad), EFieldTextError) << bad;
  }
  EXPECT_THROW((void)ParseField(TValueClass::Bool, "true"), EFieldTextError);
  EXPECT_THROW((void)ParseField(TValueClass::Date, "2024-01-01"), EFieldTextError);
}

// Reads `text` in pieces of `piece` bytes; returns the rows or the reader's message.
std::string Read(std::string_view text, size_t piece = 3) {
  std::string seen;
  TTableFileReader reader([&](const TTableDef& def) { seen += def.Name + ":"; },
                          [&](std::vector<Variant>& row) { seen += row[0].AsString() + ","; });
  try {
    for (size_t i = 0; i < text.size(); i += piece) reader.Feed(text.substr(i, piece));
    reader.Finish();
  } catch (const ETableFileError& error) {
    return error.what();
  }
  return seen;
}

TEST(TableFileTest, WrittenFileReadsBackInAnyPieces) {
  const TTableDef def{"報關 [x]", {{"Id", "int", true, 1}, {"Name", "nvarchar(50)", false, 0}}};
  std::string text = TableFileHeader(def);
  const std::vector<std::vector<Variant>> rows{{7, u"a"}, {8, Variant()}};
  for (const auto& row : rows) AppendTableFileRow(ValueClasses(def), row, text);
  text += TableFileEnd(2);
  for (size_t piece : {size_t{1}, size_t{5}, text.size()})
    EXPECT_EQ(Read(text, piece), "報關 [x]:7,8,");
  EXPECT_EQ(Read(TableFileHeader(def) + TableFileEnd(0)), "報關 [x]:");
}

TEST(TableFileTest, DamagedFilesNameTheirLineOrRow) {
  const std::string head = "MVTABLE\t1\nTABLE\tT\nCOLUMN\tId\tint\tNOT NULL\t1\nROWS\n";
  const std::pair<std::string, std::string> cases[] = {
      {"MVTABLE\t2\n", "line 1: table file version 2 is not known here"},
      {"PK\x03\x04", "line 1: the file ends inside a line"},
      {"MVTABLE\t1\nTABLE\ta\\tb\n", "line 2: the table name holds a control character"},
      {"MVTABLE\t1\nTABLE\tT\nROWS\n", "line 3: the table has no columns"},
      {"MVTABLE\t1\nTABLE\tT\nCOLUMN\tA\tint\tNULL\t2\nROWS\n", "line 4: the key places"},
      {"MVTABLE\t1\nTABLE\tT\nCOLUMN\tA\tint; drop\tNULL\t0\nROWS\n",
       ""},  // read as written; CreateTableText refuses the type
      {head + "1\n2\t3\nEND\t2\n", "row 2 (line 6): more fields"},
      {head + "1\nx\nEND\t2\n", "row 2 (line 6): column Id: 'x' is no whole number"},
      {head + "1\nEND\t2\n", "row 2 (line 6): the END line counts 2 rows, the file holds 1"},
      {head + "1\n", "row 2 (line 6): the file ends before its END line"},
      {head + "1\nEND\t1\n2\n", "line 7: text after the END line"},
      {head + "1\nEND\t1", "row 2 (line 6): the file ends inside a line"},
  };
  for (const auto& [text, message] : cases) {
    const std::string got = Read(text);
    if (message.empty()) {
      EXPECT_EQ(got, "row 1 (line 5): the file ends before its END line") << text;
    } else {
      EXPECT_EQ(got.substr(0, message.size()), message) << text;
    }
  }
  const TTableDef injected{"T", {{"A", "int); drop table x; --", false, 0}}};
  EXPECT_THROW((void)CreateTableText(injected, "T"), std::runtime_error);
  EXPECT_EQ(CreateTableText({"T", {{"a]b", "decimal(18, 2)", true, 1}}}, "T2"),
            "CREATE TABLE [T2] ([a]]b] decimal(18, 2) NOT NULL, PRIMARY KEY ([a]]b]))");
}

}  // namespace
}  // namespace mv::tables
