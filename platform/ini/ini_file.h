// Sectioned configuration files (INI), read and written the way the Windows profile API and the
// classic toolkit's INI class do it, so that installations written for the Windows client read
// the same here. The rules, in short:
//  - lines end at CR, LF or CR LF; blanks around a line are dropped; blank lines are ignored;
//  - "[name]" opens a section (text after "]" is ignored; a missing "]" still opens one);
//  - "key = value" splits at the first "="; the name is right-trimmed, the value left-trimmed;
//  - section and key names match without regard to ASCII case; values keep their case;
//  - one pair of matching outer quotes ("..." or '...') is removed from a value;
//  - a line starting with ";" is a comment; lines without "=" are neither found nor listed;
//  - the first of duplicate sections / keys wins;
//  - a UTF-16LE file (with its BOM) is read as UTF-16, anything else as bytes in the system code
//    page (a UTF-8 BOM is skipped);
//  - a missing file is an empty file; a malformed line never throws.
// The file is parsed once, when the object is made; every read answers from memory. A write edits
// the in-memory lines in place (keeping comments, odd lines and their order), then replaces the
// file atomically, with CR LF line ends, in the encoding the file had.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files/paths.h"

namespace mv::ini {

// Raised by the writers when the file cannot be written (for example a missing folder).
class EIniFileException : public files::EFileError {
 public:
  using files::EFileError::EFileError;
};

// Longest value ReadString returns, in characters.
inline constexpr size_t kMaxValueLength = 2047;

// Narrow texts (section, key, value) are bytes in the system code page.
class TIniFile {
 public:
  // Opens and parses `fileName`. A name without a folder is looked up in the machine folder (the
  // place of the per-machine "WIN.INI"). The file name is matched without regard to case inside
  // its folder.
  explicit TIniFile(const std::string& fileName);
  ~TIniFile();
  TIniFile(const TIniFile&) = delete;
  TIniFile& operator=(const TIniFile&) = delete;

  // The path the object reads and writes.
  const std::string& FileName() const;

  // The value of `key` in `section` (outer quotes removed, at most kMaxValueLength characters),
  // or `defaultValue` when the section or key is missing.
  std::string ReadString(std::string_view section, std::string_view key,
                         std::string_view defaultValue) const;
  // Decimal or hexadecimal ("0x" / "$" prefix) 32-bit integer; anything else gives the default.
  int32_t ReadInteger(std::string_view section, std::string_view key, int32_t defaultValue) const;
  // ReadInteger(key, default ? 1 : 0) != 0.
  bool ReadBool(std::string_view section, std::string_view key, bool defaultValue) const;
  // Optional sign, digits with "." as decimal point, optional exponent; else the default.
  double ReadFloat(std::string_view section, std::string_view key, double defaultValue) const;

  // Key names of `section`, in file order (duplicates listed as often as they stand).
  std::vector<std::string> ReadSection(std::string_view section) const;
  // "key=value" for every key of `section`, the value as ReadString gives it.
  std::vector<std::string> ReadSectionValues(std::string_view section) const;
  // Names of every section, in file order.
  std::vector<std::string> ReadSections() const;
  bool SectionExists(std::string_view section) const;
  bool ValueExists(std::string_view section, std::string_view key) const;

  // Writers: change the lines in memory and replace the file at once. Throw EIniFileException
  // when the file cannot be written.
  void WriteString(std::string_view section, std::string_view key, std::string_view value);
  void WriteInteger(std::string_view section, std::string_view key, int32_t value);
  void WriteBool(std::string_view section, std::string_view key, bool value);
  void DeleteKey(std::string_view section, std::string_view key);
  // Removes the section header and its keys; comment lines inside it stay.
  void EraseSection(std::string_view section);

  // How many times files were parsed by TIniFile objects in this process (for benchmarks).
  static uint64_t ParseCount();

 private:
  struct Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace mv::ini
