// Zip files written and read entry by entry, each entry's data streamed in pieces, so that an
// archive of any size passes through a buffer of fixed size. Entries are compressed with deflate
// and checked against their CRC when read. libarchive stays inside.
#pragma once

#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

namespace mv::archive {

// A zip file that cannot be made, written or read (a missing folder, a full disk, damaged or
// truncated data, a CRC mismatch); the message says what and names the file as given.
class EArchiveError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

class TZipWriter {
 public:
  // Makes (or empties) the zip file `path`, a narrow path in the system code page; throws
  // EArchiveError when it cannot be made.
  explicit TZipWriter(const std::string& path);
  // Closes an unfinished file as it stands: the caller removes it.
  ~TZipWriter();
  TZipWriter(const TZipWriter&) = delete;
  TZipWriter& operator=(const TZipWriter&) = delete;

  // Starts the entry `name` (UTF-8, "/" between folders), ending the one before.
  void BeginEntry(const std::string& name);
  // Appends `bytes` to the current entry; throws EArchiveError when they cannot be written.
  void Write(std::string_view bytes);
  // Ends the last entry and writes the zip's directory; throws EArchiveError on failure.
  void Close();

 private:
  struct Impl;
  std::unique_ptr<Impl> impl_;
};

class TZipReader {
 public:
  // Opens the zip file `path` (narrow, system code page); throws EArchiveError when it cannot be
  // opened or is no zip file.
  explicit TZipReader(const std::string& path);
  // Reads the zip held in `bytes`, which must outlive the reader.
  static std::unique_ptr<TZipReader> FromMemory(std::string_view bytes);
  ~TZipReader();
  TZipReader(const TZipReader&) = delete;
  TZipReader& operator=(const TZipReader&) = delete;

  // Moves to the next entry and sets `name` to its name (UTF-8 as stored); false after the last.
  // Throws EArchiveError when the directory or an entry's header is damaged.
  bool NextEntry(std::string& name);
  // Reads up to `size` bytes of the current entry into `buffer`; 0 at its end. Throws
  // EArchiveError for data that cannot be read back (damaged, truncated, wrong CRC).
  size_t Read(char* buffer, size_t size);

 private:
  TZipReader();
  struct Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace mv::archive
