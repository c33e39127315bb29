// A sample business-registration check library for the tests: it accepts numbers of digits only
// whose digits add up to a multiple of 7, and appends "loaded", "ChkBRN <number>" and "unloaded"
// lines to the file named by MV_CHKBRN_LOG. The build sets EXPORT_NAME, so one source also gives
// a library without the "ChkBRN" export.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

void Log(const std::string& line) {
  const char* path = std::getenv("MV_CHKBRN_LOG");
  if (FILE* f = path != nullptr ? std::fopen(path, "a") : nullptr) {
    std::fprintf(f, "%s\n", line.c_str());
    std::fclose(f);
  }
}

struct LoadNotice {
  LoadNotice() { Log("loaded"); }
  ~LoadNotice() { Log("unloaded"); }
} loadNotice;

}  // namespace

extern "C" uint8_t EXPORT_NAME(const char* number) {
  Log(std::string("ChkBRN ") + number);
  int sum = 0;
  for (const char* p = number; *p != 0; ++p) {
    if (*p < '0' || *p > '9') return 0;
    sum += *p - '0';
  }
  return *number != 0 && sum % 7 == 0 ? 1 : 0;
}
