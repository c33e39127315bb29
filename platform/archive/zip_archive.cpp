#include "platform/archive/zip_archive.h"

#include <archive.h>
#include <archive_entry.h>

#include <ctime>

#include "platform/files/file_names.h"

namespace mv::archive {
namespace {

[[noreturn]] void Fail(::archive* a, const std::string& what) {
  const char* reason = a != nullptr ? archive_error_string(a) : nullptr;
  throw EArchiveError(what + ": " + (reason != nullptr ? reason : "unknown error"));
}

std::string SystemName(const std::string& path) {
  const std::optional<std::string> encoded = files::EncodeFileName(path);
  if (!encoded) throw EArchiveError(path + ": not a file name");
  return *encoded;
}

}  // namespace

struct TZipWriter::Impl {
  ::archive* a = nullptr;
  archive_entry* entry = nullptr;
  std::string path;
};

TZipWriter::TZipWriter(const std::string& path) : impl_(std::make_unique<Impl>()) {
  impl_->path = path;
  impl_->a = archive_write_new();
  impl_->entry = archive_entry_new();
  if (archive_write_set_format_zip(impl_->a) != ARCHIVE_OK ||
      archive_write_zip_set_compression_deflate(impl_->a) != ARCHIVE_OK ||
      archive_write_open_filename(impl_->a, SystemName(path).c_str()) != ARCHIVE_OK) {
    Fail(impl_->a, path);
  }
}

TZipWriter::~TZipWriter() {
  archive_entry_free(impl_->entry);
  // Freeing closes an unfinished file as it stands, which also releases the compressor of an
  // open entry (the caller removes the file).
  archive_write_free(impl_->a);
}

void TZipWriter::BeginEntry(const std::string& name) {
  archive_entry_clear(impl_->entry);
  archive_entry_set_pathname_utf8(impl_->entry, name.c_str());
  archive_entry_set_filetype(impl_->entry, AE_IFREG);
  archive_entry_set_perm(impl_->entry, 0644);
  archive_entry_set_mtime(impl_->entry, std::time(nullptr), 0);
  // No size: the entry is streamed and its sizes follow its data.
  if (archive_write_header(impl_->a, impl_->entry) != ARCHIVE_OK) Fail(impl_->a, impl_->path);
}

void TZipWriter::Write(std::string_view bytes) {
  while (!bytes.empty()) {
    const la_ssize_t n = archive_write_data(impl_->a, bytes.data(), bytes.size());
    if (n <= 0) Fail(impl_->a, impl_->path);
    bytes.remove_prefix(static_cast<size_t>(n));
  }
}

void TZipWriter::Close() {
  if (archive_write_close(impl_->a) != ARCHIVE_OK) Fail(impl_->a, impl_->path);
}

struct TZipReader::Impl {
  ::archive* a = nullptr;
  std::string path;
};

TZipReader::TZipReader() : impl_(std::make_unique<Impl>()) {
  impl_->a = archive_read_new();
  archive_read_support_format_zip(impl_->a);
}

TZipReader::TZipReader(const std::string& path) : TZipReader() {
  impl_->path = path;
  if (archive_read_open_filename(impl_->a, SystemName(path).c_str(), 64 * 1024) != ARCHIVE_OK) {
    Fail(impl_->a, path);
  }
}

std::unique_ptr<TZipReader> TZipReader::FromMemory(std::string_view bytes) {
  std::unique_ptr<TZipReader> reader(new TZipReader());
  reader->impl_->path = "(memory)";
  if (archive_read_open_memory(reader->impl_->a, bytes.data(), bytes.size()) != ARCHIVE_OK) {
    Fail(reader->impl_->a, reader->impl_->path);
  }
  return reader;
}

TZipReader::~TZipReader() {
  archive_read_free(impl_->a);
}

bool TZipReader::NextEntry(std::string& name) {
  archive_entry* entry = nullptr;
  const int r = archive_read_next_header(impl_->a, &entry);
  if (r == ARCHIVE_EOF) return false;
  if (r != ARCHIVE_OK) Fail(impl_->a, impl_->path);
  const char* utf8 = archive_entry_pathname_utf8(entry);
  const char* raw = archive_entry_pathname(entry);
  name = utf8 != nullptr ? utf8 : (raw != nullptr ? raw : "");
  return true;
}

size_t TZipReader::Read(char* buffer, size_t size) {
  const la_ssize_t n = archive_read_data(impl_->a, buffer, size);
  if (n < 0) Fail(impl_->a, impl_->path);
  return static_cast<size_t>(n);
}

}  // namespace mv::archive
