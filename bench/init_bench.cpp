// Start-up cost of the Orvex line on a large installation: Init + FreeStrList as a client pays it,
// the three loaders it runs one by one, and opening the system configuration file for one value.
// Each benchmark also reports how many configuration files were parsed per call, since a parse
// is the expensive part and the loaders are meant to parse each file once.
//
// The installation is generated in a temporary folder: a SEDIFSYS.INI of about 5,000 lines with
// 40 services (their packages deferred, so none is loaded) and 400 message types across the three
// boxes, a registry file and a WIN.INI. Boxes go to a recording provider; a benchmark that shows
// one fails, as the installation is meant to start cleanly.
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "common/frame/internet_settings.h"
#include "common/frame/settings_loader.h"
#include "common/frame/shared_state.h"
#include "common/frame/startup.h"
#include "platform/codepage/codepage.h"
#include "platform/dialogs/dialogs.h"
#include "platform/ini/ini_file.h"

namespace {

namespace fs = std::filesystem;

constexpr int kServices = 40;
constexpr int kMenuLines = 8;
// Message types per box (inbox, outbox, sent box): 400 in all, three codes each.
constexpr int kBoxTypes[3] = {160, 120, 120};
constexpr int kTargetLines = 5000;
constexpr int kFieldSectionKeys = 50;

// Text of an INI file, counting its lines.
class IniText {
 public:
  void Section(const std::string& name) { Line("[" + name + "]"); }
  void Key(const std::string& key, const std::string& value) { Line(key + "=" + value); }
  int Lines() const { return lines_; }
  const std::string& Text() const { return text_; }

 private:
  void Line(const std::string& line) {
    text_ += line + "\r\n";
    ++lines_;
  }
  std::string text_;
  int lines_ = 0;
};

// A six-character message code: box letter, type number, code number.
std::string Code(int box, int type, int n) {
  std::string code = std::string(1, "IOS"[box]) + std::to_string(1000 + type).substr(1);
  return code + std::to_string(100 + n).substr(1);
}

std::string SystemIni(const std::string& root) {
  IniText ini;
  ini.Section("System");
  ini.Key("Version", "4.2.1");
  ini.Section("Property");
  for (const char* key : {"DateTime", "Integer", "String", "Others"}) ini.Key(key, "8388608");
  ini.Section("Receipient");
  for (const char* key : {"Government", "ECIC", "Merovan"}) ini.Key(key, "HKGOVT");
  ini.Section("Advance");
  ini.Key("EDIInPath", root + "/INBOX");
  ini.Key("EDIOutPath", root + "/OUTBOX");
  ini.Section("AUTO_REFRESH");
  ini.Key("INBOX", "1005");
  ini.Key("SENTBOX", "1000.30");
  ini.Section("EMAIL_CONFIG");
  ini.Key("SMTPHost", "mail.merovan.com.hk");
  ini.Key("MvnEmailAddr", "edi@merovan.com.hk");
  ini.Section("POLICY");
  ini.Key("VERFIYLDAPOption", "0");
  ini.Key("MVNCERTDN", "c=HK, o=Merovan Limited, cn=Merovan Gateway");
  ini.Section("HYPERLINK");
  ini.Key("TTG", "https://www.merovan.com.hk/auth");

  ini.Section("SERVICES");
  for (int s = 0; s < kServices; ++s) {
    ini.Key(std::to_string(s + 1),
            "SVC" + std::to_string(s) + ",Service " + std::to_string(s) + ",0");
  }
  ini.Section("Plugin");
  for (int s = 0; s < kServices; ++s) {
    ini.Key("SVC" + std::to_string(s), root + "/server/SVC" + std::to_string(s) + ".so");
  }
  for (int s = 0; s < kServices; ++s) {
    ini.Section("SVC" + std::to_string(s) + "_MENU");
    for (int m = 0; m < kMenuLines; ++m)
      ini.Key("M" + std::to_string(m), "Menu entry " + std::to_string(m));
  }

  const char* sections[3] = {"InboxMsgType", "OutboxMsgType", "SentboxMsgType"};
  for (int box = 0; box < 3; ++box) {
    ini.Section(sections[box]);
    for (int t = 0; t < kBoxTypes[box]; ++t) {
      std::string value = "|";
      for (int n = 0; n < 3; ++n) value += Code(box, t, n) + "|";
      ini.Key("Type" + std::to_string(t), value);
    }
  }
  ini.Section("InboxAction");
  for (int t = 0; t < kBoxTypes[0]; ++t) ini.Key("Type" + std::to_string(t), "|V|P|V|");
  ini.Section("InboxSrvType");
  for (int t = 0; t < kBoxTypes[0]; ++t)
    ini.Key("Type" + std::to_string(t), "SVC" + std::to_string(t % kServices));

  // The rest of a large installation: per-service field settings the start-up does not read.
  for (int section = 0; ini.Lines() < kTargetLines; ++section) {
    ini.Section("FIELDS" + std::to_string(section));
    for (int k = 0; k < kFieldSectionKeys; ++k) {
      ini.Key("Field" + std::to_string(k), "Caption of field " + std::to_string(k) + ",1,20");
    }
  }
  return ini.Text();
}

void WriteFile(const fs::path& path, const std::string& text) {
  fs::create_directories(path.parent_path());
  std::ofstream(path, std::ios::binary) << text;
}

// The generated installation; removed when the program ends.
class Installation {
 public:
  Installation() {
    std::string pattern = (fs::temp_directory_path() / "mvbench-XXXXXX").string();
    if (::mkdtemp(pattern.data()) == nullptr) std::abort();
    root_ = pattern;
    WriteFile(root_ / "server" / "SEDIFSYS.INI", SystemIni(root_.string()));
    WriteFile(root_ / "machine" / "WIN.INI",
              "[MEROVAN_CONNECTION]\r\nRASProfile=Office\r\nLeaseLine=1\r\n");
    WriteFile(root_ / "machine" / "registry.reg",
              "Windows Registry Editor Version 5.00\r\n\r\n"
              "[HKEY_LOCAL_MACHINE\\SOFTWARE\\Merovan\\Orvex4]\r\n\"ServerPath\"=\"" +
                  (root_ / "server").string() + "\"\r\n");
    ::setenv("MV_MACHINE_DIR", (root_ / "machine").c_str(), 1);
    ::unsetenv("MV_REGISTRY");
  }
  ~Installation() { fs::remove_all(root_); }
  std::string SystemIniPath() const { return (root_ / "server" / "SEDIFSYS.INI").string(); }

 private:
  fs::path root_;
};

Installation* installation = nullptr;
mv::dialogs::RecordingDialogProvider boxes;

// Reports time and parses per call, and fails the run when a box was shown.
void Report(benchmark::State& state, uint64_t parsesBefore) {
  const double calls = static_cast<double>(state.iterations());
  state.counters["parses_per_call"] =
      static_cast<double>(mv::ini::TIniFile::ParseCount() - parsesBefore) / calls;
  state.counters["time_per_call"] =
      benchmark::Counter(calls, benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
  if (!boxes.Requests().empty()) {
    state.SkipWithError(
        ("a box was shown: " + mv::codepage::Utf8FromWide(boxes.Requests()[0].text)).c_str());
  }
}

void BM_InitAndFreeStrList(benchmark::State& state) {
  const uint64_t before = mv::ini::TIniFile::ParseCount();
  for (auto _ : state) {
    mv::Init();
    mv::FreeStrList();
  }
  Report(state, before);
}
BENCHMARK(BM_InitAndFreeStrList)->Unit(benchmark::kMillisecond);

// One loader of the start-up on its own, after an Init has found the installation.
template <void (*Loader)()>
void BM_Loader(benchmark::State& state) {
  mv::Init();
  const uint64_t before = mv::ini::TIniFile::ParseCount();
  for (auto _ : state) Loader();
  Report(state, before);
  mv::FreeStrList();
}
BENCHMARK_TEMPLATE(BM_Loader, mv::InitRecord)->Name("BM_InitRecord")->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(BM_Loader, mv::InitInternetRecord)
    ->Name("BM_InitInternetRecord")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_TEMPLATE(BM_Loader, mv::GetDNs)->Name("BM_GetDNs")->Unit(benchmark::kMillisecond);

void BM_IniOpenAndReadString(benchmark::State& state) {
  const std::string path = installation->SystemIniPath();
  const uint64_t before = mv::ini::TIniFile::ParseCount();
  for (auto _ : state) {
    const mv::ini::TIniFile ini(path);
    benchmark::DoNotOptimize(ini.ReadString("HYPERLINK", "TTG", ""));
  }
  Report(state, before);
}
BENCHMARK(BM_IniOpenAndReadString)->Unit(benchmark::kMicrosecond);

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  Installation generated;
  installation = &generated;
  mv::dialogs::ScopedProvider quiet(boxes);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
