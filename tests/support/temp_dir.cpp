#include "tests/support/temp_dir.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace mv::test {

namespace fs = std::filesystem;

TempDir::TempDir() {
  std::string pattern = (fs::temp_directory_path() / "mvtest-XXXXXX").string();
  if (::mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("mkdtemp failed");
  path_ = pattern;
}

TempDir::~TempDir() {
  std::error_code ec;
  fs::permissions(path_, fs::perms::owner_all, fs::perm_options::add, ec);
  fs::remove_all(path_, ec);
}

std::string TempDir::File(std::string_view name) const { return path_ + "/" + std::string(name); }

std::string TempDir::Write(std::string_view name, std::string_view bytes) const {
  std::string full = File(name);
  fs::create_directories(fs::path(full).parent_path());
  std::ofstream out(full, std::ios::binary | std::ios::trunc);
  out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  if (!out) throw std::runtime_error("cannot write " + full);
  return full;
}

std::string TempDir::MakeDir(std::string_view name) const {
  std::string full = File(name);
  fs::create_directories(full);
  return full;
}

std::string TempDir::Read(std::string_view name) const {
  std::ifstream in(File(name), std::ios::binary);
  std::ostringstream out;
  out << in.rdbuf();
  return out.str();
}

ScopedEnv::ScopedEnv(const char* name, const std::string& value) : name_(name) {
  if (const char* old = std::getenv(name)) {
    had_ = true;
    old_ = old;
  }
  ::setenv(name, value.c_str(), 1);
}

ScopedEnv::~ScopedEnv() {
  if (had_) {
    ::setenv(name_.c_str(), old_.c_str(), 1);
  } else {
    ::unsetenv(name_.c_str());
  }
}

}  // namespace mv::test
