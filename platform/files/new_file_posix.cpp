#include <dirent.h>
#include <fcntl.h>
#include <strings.h>
#include <unistd.h>

#include <cerrno>

#include "platform/files/new_file.h"

namespace mv::files {

bool CreateNewFile(const std::string& path) {
  int fd;
  do {
    fd = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
  } while (fd < 0 && errno == EINTR);
  if (fd < 0) return false;
  ::close(fd);
  return true;
}

bool BaseNameTaken(const std::string& folder, const std::string& baseName) {
  DIR* dir = ::opendir(folder.empty() ? "." : folder.c_str());
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
