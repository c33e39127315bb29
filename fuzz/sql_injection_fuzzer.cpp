// libFuzzer target of user text on its way into SQL. The first byte chooses one of the search
// builders (StrSQLCond, CheckQuot put inline, MV_NQuotedStr, ChangeWildCard in both widths and
// forms, ChangeWildCardW, AddWildCard in all forms); the rest is the value or pattern, read as
// narrow text (Big5) and as wide text (UTF-16 units, two bytes each, lone surrogates and marks
// allowed). The text is stored as a row of a SQLite table beside a canary table, the builder's
// condition is run there, and the rows found must be exactly those the reference matcher selects;
// the statement must not fail and the canary must stay as it was.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

#include "common/text/conversions.h"
#include "platform/db/command.h"
#include "platform/db/connections.h"
#include "tests/common/search/search_oracle.h"

namespace {

std::unique_ptr<mv::test::TInjectionTable> table;

// Rows that every run meets: NULL, empty, blanks, and texts that end literals or strings early.
std::vector<mv::test::TRef> FixedRows() {
  using namespace std::string_literals;
  return {mv::test::TRef(),
          u"",
          u"   ",
          u"'",
          u"''",
          u"\"a:b\"",
          u"a\0b"s,
          u"\x02",
          u"%",
          u"報關",
          u"A",
          u"a",
          u"\xFFFD",
          u"') OR (1=1) --",
          u"!",
          u"[x]",
          u"😀"};
}

void Exec(const char* sql) {
  mv::db::TMVADOCommand command;
  command.SetCommandText(sql);
  command.Execute();
}

void Check(mv::test::TBuilder builder, const std::u16string& wide, const std::string& narrow) {
  std::set<int> found;
  try {
    found = table->Select(builder, wide, narrow);
  } catch (...) {
    std::fprintf(stderr, "builder %d: the statement failed\n", static_cast<int>(builder));
    std::abort();
  }
  const std::set<int> expected = table->Expected(builder, wide, narrow);
  if (found != expected) {
    std::fprintf(stderr, "builder %d: other rows than the matcher's:", static_cast<int>(builder));
    for (int id : found) std::fprintf(stderr, " %d", id);
    std::fprintf(stderr, " instead of");
    for (int id : expected) std::fprintf(stderr, " %d", id);
    std::fprintf(stderr, "\n");
    std::abort();
  }
  if (!mv::test::TInjectionTable::CanaryIntact()) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  setenv("MV_CODEPAGE", "950", 1);
  char folder[] = "/tmp/fuzz_sql_injection.XXXXXX";
  if (mkdtemp(folder) == nullptr) std::abort();
  const std::string file = std::string(folder) + "/main.db";
  std::fclose(std::fopen(file.c_str(), "w"));  // an empty file is an empty database
  mv::db::OpenConnection("DBMAIN", "sqlite:" + file);
  Exec("pragma journal_mode = memory");
  Exec("pragma synchronous = off");
  table = std::make_unique<mv::test::TInjectionTable>(FixedRows());
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  if (size == 0) return 0;
  const auto builder = static_cast<mv::test::TBuilder>(data[0] % mv::test::kBuilderCount);
  const std::string narrow(reinterpret_cast<const char*>(data + 1), size - 1);
  std::u16string wide(narrow.size() / 2, u'\0');
  std::memcpy(wide.data(), narrow.data(), wide.size() * 2);
  table->Push(wide);
  table->Push(mv::MV_AnsiToWideString(narrow));
  Check(builder, wide, narrow);
  table->Pop();
  table->Pop();
  return 0;
}
