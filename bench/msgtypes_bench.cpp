// Message types and signed files: GetMsgType on an inbox of 200,000 rows (a copy of the demo
// database's Inbox table with generated messages added), XMLInitMsgList on a signed message file
// of about 1 MB, and SEGX on a message key.
#include <benchmark/benchmark.h>
#include <stdlib.h>

#include <cstdio>
#include <filesystem>
#include <string>

#include "common/services/msg_fields.h"
#include "common/services/msg_types.h"
#include "common/services/signed_files.h"
#include "platform/db/command.h"
#include "platform/db/connections.h"

namespace fs = std::filesystem;

namespace {

// A temporary folder with a copy of the demo database, made once per run and removed at exit.
class TFolder {
 public:
  TFolder() {
    char folder[] = "/tmp/mv_msgtypes_bench_XXXXXX";
    if (::mkdtemp(folder) == nullptr) std::abort();
    path_ = folder;
    fs::copy_file(MV_DEMO_DATABASE, path_ / "mail.db");
    mv::db::OpenConnection("DBMAIN", "sqlite:" + (path_ / "mail.db").string());
    mv::db::TMVADOCommand fill;
    // 200,000 messages of 2,000 senders, one every ten seconds from day 45000.
    fill.SetCommandText(
        u"insert into Inbox (RefNo, DateTime, Sender, MType, Recipient) with recursive n(i) as "
        u"(select 0 union all select i + 1 from n where i < 199999) select printf('TD%08d', i % "
        u"50000), 45000 + i / 8640.0, 'S' || (i % 2000), 'HKTDLD', 'MVDEMO01' from n");
    fill.Execute();
  }
  ~TFolder() {
    mv::db::CloseConnection("DBMAIN");
    fs::remove_all(path_);
  }
  const fs::path& path() const { return path_; }

 private:
  fs::path path_;
};

TFolder& Folder() {
  static TFolder folder;
  return folder;
}

void BM_GetMsgType(benchmark::State& state) {
  Folder();
  // Message 123457: reference TD00023457, sender S1457; four rows share its reference number.
  const std::string key = mv::MakeMsgKey(45000 + 123457 / 8640.0, "TD00023457", "S1457");
  std::string type;
  for (auto _ : state) {
    mv::GetMsgType("Inbox", key, 2, type);
    benchmark::DoNotOptimize(type);
  }
  if (type.rfind("HKTDLD", 0) != 0) state.SkipWithError("message not found");
}
BENCHMARK(BM_GetMsgType)->Unit(benchmark::kMicrosecond);

void BM_XMLInitMsgList(benchmark::State& state) {
  const std::string file = (Folder().path() / "signed.xml").string();
  {
    std::string text = "<?xml version=\"1.0\"?>\r\n<TDEC>\r\n";
    for (int i = 0; i < 20000; ++i) text += "  <Line><No>" + std::to_string(i) + "</No></Line>\r\n";
    text += "<electronicSignature>\r\n";
    for (int i = 0; i < 2000; ++i)
      text += "  MIIB3QYJKoZIhvcNAQcCoIIBzjCCAcoCAQExCzAJBgUrDgMCGgUA\r\n";
    text += "</electronicSignature>\r\n</TDEC>\r\n";
    FILE* f = std::fopen(file.c_str(), "wb");
    std::fwrite(text.data(), 1, text.size(), f);
    std::fclose(f);
    state.counters["bytes"] = static_cast<double>(text.size());
  }
  std::string data, sig;
  for (auto _ : state) {
    if (mv::XMLInitMsgList(file, data, sig) != mv::kSplitDone) state.SkipWithError("split failed");
  }
}
BENCHMARK(BM_XMLInitMsgList)->Unit(benchmark::kMillisecond);

void BM_Segx(benchmark::State& state) {
  const std::string key = mv::MakeMsgKey(45600.40361111111, "TD24000123", "hkgovt");
  std::string field;
  for (auto _ : state) {
    mv::SEGX('\x01', key, 3, field);
    benchmark::DoNotOptimize(field);
  }
}
BENCHMARK(BM_Segx);

}  // namespace

BENCHMARK_MAIN();
