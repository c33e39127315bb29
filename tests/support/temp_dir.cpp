#include "tests/support/temp_dir.h"

#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <stdexcept>

#include "platform/files/paths.h"

namespace mv::test {

namespace fs = std::filesystem;

TempDir::TempDir() {
  // A new folder of a random name: making it is the test that no one else has it.
  std::random_device random;
  const fs::path base = fs::temp_directory_path();
  for (int attempt = 0; attempt < 100; ++attempt) {
    const fs::path candidate = base / ("mvtest-" + std::to_string(random()));
    std::error_code ec;
    if (fs::create_directory(candidate, ec)) {
      path_ = candidate.string();
      return;
    }
  }
  throw std::runtime_error("cannot make a temporary folder in " + base.string());
}

TempDir::~TempDir() {
  std::error_code ec;
  fs::permissions(path_, fs::perms::owner_all, fs::perm_options::add, ec);
  fs::remove_all(path_, ec);
}

std::string TempDir::File(std::string_view name) const {
  std::string path = path_ + files::kPathDelim;
  for (const char c : name) path += c == '/' ? files::kPathDelim : c;
  return path;
}

namespace {

// `name` (UTF-8) inside `folder`, as the system names it.
fs::path OnDisk(const std::string& folder, std::string_view name) {
  return fs::path(folder) / fs::path(std::u8string(name.begin(), name.end()));
}

}  // namespace

std::string TempDir::Write(std::string_view name, std::string_view bytes) const {
  const fs::path full = OnDisk(path_, name);
  fs::create_directories(full.parent_path());
  std::ofstream out(full, std::ios::binary | std::ios::trunc);
  out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  if (!out) throw std::runtime_error("cannot write " + File(name));
  return File(name);
}

std::string TempDir::MakeDir(std::string_view name) const {
  fs::create_directories(OnDisk(path_, name));
  return File(name);
}

std::string TempDir::Read(std::string_view name) const {
  std::ifstream in(OnDisk(path_, name), std::ios::binary);
  std::ostringstream out;
  out << in.rdbuf();
  return out.str();
}

}  // namespace mv::test
