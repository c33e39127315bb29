// libFuzzer target of the INI reader and writer. Whatever the bytes, opening the file, listing
// and reading everything, writing, deleting and erasing must not crash, and the written file read
// again must show what the object that wrote it shows.
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

#include "platform/ini/ini_file.h"

namespace {

// The file every input is written to, in a folder of its own removed at exit. Memory-backed
// /dev/shm when there is one: every write syncs the file, which on a disk slows fuzzing down a lot.
const std::string& FuzzFile() {
  static const std::string path = [] {
    static std::string folder =
        std::string(::access("/dev/shm", W_OK) == 0 ? "/dev/shm" : "/tmp") + "/mv-fuzz-ini-XXXXXX";
    if (::mkdtemp(folder.data()) == nullptr) std::abort();
    std::atexit([] {
      std::remove((folder + "/fuzz.ini").c_str());
      std::remove(folder.c_str());
    });
    return folder + "/fuzz.ini";
  }();
  return path;
}

// Everything a reader sees: the sections in order, each with its "key=value" lines.
std::vector<std::string> Contents(const mv::ini::TIniFile& ini) {
  std::vector<std::string> contents;
  for (const std::string& section : ini.ReadSections()) {
    contents.push_back("[" + section + "]");
    for (std::string& line : ini.ReadSectionValues(section)) contents.push_back(std::move(line));
  }
  return contents;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  // The length picks the system code page: Big5 and GBK (double-byte), UTF-8 and Western.
  static const char* const kCodePages[] = {"950", "936", "65001", "1252"};
  ::setenv("MV_CODEPAGE", kCodePages[size % 4], 1);
  const std::string& path = FuzzFile();
  {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
  }

  mv::ini::TIniFile ini(path);
  std::vector<std::string> sections = ini.ReadSections();
  for (const std::string& section : sections) {
    if (ini.SectionExists(section) == ini.ReadSection(section).empty()) std::abort();
    for (const std::string& key : ini.ReadSection(section)) {
      // A UTF-16 key name the code page cannot hold comes back with "?" and is not found again;
      // only the call itself is checked here.
      ini.ValueExists(section, key);
      if (ini.ReadString(section, key, "").size() > 4 * mv::ini::kMaxValueLength) std::abort();
      ini.ReadInteger(section, key, 0);
      ini.ReadBool(section, key, false);
      ini.ReadFloat(section, key, 0.0);
    }
  }

  std::string first = sections.empty() ? std::string("Fuzz") : sections.front();
  ini.WriteString(first, "FuzzKey", "value");
  if (ini.ReadString(first, "FuzzKey", "") != "value") std::abort();
  std::vector<std::string> keys = ini.ReadSection(first);
  if (!keys.empty()) ini.DeleteKey(first, keys.front());
  if (sections.size() > 1) ini.EraseSection(sections[1]);

  mv::ini::TIniFile again(path);
  if (Contents(again) != Contents(ini)) std::abort();
  return 0;
}
