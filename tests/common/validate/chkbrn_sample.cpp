// A sample business-registration check library for the tests: it accepts the number "16" only,
// and appends "loaded", "ChkBRN <number>" and "unloaded" lines to the file named by
// MV_CHKBRN_LOG. The build sets EXPORT_NAME, so one source also gives a library without the
// "ChkBRN" export.
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
  return std::string(number) == "16" ? 1 : 0;
}
