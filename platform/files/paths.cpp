#include "platform/files/paths.h"

namespace mv::files {

std::string ExtractFilePath(std::string_view path) {
  size_t pos = path.rfind(kPathDelim);
  return pos == std::string_view::npos ? std::string() : std::string(path.substr(0, pos + 1));
}

std::string IncludeTrailingDelimiter(std::string path) {
  if (!path.empty() && path.back() != kPathDelim) path += kPathDelim;
  return path;
}

}  // namespace mv::files
