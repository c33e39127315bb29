// libFuzzer target of the archive reader: the input is a zip file (when it starts with "PK") whose
// entries are read as table files, or one table file. The reader either refuses the input with
// its own error or reads a structure whose CREATE TABLE text is either refused or holds no
// statement end; every row it gives has one value per column. The zip reader's and the table
// reader's errors are the only exceptions allowed.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "common/tables/table_def.h"
#include "common/tables/table_file.h"
#include "platform/archive/zip_archive.h"
#include "platform/db/db_error.h"

namespace {

// Bytes read of one input at most, so that a small zip that inflates hugely stays quick.
constexpr size_t kMaxInflated = 4 << 20;

void Check(bool condition) {
  if (!condition) std::abort();
}

void CheckCreateText(const mv::tables::TTableDef& def) {
  try {
    const std::string text = mv::tables::CreateTableText(def, def.Name);
    Check(text.find(';') == std::string::npos && text.find("--") == std::string::npos);
  } catch (const mv::db::EDatabaseError&) {
  }
}

// Reads one table file given in pieces by `next` (which returns 0 at the end).
template <typename Next>
void ReadTableFile(Next next) {
  size_t columns = 0;
  mv::tables::TTableFileReader reader(
      [&](const mv::tables::TTableDef& def) {
        columns = def.Columns.size();
        Check(columns > 0);
        CheckCreateText(def);
      },
      [&](std::vector<mv::db::Variant>& row) { Check(row.size() == columns); });
  try {
    char buffer[4096];
    size_t total = 0;
    for (size_t n; (n = next(buffer, sizeof buffer)) > 0 && total < kMaxInflated; total += n) {
      reader.Feed(std::string_view(buffer, n));
    }
    reader.Finish();
  } catch (const mv::tables::ETableFileError&) {
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  if (!input.starts_with("PK")) {
    size_t at = 0;
    ReadTableFile([&](char* buffer, size_t room) {
      const size_t n = std::min(room, input.size() - at);
      std::copy_n(input.data() + at, n, buffer);
      at += n;
      return n;
    });
    return 0;
  }
  try {
    const auto zip = mv::archive::TZipReader::FromMemory(input);
    std::string name;
    for (int entries = 0; entries < 64 && zip->NextEntry(name); ++entries) {
      ReadTableFile([&](char* buffer, size_t room) { return zip->Read(buffer, room); });
    }
  } catch (const mv::archive::EArchiveError&) {
  }
  return 0;
}
