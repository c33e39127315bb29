#include "platform/ini/ini_file.h"

#include <atomic>
#include <optional>
#include <string>
#include <type_traits>
#include <utility>
#include <variant>

#include "platform/codepage/codepage.h"
#include "platform/ini/ini_document_p.h"
#include "platform/ini/ini_encoding_p.h"
#include "platform/ini/ini_lead_bytes_p.h"
#include "platform/ini/ini_numbers_p.h"
#include "platform/ini/ini_write_lock_p.h"
#include "platform/system/machine.h"

namespace mv::ini {
namespace {

using detail::TIniDocument;
using detail::TIniEncoding;

std::atomic<uint64_t> parseCount{0};

// A name without a folder lives in the machine folder; the last part matches without regard to
// case.
std::string FullFileName(const std::string& fileName) {
  if (fileName.find(files::kPathDelim) != std::string::npos) {
    return files::ResolveFileName(fileName);
  }
  return files::ResolveFileName(files::IncludeTrailingDelimiter(sys::MachineFolder()) + fileName);
}

// Narrow text of the API in the form of the file's text: the bytes themselves for a file in the
// system code page, UTF-16 for a UTF-16 file.
template <typename CharT>
auto Native(std::string_view text, int codePage) {
  if constexpr (std::is_same_v<CharT, char>) {
    return text;
  } else {
    return codepage::ToWide(text, codePage);
  }
}

template <typename CharT>
std::string Narrow(std::basic_string_view<CharT> text, int codePage) {
  if constexpr (std::is_same_v<CharT, char>) {
    return std::string(text);
  } else {
    return codepage::FromWide(text, codePage);
  }
}

using TDocument = std::variant<TIniDocument<char>, TIniDocument<char16_t>>;

// A value as ReadString gives it: cut to kMaxValueLength units, never inside a character.
template <typename CharT>
std::basic_string_view<CharT> AsRead(const TIniDocument<CharT>& doc,
                                     std::basic_string_view<CharT> value) {
  return detail::CutAt(value, kMaxValueLength, doc.Lead());
}

// The document of a file's bytes (the byte-order mark tells the encoding).
TDocument Parse(std::string bytes, TIniEncoding encoding, int codePage) {
  ++parseCount;
  bytes.erase(0, detail::ByteOrderMark(encoding).size());
  if (encoding == TIniEncoding::kUtf16Le) {
    return TIniDocument<char16_t>(detail::Utf16FromLittleEndian(bytes), nullptr);
  }
  return TIniDocument<char>(std::move(bytes), detail::LeadBytesOf(codePage));
}

}  // namespace

struct TIniFile::Impl {
  std::string fileName;
  // The system code page when the file was opened: the narrow API's texts are in it.
  int codePage = codepage::kWestern;
  TIniEncoding encoding = TIniEncoding::kAnsi;
  // The file is there but could not be read: writing our (empty) lines would wipe it.
  bool unreadable = false;
  // The file's bytes as the document was made from them (read or written); empty for a missing
  // file.
  std::string bytes;
  TDocument document{TIniDocument<char>(std::string(), nullptr)};
  // Made by ChangeIniFile, which holds the write lock for the object's whole life.
  bool underLock = false;

  Impl(std::string name, int page) : fileName(std::move(name)), codePage(page) { Load(); }

  // Reads the file and parses it, unless it still holds the bytes the document was made from.
  void Load() {
    std::optional<std::string> read = files::ReadWholeFile(fileName);
    unreadable = !read && files::FileExists(fileName);
    if (unreadable) return;  // the writers refuse; the reads keep what they had
    std::string now = std::move(read).value_or(std::string());
    if (now == bytes && parsed) return;
    encoding = detail::DetectEncoding(now);
    document = Parse(now, encoding, codePage);
    bytes = std::move(now);
    parsed = true;
  }

  // The file's bytes for `text`, in the encoding the file had.
  std::string Bytes(std::string_view text) const {
    return std::string(detail::ByteOrderMark(encoding)) + std::string(text);
  }
  std::string Bytes(std::u16string_view text) const {
    return std::string(detail::ByteOrderMark(encoding)) + detail::LittleEndianFromUtf16(text);
  }

  // Applies `edit` (document -> the text the file is to hold, or nothing when there is nothing to
  // change) to the file as it is now, under the write lock, and replaces the file with its text.
  template <typename Edit>
  void Write(Edit edit) {
    std::optional<detail::TIniWriteLock> lock;
    if (!underLock) lock.emplace(fileName);
    Load();
    std::visit([&](auto& doc) { Store(doc, edit(doc)); }, document);
  }

  // Replaces the file with `text`; once it holds it, the object reads the new text.
  template <typename CharT>
  void Store(TIniDocument<CharT>& doc, std::optional<std::basic_string<CharT>> text) {
    if (!text) return;
    if (unreadable) throw EIniFileException("Unable to read " + fileName + ", not written");
    std::string written = Bytes(*text);
    try {
      files::ReplaceFileAtomically(fileName, written);
    } catch (const files::EFileError& error) {
      throw EIniFileException(error.what());
    }
    doc = TIniDocument<CharT>(std::move(*text), doc.Lead());
    bytes = std::move(written);
  }

 private:
  bool parsed = false;
};

TIniFile::TIniFile(const std::string& fileName) {
  int codePage = codepage::SystemCodePage();
  // A code page no converter serves would make every UTF-16 look-up fail; read as Western then.
  if (!codepage::IsKnownCodePage(codePage)) codePage = codepage::kWestern;
  impl_ = std::make_unique<Impl>(FullFileName(fileName), codePage);
}

TIniFile::~TIniFile() = default;

const std::string& TIniFile::FileName() const {
  return impl_->fileName;
}

std::string TIniFile::ReadString(std::string_view section, std::string_view key,
                                 std::string_view defaultValue) const {
  return std::visit(
      [&](const auto& doc) {
        using CharT = typename std::decay_t<decltype(doc)>::Char;
        int page = impl_->codePage;
        auto value = doc.Value(Native<CharT>(section, page), Native<CharT>(key, page));
        return value ? Narrow<CharT>(AsRead(doc, *value), page)
                     : std::string(detail::TrimRightSpaces(defaultValue));
      },
      impl_->document);
}

int32_t TIniFile::ReadInteger(std::string_view section, std::string_view key,
                              int32_t defaultValue) const {
  return detail::ParseInteger(ReadString(section, key, {})).value_or(defaultValue);
}

bool TIniFile::ReadBool(std::string_view section, std::string_view key, bool defaultValue) const {
  return ReadInteger(section, key, defaultValue ? 1 : 0) != 0;
}

double TIniFile::ReadFloat(std::string_view section, std::string_view key,
                           double defaultValue) const {
  return detail::ParseFloat(ReadString(section, key, {})).value_or(defaultValue);
}

std::vector<std::string> TIniFile::ReadSection(std::string_view section) const {
  return std::visit(
      [&](const auto& doc) {
        using CharT = typename std::decay_t<decltype(doc)>::Char;
        std::vector<std::string> names;
        for (auto name : doc.KeyNames(Native<CharT>(section, impl_->codePage))) {
          names.push_back(Narrow<CharT>(name, impl_->codePage));
        }
        return names;
      },
      impl_->document);
}

std::vector<std::string> TIniFile::ReadSectionValues(std::string_view section) const {
  return std::visit(
      [&](const auto& doc) {
        using CharT = typename std::decay_t<decltype(doc)>::Char;
        auto native = Native<CharT>(section, impl_->codePage);
        std::vector<std::string> lines;
        // Each key with the value a look-up of its name gives: a duplicate shows the first value.
        for (auto name : doc.KeyNames(native)) {
          std::basic_string<CharT> line(name);
          line += CharT('=');
          line += AsRead(doc, doc.Value(native, name).value_or(std::basic_string_view<CharT>()));
          lines.push_back(Narrow<CharT>(line, impl_->codePage));
        }
        return lines;
      },
      impl_->document);
}

std::vector<std::string> TIniFile::ReadSections() const {
  return std::visit(
      [&](const auto& doc) {
        using CharT = typename std::decay_t<decltype(doc)>::Char;
        std::vector<std::string> names;
        for (auto name : doc.SectionNames()) names.push_back(Narrow<CharT>(name, impl_->codePage));
        return names;
      },
      impl_->document);
}

bool TIniFile::SectionExists(std::string_view section) const {
  return std::visit(
      [&](const auto& doc) {
        using CharT = typename std::decay_t<decltype(doc)>::Char;
        return !doc.KeyNames(Native<CharT>(section, impl_->codePage)).empty();
      },
      impl_->document);
}

bool TIniFile::ValueExists(std::string_view section, std::string_view key) const {
  return std::visit(
      [&](const auto& doc) {
        using CharT = typename std::decay_t<decltype(doc)>::Char;
        int page = impl_->codePage;
        return doc.Value(Native<CharT>(section, page), Native<CharT>(key, page)).has_value();
      },
      impl_->document);
}

void TIniFile::WriteString(std::string_view section, std::string_view key, std::string_view value) {
  impl_->Write([&](const auto& doc) {
    using CharT = typename std::decay_t<decltype(doc)>::Char;
    int page = impl_->codePage;
    return std::optional(doc.WithValue(Native<CharT>(section, page), Native<CharT>(key, page),
                                       Native<CharT>(value, page)));
  });
}

void TIniFile::WriteInteger(std::string_view section, std::string_view key, int32_t value) {
  WriteString(section, key, std::to_string(value));
}

void TIniFile::WriteBool(std::string_view section, std::string_view key, bool value) {
  WriteString(section, key, value ? "1" : "0");
}

void TIniFile::DeleteKey(std::string_view section, std::string_view key) {
  impl_->Write([&](const auto& doc) {
    using CharT = typename std::decay_t<decltype(doc)>::Char;
    int page = impl_->codePage;
    return doc.WithoutKey(Native<CharT>(section, page), Native<CharT>(key, page));
  });
}

void TIniFile::EraseSection(std::string_view section) {
  impl_->Write([&](const auto& doc) {
    using CharT = typename std::decay_t<decltype(doc)>::Char;
    return doc.WithoutSection(Native<CharT>(section, impl_->codePage));
  });
}

uint64_t TIniFile::ParseCount() {
  return parseCount.load();
}

void ChangeIniFile(const std::string& fileName, const std::function<void(TIniFile&)>& change) {
  const detail::TIniWriteLock lock(FullFileName(fileName));
  TIniFile ini(fileName);
  ini.impl_->underLock = true;
  change(ini);
}

}  // namespace mv::ini
