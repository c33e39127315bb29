// File-system facts the library needs: the path separator, existence checks, file names found
// without regard to case, and whole-file reads and atomic replacement. Every path here is a
// narrow path in the system code page; it reaches the system through EncodeFileName
// (file_names.h) on POSIX and as UTF-16 through the wide calls on Windows, so a path that holds a
// zero byte names no file.
#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace mv::files {

// The platform's path separator; it stands wherever the client's rules write a backslash.
#ifdef _WIN32
inline constexpr char kPathDelim = '\\';
#else
inline constexpr char kPathDelim = '/';
#endif

// Raised when a file cannot be read or written; the message names the file and the cause.
class EFileError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// True when `path` names an existing folder.
bool DirectoryExists(const std::string& path);

// True when `path` names an existing regular file.
bool FileExists(const std::string& path);

// Makes the folder `path` (its parent must exist); false when it cannot be made or exists.
bool MakeDirectory(const std::string& path);

// Removes the file `path`; false when it cannot be removed or does not exist.
bool RemoveFile(const std::string& path);

// Renames the file `from` to `to`, replacing a file `to` at once (both in one file system, where
// the replacement is atomic); false when it cannot be renamed.
bool RenameFile(const std::string& from, const std::string& to);

// `path` with its last component matched without regard to ASCII case inside its folder, so that
// "SEDIFSYS.INI" finds "sedifsys.ini". An exact match wins; when nothing matches, `path` itself.
// Windows: `path` itself, since the file system matches names without regard to case.
std::string ResolveFileName(const std::string& path);

// The folder part of `path` up to and including its last separator; empty when there is none.
std::string ExtractFilePath(std::string_view path);

// `path` with one separator appended when it does not already end with one (empty stays empty).
std::string IncludeTrailingDelimiter(std::string path);

// The whole file as bytes, or nothing when it cannot be opened.
std::optional<std::string> ReadWholeFile(const std::string& path);

// Replaces the file with `bytes`: writes a temporary file beside it and renames it over the old
// one, so a crash leaves either the old or the new file. Throws EFileError on failure (a missing
// folder among them).
void ReplaceFileAtomically(const std::string& path, std::string_view bytes);

}  // namespace mv::files
