// A fresh folder under the system's temporary folder for one test, removed with everything in it
// when the object goes. Tests build their installation, machine folder and files inside it.
#pragma once

#include <string>
#include <string_view>

namespace mv::test {

class TempDir {
 public:
  TempDir();
  ~TempDir();
  TempDir(const TempDir&) = delete;
  TempDir& operator=(const TempDir&) = delete;

  // The folder, without a trailing separator.
  const std::string& path() const { return path_; }
  // path() + separator + name, each "/" of `name` written as the platform's separator.
  std::string File(std::string_view name) const;
  // Names given to Write, MakeDir and Read are UTF-8 (on POSIX: the bytes on disk).
  // Writes `bytes` to the file `name` (folders on the way are made) and returns its full path.
  std::string Write(std::string_view name, std::string_view bytes) const;
  // Makes the folder `name` (and its parents) and returns its full path.
  std::string MakeDir(std::string_view name) const;
  // The bytes of the file `name`; empty when it cannot be read.
  std::string Read(std::string_view name) const;

 private:
  std::string path_;
};

// Sets an environment variable for the lifetime of the object and restores the old value after.
class ScopedEnv {
 public:
  ScopedEnv(const char* name, const std::string& value);
  ~ScopedEnv();
  ScopedEnv(const ScopedEnv&) = delete;
  ScopedEnv& operator=(const ScopedEnv&) = delete;

 private:
  std::string name_;
  bool had_ = false;
  std::string old_;
};

}  // namespace mv::test
