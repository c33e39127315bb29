#include <dirent.h>
#include <fcntl.h>
#include <strings.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <fstream>
#include <memory>
#include <sstream>

#include "platform/files/file_names.h"
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

// The file type bits of the narrow path `path`; 0 when it names nothing the system can see.
mode_t FileType(const std::string& path) {
  const std::optional<std::string> name = EncodeFileName(path);
  struct stat st {};
  if (path.empty() || !name || ::stat(name->c_str(), &st) != 0) return 0;
  return st.st_mode & S_IFMT;
}

// The entry of the folder `folder` (system bytes) whose name matches `name` (system bytes)
// without regard to ASCII case, in system bytes; nothing when there is none.
std::optional<std::string> FindEntryIgnoringCase(const std::string& folder,
                                                 const std::string& name) {
  std::unique_ptr<DIR, int (*)(DIR*)> dir(::opendir(folder.empty() ? "." : folder.c_str()),
                                          ::closedir);
  if (!dir) return std::nullopt;
  while (const dirent* entry = ::readdir(dir.get())) {
    if (::strcasecmp(entry->d_name, name.c_str()) == 0) return std::string(entry->d_name);
  }
  return std::nullopt;
}

}  // namespace

bool DirectoryExists(const std::string& path) {
  return FileType(path) == S_IFDIR;
}

bool FileExists(const std::string& path) {
  return FileType(path) == S_IFREG;
}

bool MakeDirectory(const std::string& path) {
  const std::optional<std::string> name = EncodeFileName(path);
  return name && ::mkdir(name->c_str(), 0777) == 0;
}

bool RemoveFile(const std::string& path) {
  const std::optional<std::string> name = EncodeFileName(path);
  return name && ::unlink(name->c_str()) == 0;
}

bool RenameFile(const std::string& from, const std::string& to) {
  const std::optional<std::string> source = EncodeFileName(from);
  const std::optional<std::string> target = EncodeFileName(to);
  return source && target && ::rename(source->c_str(), target->c_str()) == 0;
}

std::string ResolveFileName(const std::string& path) {
  if (path.empty() || FileType(path) != 0) return path;
  const std::string folder = ExtractFilePath(path);
  // Compared as the system's bytes, so that a trail byte of a Big5 or GBK character that happens
  // to be an ASCII letter is never folded.
  const std::optional<std::string> systemFolder = EncodeFileName(folder);
  const std::optional<std::string> systemName = EncodeFileName(path.substr(folder.size()));
  if (!systemFolder || !systemName) return path;
  const std::optional<std::string> entry = FindEntryIgnoringCase(*systemFolder, *systemName);
  return entry ? folder + DecodeFileName(*entry) : path;
}

std::optional<std::string> ReadWholeFile(const std::string& path) {
  const std::optional<std::string> name = EncodeFileName(path);
  if (!name) return std::nullopt;
  std::ifstream in(*name, std::ios::binary);
  if (!in) return std::nullopt;
  std::ostringstream out;
  out << in.rdbuf();
  return std::move(out).str();
}

void ReplaceFileAtomically(const std::string& path, std::string_view bytes) {
  const std::optional<std::string> name = EncodeFileName(path);
  if (!name) throw EFileError("Unable to write to " + path + ": the name holds a zero byte");
  std::string temp = *name + ".XXXXXX";
  int fd = ::mkstemp(temp.data());
  if (fd < 0) throw EFileError(ErrnoText("Unable to write to", path));
  // Keep the permissions of the file being replaced; a new file gets the usual 0644 less umask.
  struct stat st {};
  mode_t mode = 0644;
  if (::stat(name->c_str(), &st) == 0) {
    mode = st.st_mode & 07777;
  } else {
    mode_t mask = ::umask(0);
    ::umask(mask);
    mode &= ~mask;
  }
  bool ok = ::fchmod(fd, mode) == 0 && WriteAll(fd, bytes) && ::fsync(fd) == 0;
  ok = (::close(fd) == 0) && ok;
  if (!ok || ::rename(temp.c_str(), name->c_str()) != 0) {
    std::string message = ErrnoText("Unable to write to", path);
    ::unlink(temp.c_str());
    throw EFileError(message);
  }
}

}  // namespace mv::files
