// Sectioned configuration files (INI), read and written the way the Windows profile API and the
// classic toolkit's INI class do it, so that installations written for the Windows client read
// the same here. The rules, in short:
//  - lines end at CR, LF or CR LF; blanks around a line are dropped; blank lines are ignored;
//  - "[name]" opens a section (text after "]" is ignored; a missing "]" still opens one);
//  - "key = value" splits at the first "="; the name is right-trimmed, the value left-trimmed;
//  - section and key names match without regard to ASCII case (the second byte of a Big5 or GBK
//    character is never taken for a letter or a "]"); values keep their case;
//  - one pair of matching outer quotes ("..." or '...') is removed from a value;
//  - a line starting with ";" is a comment; lines without "=" are neither found nor listed;
//  - the first of duplicate sections / keys wins;
//  - a UTF-16LE file (with its BOM) is read as UTF-16, anything else as bytes in the system code
//    page (a UTF-8 BOM is skipped);
//  - a missing file is an empty file; a malformed line never throws.
// The file is parsed once, when the object is made; every read answers from memory through a
// case-insensitive hash index. A write takes the file's write lock (the lock file name + ".lck"
// beside it, shared by every process that writes the file), reads the file again when another
// writer changed it since the object last read or wrote it, applies only this write to that
// text, keeping every other line, comment and their order, replaces the file atomically, with
// CR LF line ends, in the encoding the file had (UTF-16LE with its mark; otherwise the bytes as
// they were, a UTF-8 mark kept), and gives up the lock. So concurrent writers of different keys
// keep each other's changes, and the object reads what it wrote (with the other writers' lines).
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
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

// Longest wait of a writer for the write lock of a file that another writer holds; a writer
// that waited this long throws EIniFileException.
inline constexpr std::chrono::seconds kWriteLockTimeout{10};

// Longest value ReadString returns, in characters.
inline constexpr size_t kMaxValueLength = 2047;

// Narrow texts (section, key, value) are bytes in the system code page.
class TIniFile {
 public:
  // Opens and parses `fileName`. A name without a folder is looked up in the machine folder (the
  // place of the per-machine "WIN.INI"). The file name is matched without regard to case inside
  // its folder. A missing file reads as empty. A file that is there but cannot be read also reads
  // as empty, and the writers refuse to replace it. Never throws for the file's content.
  explicit TIniFile(const std::string& fileName);
  ~TIniFile();
  TIniFile(const TIniFile&) = delete;
  TIniFile& operator=(const TIniFile&) = delete;

  // The path the object reads and writes (the folder's spelling of the name when one matched).
  const std::string& FileName() const;

  // The value of `key` in `section` (outer quotes removed), or `defaultValue` without its trailing
  // spaces when the section or key is missing. Only the first section of a name is searched, and
  // the first key of a name in it is found. Section and key names lose surrounding spaces (not
  // tabs). The value is cut to kMaxValueLength characters: bytes of a file in the system code page
  // (never ending inside a double-byte character), UTF-16 units of a UTF-16 file (then converted).
  std::string ReadString(std::string_view section, std::string_view key,
                         std::string_view defaultValue) const;
  // Optional sign, then decimal that fits a signed 32-bit integer, or hexadecimal behind "0x",
  // "0X" or "$" of at most 32 bits ("$FFFFFFFF" is -1). Blanks inside, other characters, an
  // empty value and overflow give the default.
  int32_t ReadInteger(std::string_view section, std::string_view key, int32_t defaultValue) const;
  // ReadInteger(key, default ? 1 : 0) != 0.
  bool ReadBool(std::string_view section, std::string_view key, bool defaultValue) const;
  // Optional sign, digits with "." as decimal point whatever the C locale, optional exponent;
  // anything else (and a value beyond the range of double) gives the default.
  double ReadFloat(std::string_view section, std::string_view key, double defaultValue) const;

  // Key names of `section` as the file spells them, in file order (duplicates listed as often as
  // they stand; lines without "=" and comments are not keys). Empty when the section is missing.
  std::vector<std::string> ReadSection(std::string_view section) const;
  // "key=value" for every key of `section`, the value as ReadString gives it (so a duplicate key
  // shows the first value twice).
  std::vector<std::string> ReadSectionValues(std::string_view section) const;
  // Names of every section header, in file order (duplicates and the empty name included).
  std::vector<std::string> ReadSections() const;
  // True when `section` has at least one key: as in the client's INI class, a header alone does
  // not make a section exist.
  bool SectionExists(std::string_view section) const;
  // True when ReadString finds `key` in `section`.
  bool ValueExists(std::string_view section, std::string_view key) const;

  // Writers: under the file's write lock, apply the change to the file as it is now and replace
  // it at once; a missing file is made. Throw EIniFileException, naming the file, when it cannot
  // be written (a missing folder among the causes, or the lock not given up by another writer
  // within kWriteLockTimeout); the file then stays as it was.
  // An existing key gets "name=value" in its own line, keeping the file's spelling of the name; a
  // new key goes after the last key of the first section of that name, a new section ("[name]"
  // and the key) at the end. Names lose surrounding spaces; the value is written as given (no
  // trimming, no quotes; a CR or LF in it ends the line there).
  void WriteString(std::string_view section, std::string_view key, std::string_view value);
  void WriteInteger(std::string_view section, std::string_view key, int32_t value);
  // Writes "1" or "0".
  void WriteBool(std::string_view section, std::string_view key, bool value);
  // Removes the line of the key ReadString finds (a later duplicate then shows). Writes nothing
  // when there is no such key.
  void DeleteKey(std::string_view section, std::string_view key);
  // Removes the header, the keys and the other non-comment lines of every section of that name;
  // comment and blank lines inside stay. Writes nothing when there is no such section.
  void EraseSection(std::string_view section);

  // How many times files were parsed by TIniFile objects in this process: once per object made,
  // and once more for each write that found the file changed by another writer (for
  // benchmarks).
  static uint64_t ParseCount();

 private:
  friend void ChangeIniFile(const std::string& fileName,
                            const std::function<void(TIniFile&)>& change);
  struct Impl;
  std::unique_ptr<Impl> impl_;
};

// Reads and changes the file `fileName` (named as for TIniFile) as one step that no other writer,
// in this process or another, comes between: takes the file's write lock (waiting up to
// kWriteLockTimeout), opens the file, runs `change` on it and gives up the lock, also when
// `change` throws. The writes of `change` do not take the lock again; another TIniFile of the same
// file must not write inside `change` (it would wait for the lock and then throw). Throws
// EIniFileException when the lock cannot be taken, and whatever `change` throws.
void ChangeIniFile(const std::string& fileName, const std::function<void(TIniFile&)>& change);

}  // namespace mv::ini
