#include "common/tables/table_file.h"

#include <algorithm>
#include <charconv>

#include "common/tables/field_text.h"
#include "platform/codepage/codepage.h"

namespace mv::tables {
namespace {

// Longest line a reader holds: a row of large binary columns fits, a runaway file does not.
constexpr size_t kMaxLineBytes = size_t{256} << 20;

std::vector<std::string_view> SplitTabs(std::string_view line) {
  std::vector<std::string_view> fields;
  for (size_t start = 0;;) {
    const size_t tab = line.find('\t', start);
    fields.push_back(line.substr(start, tab == std::string_view::npos ? tab : tab - start));
    if (tab == std::string_view::npos) return fields;
    start = tab + 1;
  }
}

std::string TextField(std::string_view utf8) {
  std::string out;
  AppendText(codepage::WideFromUtf8(utf8), out);
  return out;
}

// A name or type of the header: text without control characters, as UTF-8.
std::string HeaderText(std::string_view field, const char* what) {
  const std::u16string text = ParseText(field);
  if (std::any_of(text.begin(), text.end(), [](char16_t c) { return c < 0x20 || c == 0x7F; })) {
    throw EFieldTextError(std::string(what) + " holds a control character");
  }
  return codepage::Utf8FromWide(text);
}

int64_t WholeNumber(std::string_view text) {
  int64_t value = -1;
  const auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), value);
  return ec == std::errc() && end == text.data() + text.size() && !text.empty() ? value : -1;
}

}  // namespace

std::vector<TValueClass> ValueClasses(const TTableDef& def) {
  std::vector<TValueClass> classes;
  for (const TColumnDef& column : def.Columns) classes.push_back(ValueClassOf(column.Type));
  return classes;
}

std::string TableFileHeader(const TTableDef& def) {
  std::string text = "MVTABLE\t" + std::to_string(kTableFileVersion) + "\n";
  text += "TABLE\t" + TextField(def.Name) + "\n";
  for (const TColumnDef& column : def.Columns) {
    text += "COLUMN\t" + TextField(column.Name) + "\t" + TextField(column.Type) + "\t" +
            (column.NotNull ? "NOT NULL" : "NULL") + "\t" + std::to_string(column.KeyOrder) + "\n";
  }
  return text + "ROWS\n";
}

void AppendTableFileRow(const std::vector<TValueClass>& classes,
                        const std::vector<db::Variant>& row, std::string& out) {
  for (size_t c = 0; c < classes.size(); ++c) {
    if (c) out += '\t';
    try {
      AppendField(classes[c], row[c], out);
    } catch (const EFieldTextError& error) {
      throw ETableFileError("column " + std::to_string(c + 1) + ": " + error.what());
    }
  }
  out += '\n';
}

std::string TableFileEnd(int64_t rows) {
  return "END\t" + std::to_string(rows) + "\n";
}

TTableFileReader::TTableFileReader(THeaderEvent onHeader, TRowEvent onRow)
    : onHeader_(std::move(onHeader)), onRow_(std::move(onRow)) {}

void TTableFileReader::Fail(const std::string& what) const {
  const std::string where = part_ == TPart::Rows ? "row " + std::to_string(rows_ + 1) + " (line " +
                                                       std::to_string(line_) + ")"
                                                 : "line " + std::to_string(line_);
  throw ETableFileError(where + ": " + what);
}

void TTableFileReader::Feed(std::string_view bytes) {
  while (!bytes.empty()) {
    const size_t end = bytes.find('\n');
    if (end == std::string_view::npos) {
      pending_.append(bytes);
      if (pending_.size() > kMaxLineBytes) Fail("a line longer than 256 MB");
      return;
    }
    if (pending_.empty()) {
      Line(bytes.substr(0, end));
    } else {
      pending_.append(bytes.substr(0, end));
      const std::string line = std::move(pending_);
      pending_.clear();
      Line(line);
    }
    bytes.remove_prefix(end + 1);
  }
}

void TTableFileReader::Finish() {
  if (!pending_.empty()) {
    ++line_;
    Fail("the file ends inside a line");
  }
  if (part_ != TPart::Ended) {
    ++line_;
    Fail("the file ends before its END line");
  }
}

void TTableFileReader::Line(std::string_view line) {
  ++line_;
  if (part_ == TPart::Ended) Fail("text after the END line");
  if (part_ == TPart::Rows && !line.starts_with("END\t")) {
    RowLine(line);
    return;
  }
  try {
    HeaderLine(SplitTabs(line));
  } catch (const EFieldTextError& error) {
    Fail(error.what());
  }
}

void TTableFileReader::HeaderLine(const std::vector<std::string_view>& f) {
  switch (part_) {
    case TPart::Magic:
      if (f.size() != 2 || f[0] != "MVTABLE") Fail("not a table file");
      if (WholeNumber(f[1]) != kTableFileVersion) {
        Fail("table file version " + std::string(f[1].substr(0, 20)) + " is not known here");
      }
      part_ = TPart::Table;
      return;
    case TPart::Table:
      if (f.size() != 2 || f[0] != "TABLE") Fail("a TABLE line was expected");
      def_.Name = HeaderText(f[1], "the table name");
      if (def_.Name.empty()) Fail("the table has no name");
      part_ = TPart::Columns;
      return;
    case TPart::Columns:
      if (f.size() == 1 && f[0] == "ROWS") {
        if (def_.Columns.empty()) Fail("the table has no columns");
        CheckKeys();
        classes_ = ValueClasses(def_);
        row_.resize(classes_.size());
        part_ = TPart::Rows;
        onHeader_(def_);
        return;
      }
      if (f.size() != 5 || f[0] != "COLUMN" || (f[3] != "NULL" && f[3] != "NOT NULL")) {
        Fail("a COLUMN or ROWS line was expected");
      }
      def_.Columns.push_back({HeaderText(f[1], "a column name"), HeaderText(f[2], "a type"),
                              f[3] == "NOT NULL", static_cast<int>(WholeNumber(f[4]))});
      if (def_.Columns.back().Name.empty()) Fail("a column has no name");
      if (WholeNumber(f[4]) < 0 || WholeNumber(f[4]) > 1000) Fail("a key place is no number");
      return;
    case TPart::Rows:  // the END line
      if (f.size() != 2 || WholeNumber(f[1]) != rows_) {
        Fail("the END line counts " + std::string(f.size() > 1 ? f[1].substr(0, 20) : "") +
             " rows, the file holds " + std::to_string(rows_));
      }
      part_ = TPart::Ended;
      return;
    case TPart::Ended:
      return;
  }
}

void TTableFileReader::CheckKeys() const {
  std::vector<int> places;
  for (const TColumnDef& column : def_.Columns) {
    if (column.KeyOrder > 0) places.push_back(column.KeyOrder);
  }
  std::sort(places.begin(), places.end());
  for (size_t i = 0; i < places.size(); ++i) {
    if (places[i] != static_cast<int>(i) + 1) Fail("the key places are not 1, 2, ...");
  }
}

void TTableFileReader::RowLine(std::string_view line) {
  size_t column = 0;
  for (size_t start = 0;; ++column) {
    const size_t tab = line.find('\t', start);
    if (column >= classes_.size())
      Fail("more fields than the " + std::to_string(classes_.size()) + " columns");
    const std::string_view field =
        line.substr(start, tab == std::string_view::npos ? tab : tab - start);
    try {
      row_[column] = ParseField(classes_[column], field);
    } catch (const EFieldTextError& error) {
      Fail("column " + def_.Columns[column].Name + ": " + error.what());
    }
    if (tab == std::string_view::npos) break;
    start = tab + 1;
  }
  if (column + 1 != classes_.size())
    Fail("fewer fields than the " + std::to_string(classes_.size()) + " columns");
  onRow_(row_);
  row_.resize(classes_.size());  // the event may have taken the values
  ++rows_;
}

}  // namespace mv::tables
