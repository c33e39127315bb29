#include "platform/registry/reg_file_parser.h"

#include <unicode/uchar.h>
#include <unicode/ustring.h>

#include <algorithm>
#include <cstdint>

#include "platform/codepage/codepage.h"

namespace mv::registry {
namespace {

constexpr std::u16string_view kVersion5Header = u"Windows Registry Editor Version 5.00";
constexpr std::u16string_view kVersion4Header = u"REGEDIT4";

// Registry value types that hex(type): data may name and that read as text.
constexpr unsigned kTypeString = 1;
constexpr unsigned kTypeExpandString = 2;
constexpr unsigned kTypeBinary = 3;

bool IsBlank(char16_t c) {
  return c == u' ' || c == u'\t' || c == u'\r';
}

std::u16string_view TrimLeft(std::u16string_view s) {
  while (!s.empty() && IsBlank(s.front())) s.remove_prefix(1);
  return s;
}

std::u16string_view Trim(std::u16string_view s) {
  s = TrimLeft(s);
  while (!s.empty() && IsBlank(s.back())) s.remove_suffix(1);
  return s;
}

int HexDigit(char16_t c) {
  if (c >= u'0' && c <= u'9') return c - u'0';
  if (c >= u'a' && c <= u'f') return c - u'a' + 10;
  if (c >= u'A' && c <= u'F') return c - u'A' + 10;
  return -1;
}

// True when `s` starts with the ASCII text `prefix`, ignoring ASCII case.
bool StartsWithNoCase(std::u16string_view s, std::string_view prefix) {
  if (s.size() < prefix.size()) return false;
  for (size_t i = 0; i < prefix.size(); ++i) {
    char16_t c = s[i];
    if (c >= u'A' && c <= u'Z') c = static_cast<char16_t>(c - u'A' + u'a');
    if (c != static_cast<unsigned char>(prefix[i])) return false;
  }
  return true;
}

// `s` case-folded, the form in which names are compared.
std::u16string Fold(std::u16string_view s) {
  if (s.empty()) return {};
  std::u16string out(s.size(), u'\0');
  UErrorCode status = U_ZERO_ERROR;
  int32_t n = u_strFoldCase(out.data(), static_cast<int32_t>(out.size()), s.data(),
                            static_cast<int32_t>(s.size()), U_FOLD_CASE_DEFAULT, &status);
  if (status == U_BUFFER_OVERFLOW_ERROR) {
    out.assign(static_cast<size_t>(n), u'\0');
    status = U_ZERO_ERROR;
    n = u_strFoldCase(out.data(), n, s.data(), static_cast<int32_t>(s.size()), U_FOLD_CASE_DEFAULT,
                      &status);
  }
  if (U_FAILURE(status)) return std::u16string(s);
  out.resize(static_cast<size_t>(n));
  return out;
}

// A key path as the key map holds it: folded, empty components (leading, trailing or doubled
// backslashes) dropped.
std::u16string NormalKeyPath(std::u16string_view path) {
  std::u16string joined;
  while (!path.empty()) {
    size_t end = path.find(u'\\');
    std::u16string_view part = path.substr(0, end);
    if (!part.empty()) {
      if (!joined.empty()) joined += u'\\';
      joined += part;
    }
    if (end == std::u16string_view::npos) break;
    path.remove_prefix(end + 1);
  }
  return Fold(joined);
}

// The path below HKEY_LOCAL_MACHINE of a normal key path, or nothing for a key of another root.
std::optional<std::u16string> LocalMachineSubkey(const std::u16string& path) {
  size_t end = path.find(u'\\');
  std::u16string_view root = std::u16string_view(path).substr(0, end);
  if (root != u"hkey_local_machine" && root != u"hklm") return std::nullopt;
  return end == std::u16string::npos ? std::u16string() : path.substr(end + 1);
}

// A quoted name or text at the start of `s` (which starts with a quote), its escapes \\ and \"
// resolved, and the length it took up; nothing when the closing quote is missing.
std::optional<std::pair<std::u16string, size_t>> ParseQuoted(std::u16string_view s) {
  std::u16string text;
  for (size_t i = 1; i < s.size(); ++i) {
    char16_t c = s[i];
    if (c == u'\\' && i + 1 < s.size() && (s[i + 1] == u'\\' || s[i + 1] == u'"')) {
      text += s[++i];
    } else if (c == u'"') {
      return std::make_pair(std::move(text), i + 1);
    } else {
      text += c;
    }
  }
  return std::nullopt;
}

// The bytes of comma-separated hex pairs ("01,ff,"); nothing when a pair is malformed.
std::optional<std::string> ParseHexBytes(std::u16string_view s) {
  std::string bytes;
  while (!s.empty()) {
    size_t end = s.find(u',');
    std::u16string_view pair = Trim(s.substr(0, end));
    bool last = end == std::u16string_view::npos || Trim(s.substr(end + 1)).empty();
    if (pair.empty() && last) break;
    if (pair.empty() || pair.size() > 2) return std::nullopt;
    int value = 0;
    for (char16_t c : pair) {
      int digit = HexDigit(c);
      if (digit < 0) return std::nullopt;
      value = value * 16 + digit;
    }
    bytes += static_cast<char>(value);
    if (last) break;
    s.remove_prefix(end + 1);
  }
  return bytes;
}

// True for a line that can carry on hex data: hex digits, commas, blanks and backslashes only.
bool IsHexContinuation(std::u16string_view line) {
  line = Trim(line);
  if (line.empty()) return false;
  for (char16_t c : line) {
    if (HexDigit(c) < 0 && c != u',' && c != u'\\' && !IsBlank(c)) return false;
  }
  return true;
}

std::u16string DecodeUtf16Le(std::string_view bytes) {
  std::u16string text;
  text.reserve(bytes.size() / 2);
  for (size_t i = 0; i + 1 < bytes.size(); i += 2) {
    text += static_cast<char16_t>(static_cast<unsigned char>(bytes[i]) |
                                  (static_cast<unsigned char>(bytes[i + 1]) << 8));
  }
  return text;
}

// The whole file as wide text, following the encoding rules of TRegFile::Parse.
std::u16string DecodeFile(std::string_view bytes, int narrowCodePage) {
  if (bytes.starts_with("\xFF\xFE")) return DecodeUtf16Le(bytes.substr(2));
  if (bytes.size() >= 2 && bytes[0] != '\0' && bytes[1] == '\0') return DecodeUtf16Le(bytes);
  if (bytes.starts_with("\xEF\xBB\xBF")) return WideOfNarrow(bytes.substr(3), codepage::kUtf8);
  size_t start = bytes.find_first_not_of(" \t\r\n");
  if (start != std::string_view::npos && bytes.substr(start).starts_with("REGEDIT4")) {
    return WideOfNarrow(bytes, narrowCodePage);
  }
  return WideOfNarrow(bytes, codepage::kUtf8);
}

}  // namespace

std::u16string WideOfNarrow(std::string_view text, int codePage) {
  if (!codepage::IsKnownCodePage(codePage)) codePage = codepage::kWestern;
  try {
    return codepage::ToWide(text, codePage);
  } catch (const codepage::ECodePageError&) {
    return {};
  }
}

// Walks the lines of the decoded file once, applying each to the key map as an import would.
class TRegFile::Parser {
 public:
  Parser(TRegFile& file, std::u16string_view text, int narrowCodePage)
      : file_(file), text_(text), narrowCodePage_(narrowCodePage) {}

  void Run() {
    std::u16string_view line;
    while (NextLine(line) && Trim(line).empty()) {
    }
    line = Trim(line);
    if (line == kVersion4Header) {
      version4_ = true;
    } else if (line != kVersion5Header) {
      Warn(lineNo_ == 0 ? "empty file" : "not a registry export file");
      return;
    }
    while (NextLine(line)) {
      line = Trim(line);
      if (line.empty() || line.front() == u';') continue;
      if (line.front() == u'[') {
        KeyLine(line);
      } else if (line.front() == u'"' || line.front() == u'@') {
        ValueLine(line);
      } else {
        Warn("neither a key nor a value line");
      }
    }
  }

 private:
  bool PeekLine(std::u16string_view& line) const {
    if (pos_ >= text_.size()) return false;
    line = text_.substr(pos_, text_.find(u'\n', pos_) - pos_);
    return true;
  }

  bool NextLine(std::u16string_view& line) {
    if (!PeekLine(line)) return false;
    pos_ += line.size() + 1;
    ++lineNo_;
    return true;
  }

  void Warn(std::string message, int lineNo = 0) {
    file_.warnings_.push_back({lineNo != 0 ? lineNo : lineNo_, std::move(message)});
  }

  void KeyLine(std::u16string_view line) {
    current_ = nullptr;
    if (line.size() < 2 || line.back() != u']') {
      Warn("key line without closing bracket");
      return;
    }
    std::u16string_view inner = line.substr(1, line.size() - 2);
    bool remove = inner.starts_with(u'-');
    if (remove) inner.remove_prefix(1);
    std::u16string path = NormalKeyPath(inner);
    if (path.empty()) {
      Warn("key line without a key");
      return;
    }
    std::optional<std::u16string> subkey = LocalMachineSubkey(path);
    if (!subkey) return;
    if (!remove) {
      current_ = &file_.keys_[*subkey];
    } else if (subkey->empty()) {
      Warn("the root key cannot be deleted");
    } else {
      file_.DeleteTree(*subkey);
    }
  }

  void ValueLine(std::u16string_view line) {
    int firstLine = lineNo_;
    std::u16string name;
    std::u16string_view rest = line.substr(1);
    if (line.front() == u'"') {
      auto quoted = ParseQuoted(line);
      if (!quoted) return Warn("value name without closing quote");
      name = std::move(quoted->first);
      rest = line.substr(quoted->second);
    }
    rest = TrimLeft(rest);
    if (!rest.starts_with(u'=')) return Warn("'=' missing after the value name");
    std::u16string_view data = TrimLeft(rest.substr(1));

    if (StartsWithNoCase(data, "hex")) {
      // Take the continuation lines now so that they are never read as lines of their own.
      std::u16string joined(data);
      std::u16string_view next;
      while (joined.ends_with(u'\\')) {
        joined.pop_back();
        if (!PeekLine(next) || !IsHexContinuation(next)) {
          return Warn("hex data ends with a backslash but no continuation line follows", firstLine);
        }
        NextLine(next);
        joined += Trim(next);
      }
      std::optional<std::optional<std::u16string>> value = HexValue(joined);
      if (!value) return Warn("malformed hex data", firstLine);
      return Set(name, std::move(*value));
    }
    if (data.starts_with(u'"')) {
      auto quoted = ParseQuoted(data);
      if (!quoted) return Warn("text without closing quote");
      std::u16string_view after = TrimLeft(data.substr(quoted->second));
      if (!after.empty() && after.front() != u';') return Warn("text after the closing quote");
      return Set(name, std::move(quoted->first));
    }
    if (data == u"-") {
      if (current_ != nullptr) current_->erase(Fold(name));
      return;
    }
    if (StartsWithNoCase(data, "dword:")) {
      std::u16string_view digits = data.substr(6);
      bool ok = !digits.empty() && digits.size() <= 8;
      for (char16_t c : digits) ok = ok && HexDigit(c) >= 0;
      if (!ok) return Warn("malformed dword data");
      return Set(name, std::nullopt);
    }
    Warn("unknown value data");
  }

  // The value of "hex:..." or "hex(type):..." data (continuations joined): text for the text
  // types, an empty optional for other types; nothing when the data is malformed.
  std::optional<std::optional<std::u16string>> HexValue(std::u16string_view data) const {
    data.remove_prefix(3);
    unsigned type = kTypeBinary;
    if (data.starts_with(u'(')) {
      size_t close = data.find(u')');
      if (close == std::u16string_view::npos || close == 1 || close > 9) return std::nullopt;
      type = 0;
      for (char16_t c : data.substr(1, close - 1)) {
        int digit = HexDigit(c);
        if (digit < 0) return std::nullopt;
        type = type * 16 + static_cast<unsigned>(digit);
      }
      data.remove_prefix(close + 1);
    }
    if (!data.starts_with(u':')) return std::nullopt;
    std::optional<std::string> bytes = ParseHexBytes(data.substr(1));
    if (!bytes) return std::nullopt;
    if (type != kTypeString && type != kTypeExpandString) return std::optional<std::u16string>();
    // Text data carries its terminating NUL; a reader stops there.
    if (version4_) return WideOfNarrow(bytes->substr(0, bytes->find('\0')), narrowCodePage_);
    std::u16string text = DecodeUtf16Le(*bytes);
    text.resize(std::min(text.size(), text.find(u'\0')));
    return text;
  }

  void Set(std::u16string_view name, std::optional<std::u16string> value) {
    if (current_ != nullptr) (*current_)[Fold(name)] = std::move(value);
  }

  TRegFile& file_;
  std::u16string_view text_;
  int narrowCodePage_;
  bool version4_ = false;
  size_t pos_ = 0;
  int lineNo_ = 0;
  // The values of the key of the last key line, or null when it was deleted, malformed or of
  // another root: values that follow go nowhere.
  TValues* current_ = nullptr;
};

TRegFile TRegFile::Parse(std::string_view bytes, int narrowCodePage) {
  TRegFile file;
  std::u16string text = DecodeFile(bytes, narrowCodePage);
  Parser(file, text, narrowCodePage).Run();
  return file;
}

void TRegFile::DeleteTree(const std::u16string& key) {
  keys_.erase(key);
  std::u16string prefix = key + u'\\';
  auto it = keys_.lower_bound(prefix);
  while (it != keys_.end() && it->first.starts_with(prefix)) it = keys_.erase(it);
}

std::optional<std::u16string> TRegFile::ReadString(std::u16string_view keyPath,
                                                   std::u16string_view valueName) const {
  auto key = keys_.find(NormalKeyPath(keyPath));
  if (key == keys_.end()) return std::nullopt;
  auto value = key->second.find(Fold(valueName));
  if (value == key->second.end()) return std::nullopt;
  return value->second;
}

}  // namespace mv::registry
