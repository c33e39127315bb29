#include <dirent.h>
#include <fcntl.h>
#include <strings.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <fstream>
#include <sstream>

#include "platform/files/paths.h"

namespace mv::files {
namespace {

std::string ErrnoText(const std::string& what, const std::string& path) {
  return what + " " + path + ": " + std::strerror(errno);
}

// Writes all of `bytes` to `fd`, going on after short writes.
bool WriteAll(int fd, std::string_view bytes) {
  while (!bytes.empty()) {
    ssize_t n = ::write(fd, bytes.data(), bytes.size());
    if (n < 0) {
      if (errno == EINTR) continue;
      return false;
    }
    bytes.remove_prefix(static_cast<size_t>(n));
  }
  return true;
}

}  // namespace

bool DirectoryExists(const std::string& path) {
  struct stat st {};
  return !path.empty() && ::stat(path.c_str(), &st) == 0 && S_ISDIR(st.st_mode);
}

bool FileExists(const std::string& path) {
  struct stat st {};
  return !path.empty() && ::stat(path.c_str(), &st) == 0 && S_ISREG(st.st_mode);
}

std::string ExtractFilePath(std::string_view path) {
  size_t pos = path.rfind(kPathDelim);
  return pos == std::string_view::npos ? std::string() : std::string(path.substr(0, pos + 1));
}

std::string IncludeTrailingDelimiter(std::string path) {
  if (!path.empty() && path.back() != kPathDelim) path += kPathDelim;
  return path;
}

std::string ResolveFileName(const std::string& path) {
  struct stat st {};
  if (path.empty() || ::stat(path.c_str(), &st) == 0) return path;
  std::string folder = ExtractFilePath(path);
  std::string name = path.substr(folder.size());
  DIR* dir = ::opendir(folder.empty() ? "." : folder.c_str());
  if (dir == nullptr) return path;
  std::string found = path;
  while (dirent* entry = ::readdir(dir)) {
    if (::strcasecmp(entry->d_name, name.c_str()) == 0) {
      found = folder + entry->d_name;
      break;
    }
  }
  ::closedir(dir);
  return found;
}

std::optional<std::string> ReadWholeFile(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) return std::nullopt;
  std::ostringstream out;
  out << in.rdbuf();
  return std::move(out).str();
}

void ReplaceFileAtomically(const std::string& path, std::string_view bytes) {
  std::string temp = path + ".XXXXXX";
  int fd = ::mkstemp(temp.data());
  if (fd < 0) throw EFileError(ErrnoText("Unable to write to", path));
  // Keep the permissions of the file being replaced; a new file gets the usual 0644 less umask.
  struct stat st {};
  mode_t mode = 0644;
  if (::stat(path.c_str(), &st) == 0) {
    mode = st.st_mode & 07777;
  } else {
    mode_t mask = ::umask(0);
    ::umask(mask);
    mode &= ~mask;
  }
  bool ok = ::fchmod(fd, mode) == 0 && WriteAll(fd, bytes) && ::fsync(fd) == 0;
  ok = (::close(fd) == 0) && ok;
  if (!ok || ::rename(temp.c_str(), path.c_str()) != 0) {
    std::string message = ErrnoText("Unable to write to", path);
    ::unlink(temp.c_str());
    throw EFileError(message);
  }
}

}  // namespace mv::files
