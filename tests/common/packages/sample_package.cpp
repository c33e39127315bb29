// A sample service package for the tests. It appends one line per event to the file named by
// MV_PACKAGE_LOG: "<name> loaded" when the module is loaded, and "<name> <code> <args>" for every
// call of its entry point, each argument written by its kind. PACKAGE_NAME and ENTRY_NAME are
// set by the build, so one source gives several packages (one of them without "InitService").
#include <cstdio>
#include <cstdlib>
#include <string>

#include "common/services/service_abi.h"

namespace {

void Log(const std::string& line) {
  const char* path = std::getenv("MV_PACKAGE_LOG");
  if (path == nullptr) return;
  if (FILE* f = std::fopen(path, "a")) {
    std::fprintf(f, "%s\n", line.c_str());
    std::fclose(f);
  }
}

std::string Describe(const mv_arg& arg) {
  switch (arg.kind) {
    case MV_ARG_INT32:
      return "i" + std::to_string(arg.value.i32);
    case MV_ARG_INT64:
      return "l" + std::to_string(arg.value.i64);
    case MV_ARG_BOOL:
      return arg.value.b != 0 ? "true" : "false";
    case MV_ARG_TEXT:
      return std::string("s:") + arg.value.text;
    default:
      return "?";
  }
}

struct LoadNotice {
  LoadNotice() { Log(std::string(PACKAGE_NAME) + " loaded"); }
} loadNotice;

}  // namespace

extern "C" __attribute__((visibility("default"))) void ENTRY_NAME(int32_t code, const mv_arg* args,
                                                                  int32_t high) {
  std::string line = std::string(PACKAGE_NAME) + " " + std::to_string(code);
  for (int32_t i = 0; i <= high; ++i) line += " " + Describe(args[i]);
  Log(line);
}
