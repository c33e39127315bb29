#include <dirent.h>

#include <memory>
#include <vector>

#include "platform/files/file_names.h"
#include "platform/files/paths.h"
#include "platform/shell/program_group.h"

namespace mv::shell {
namespace {

constexpr const char* kProgramGroupFolder = "Programs";

bool IsDesktopEntryName(std::string_view name) {
  constexpr std::string_view kExtension = ".desktop";
  return name.size() > kExtension.size() && name.ends_with(kExtension);
}

// The paths of the desktop entries in `folder`; none when it cannot be read.
std::vector<std::string> DesktopEntries(const std::string& folder) {
  std::vector<std::string> paths;
  const std::optional<std::string> systemFolder = files::EncodeFileName(folder);
  if (!systemFolder) return paths;
  std::unique_ptr<DIR, int (*)(DIR*)> dir(::opendir(systemFolder->c_str()), ::closedir);
  if (!dir) return paths;
  while (const dirent* item = ::readdir(dir.get())) {
    std::string path = folder + files::kPathDelim + files::DecodeFileName(item->d_name);
    if (IsDesktopEntryName(item->d_name) && files::FileExists(path)) paths.push_back(path);
  }
  return paths;
}

bool Rewrite(const std::string& path, TShortcutLanguage language) {
  std::optional<std::string> entry = files::ReadWholeFile(path);
  if (!entry) return false;
  std::string changed = DesktopEntryInLanguage(*entry, language);
  if (changed == *entry) return false;
  try {
    files::ReplaceFileAtomically(path, changed);
  } catch (const files::EFileError&) {
    return false;
  }
  return true;
}

}  // namespace

int SetProgramGroupLanguage(const std::string& basePath, TShortcutLanguage language) {
  int changed = 0;
  if (basePath.empty()) return changed;
  for (const std::string& path : DesktopEntries(basePath + kProgramGroupFolder)) {
    if (Rewrite(path, language)) ++changed;
  }
  return changed;
}

}  // namespace mv::shell
