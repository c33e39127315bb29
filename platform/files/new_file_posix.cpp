#include <dirent.h>
#include <fcntl.h>
#include <strings.h>
#include <unistd.h>

#include <cerrno>

#include "platform/files/file_names.h"
#include "platform/files/new_file.h"

namespace mv::files {

bool CreateNewFile(const std::string& path) {
  const std::optional<std::string> name = EncodeFileName(path);
  if (!name) return false;
  int fd;
  do {
    fd = ::open(name->c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
  } while (fd < 0 && errno == EINTR);
  if (fd < 0) return false;
  ::close(fd);
  return true;
}

bool BaseNameTaken(const std::string& folder, const std::string& baseName) {
  const std::optional<std::string> systemFolder = EncodeFileName(folder);
  if (!systemFolder) return false;
  DIR* dir = ::opendir(folder.empty() ? "." : systemFolder->c_str());
  if (dir == nullptr) return false;
  bool taken = false;
  const size_t length = baseName.size();
  while (!taken) {
    const dirent* entry = ::readdir(dir);
    if (entry == nullptr) break;
    const char* name = entry->d_name;
    taken = ::strncasecmp(name, baseName.c_str(), length) == 0 &&
            (name[length] == '\0' || name[length] == '.');
  }
  ::closedir(dir);
  return taken;
}

}  // namespace mv::files
