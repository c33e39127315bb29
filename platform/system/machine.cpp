#include <string>

#include "platform/files/paths.h"
#include "platform/system/machine.h"

namespace mv::sys {
namespace {

std::string& TitleOverride() {
  static std::string title;
  return title;
}

}  // namespace

std::string ApplicationTitle() {
  if (!TitleOverride().empty()) return TitleOverride();
  std::string path = ExecutablePath();
  std::string name = path.substr(path.rfind(files::kPathDelim) + 1);
  size_t dot = name.rfind('.');
  return dot == std::string::npos || dot == 0 ? name : name.substr(0, dot);
}

void SetApplicationTitle(std::string title) {
  TitleOverride() = std::move(title);
}

}  // namespace mv::sys
