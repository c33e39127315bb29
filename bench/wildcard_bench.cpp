// Speed of the wildcard translator over a mix of the patterns users type (patterns per second),
// and of a search on a SQLite inbox of 1,000,000 rows with an index on the searched column: a
// prefix pattern attached with AddWildCard and opened, against the same query written by hand
// with one parameter. The index uses the NOCASE collation, as a LIKE search needs it. The query
// plan of the attached query is printed before the runs.
#include <benchmark/benchmark.h>

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "common/search/add_wildcard.h"
#include "common/search/wildcard.h"
#include "platform/codepage/codepage.h"
#include "platform/db/command.h"
#include "platform/db/connections.h"
#include "platform/db/dataset.h"

namespace {

namespace fs = std::filesystem;

const std::vector<std::u16string>& TypicalPatterns() {
  static const std::vector<std::u16string> patterns{u"TD2026000123",
                                                    u"TD2026*",
                                                    u"TD20260?0123",
                                                    u"*0123",
                                                    u"A..M",
                                                    u"TD2026*|TX2026*",
                                                    u"50%",
                                                    u"O'NEIL*",
                                                    u"報單*",
                                                    u"TD2026001..TD2026099",
                                                    u"*",
                                                    u"AB_C|D[1]|E!"};
  return patterns;
}

void BM_ChangeWildCardWide(benchmark::State& state) {
  const auto& patterns = TypicalPatterns();
  for (auto _ : state)
    for (const std::u16string& pattern : patterns)
      benchmark::DoNotOptimize(mv::ChangeWildCard("MsgRef", pattern, false, true));
  state.SetItemsProcessed(state.iterations() * static_cast<int64_t>(patterns.size()));
}
BENCHMARK(BM_ChangeWildCardWide);

void BM_ChangeWildCardNarrow(benchmark::State& state) {
  std::vector<std::string> patterns;
  for (const std::u16string& pattern : TypicalPatterns())
    patterns.push_back(mv::codepage::FromWide(pattern, mv::codepage::UserCodePage()));
  for (auto _ : state)
    for (const std::string& pattern : patterns)
      benchmark::DoNotOptimize(mv::ChangeWildCard("MsgRef", pattern, true));
  state.SetItemsProcessed(state.iterations() * static_cast<int64_t>(patterns.size()));
}
BENCHMARK(BM_ChangeWildCardNarrow);

constexpr int kRows = 1'000'000;
constexpr std::u16string_view kSelect = u"select MsgRef, Sender from Inbox";
// 100 rows: TD0012300 to TD0012399.
constexpr std::u16string_view kPrefixPattern = u"TD00123*";

void Exec(std::u16string_view sql) {
  mv::db::TMVADOCommand command;
  command.SetCommandText(sql);
  command.Execute();
}

// The inbox database in a temporary folder, made once per run and removed at exit.
class TInbox {
 public:
  TInbox() {
    char folder[] = "/tmp/mv_wildcard_bench_XXXXXX";
    if (::mkdtemp(folder) == nullptr) std::abort();
    folder_ = folder;
    std::ofstream(folder_ / "inbox.db").close();  // an empty file is an empty database
    mv::db::OpenConnection("DBMAIN", "sqlite:" + (folder_ / "inbox.db").string());
    Exec(u"create table Inbox (MsgRef text collate nocase, Sender text)");
    Exec(
        u"insert into Inbox (MsgRef, Sender) with recursive n(i) as (select 0 union all select "
        u"i + 1 from n where i < 999999) select printf('TD%07d', i), 'Sender ' || (i % 997) "
        u"from n");
    Exec(u"create index InboxMsgRef on Inbox (MsgRef)");
    PrintPlan();
  }
  ~TInbox() {
    mv::db::CloseConnection("DBMAIN");
    fs::remove_all(folder_);
  }

 private:
  static void PrintPlan() {
    mv::db::TMVADODataSet plan;
    plan.SetCommandText(u"explain query plan " + std::u16string(kSelect));
    mv::AddWildCard(plan, "MsgRef", kPrefixPattern, true, false, "");
    plan.Open();
    std::fprintf(stderr, "%s\n", mv::codepage::Utf8FromWide(plan.CommandText()).c_str());
    for (; !plan.Eof(); plan.Next())
      std::fprintf(stderr, "  %s\n", plan.FieldByName("detail").AsString().c_str());
    plan.Close();
  }

  fs::path folder_;
};

TInbox& Inbox() {
  static TInbox inbox;
  return inbox;
}

void BM_PrefixSearchAddWildCard(benchmark::State& state) {
  Inbox();
  for (auto _ : state) {
    mv::db::TMVADODataSet dataset;
    dataset.SetCommandText(kSelect);
    mv::AddWildCard(dataset, "MsgRef", kPrefixPattern, true, false, "");
    dataset.Open();
    if (dataset.RecordCount() != 100) state.SkipWithError("wrong row count");
    dataset.Close();
  }
}
BENCHMARK(BM_PrefixSearchAddWildCard)->Unit(benchmark::kMicrosecond);

void BM_PrefixSearchByHand(benchmark::State& state) {
  Inbox();
  for (auto _ : state) {
    mv::db::TMVADODataSet dataset;
    dataset.SetCommandText(std::u16string(kSelect) + u" where MsgRef like :p");
    dataset.SetUnicodeParamValue(0, u"TD00123%", false);
    dataset.Open();
    if (dataset.RecordCount() != 100) state.SkipWithError("wrong row count");
    dataset.Close();
  }
}
BENCHMARK(BM_PrefixSearchByHand)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
