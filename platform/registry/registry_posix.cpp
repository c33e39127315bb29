#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <set>

#include "platform/codepage/codepage.h"
#include "platform/files/file_names.h"
#include "platform/files/paths.h"
#include "platform/registry/reg_file_parser.h"
#include "platform/registry/registry.h"
#include "platform/system/machine.h"

namespace mv::registry {
namespace {

constexpr size_t kMaxReportedWarnings = 10;

// Writes the skipped lines of a file to standard error, the first time that file is read in
// this process (the file is read again for every value).
void ReportWarnings(const std::string& path, const std::vector<TRegWarning>& warnings) {
  if (warnings.empty()) return;
  static std::mutex mutex;
  static std::set<std::string> reported;
  std::lock_guard lock(mutex);
  if (!reported.insert(path).second) return;
  for (size_t i = 0; i < warnings.size() && i < kMaxReportedWarnings; ++i) {
    std::fprintf(stderr, "%s, line %d: %s\n", path.c_str(), warnings[i].line,
                 warnings[i].message.c_str());
  }
  if (warnings.size() > kMaxReportedWarnings) {
    std::fprintf(stderr, "%s: %zu more lines skipped\n", path.c_str(),
                 warnings.size() - kMaxReportedWarnings);
  }
}

}  // namespace

std::string RegistryFilePath() {
  const char* env = std::getenv("MV_REGISTRY");
  std::string path = (env != nullptr && *env != '\0')
                         ? files::DecodeFileName(env)
                         : files::IncludeTrailingDelimiter(sys::MachineFolder()) + "registry.reg";
  return files::ResolveFileName(path);
}

std::optional<std::u16string> ReadLocalMachineString(std::string_view keyPath,
                                                     std::string_view valueName) {
  std::string path = RegistryFilePath();
  std::optional<std::string> bytes = files::ReadWholeFile(path);
  if (!bytes) return std::nullopt;
  int codePage = codepage::SystemCodePage();
  TRegFile file = TRegFile::Parse(*bytes, codePage);
  ReportWarnings(path, file.warnings());
  return file.ReadString(WideOfNarrow(keyPath, codePage), WideOfNarrow(valueName, codePage));
}

}  // namespace mv::registry
