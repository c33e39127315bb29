#include "platform/ini/ini_document_p.h"

namespace mv::ini::detail {
namespace {

// One pair of matching outer quotes ("..." or '...') comes off a value of two characters or more.
template <typename CharT>
std::basic_string_view<CharT> Unquote(std::basic_string_view<CharT> value) {
  if (value.size() >= 2 && value.front() == value.back() &&
      (value.front() == CharT('"') || value.front() == CharT('\''))) {
    return value.substr(1, value.size() - 2);
  }
  return value;
}

template <typename CharT>
std::basic_string<CharT> Concat(std::initializer_list<std::basic_string_view<CharT>> parts) {
  std::basic_string<CharT> out;
  for (auto part : parts) out.append(part);
  return out;
}

// Every line followed by CR LF.
template <typename CharT>
std::basic_string<CharT> Join(const std::vector<std::basic_string_view<CharT>>& lines) {
  size_t size = 0;
  for (auto line : lines) size += line.size() + 2;
  std::basic_string<CharT> text;
  text.reserve(size);
  for (auto line : lines) {
    text.append(line);
    text.push_back(CharT('\r'));
    text.push_back(CharT('\n'));
  }
  return text;
}

// The lines of `text` (a new line, in which a value may have brought CR or LF).
template <typename CharT>
std::vector<std::basic_string_view<CharT>> SplitLines(std::basic_string_view<CharT> text) {
  std::vector<std::basic_string_view<CharT>> lines;
  ForEachLine(text, [&](std::basic_string_view<CharT> line) { lines.push_back(line); });
  return lines;
}

}  // namespace

template <typename CharT>
TIniDocument<CharT>::TIniDocument(String text, const TLeadBytes* lead)
    : lead_(lead),
      text_(std::make_unique<const String>(std::move(text))),
      index_(0, TNameHash{lead}, TNameEqual{lead}) {
  View all(*text_);
  ForEachLine(all, [&](View line) {
    lines_.push_back(Classify(static_cast<size_t>(line.data() - all.data()), line.size()));
  });
  index_.reserve(lines_.size());
  bool searched = false;  // whether the current section is the first of its name
  for (size_t i = 0; i < lines_.size(); ++i) {
    const TLine& line = lines_[i];
    if (line.kind == TKind::kSection) {
      if (!sections_.empty()) sections_.back().end = i;
      sections_.push_back(TSection{i, lines_.size()});
      searched = index_.emplace(TName{kSectionName, Name(line)}, sections_.size() - 1).second;
    } else if (line.kind == TKind::kKey && searched) {
      // Key lines before the first header belong to no section and cannot be reached.
      index_.emplace(TName{sections_.size() - 1, Name(line)}, i);
    }
  }
}

template <typename CharT>
auto TIniDocument<CharT>::Classify(size_t begin, size_t size) const -> TLine {
  TLine line;
  line.begin = begin;
  line.size = size;
  View whole = View(*text_).substr(begin, size);
  View trimmed = TrimBlanks(whole);
  auto offset = [&](View part) { return begin + static_cast<size_t>(part.data() - whole.data()); };
  if (trimmed.empty()) {
    line.kind = TKind::kBlank;
  } else if (trimmed.front() == CharT(';')) {
    line.kind = TKind::kComment;
  } else if (trimmed.front() == CharT('[')) {
    // The name ends at the first "]"; text after it is ignored, and a missing "]" still counts.
    View inner = trimmed.substr(1);
    inner = TrimBlanks(inner.substr(0, FindChar(inner, CharT(']'), lead_)));
    line.kind = TKind::kSection;
    line.nameBegin = offset(inner);
    line.nameSize = inner.size();
  } else if (size_t eq = FindChar(trimmed, CharT('='), lead_); eq != View::npos) {
    View name = TrimRightBlanks(trimmed.substr(0, eq));
    View value = TrimLeftBlanks(trimmed.substr(eq + 1));
    line.kind = TKind::kKey;
    line.nameBegin = offset(name);
    line.nameSize = name.size();
    line.valueBegin = offset(value);
    line.valueSize = value.size();
  } else {
    line.kind = TKind::kOther;
  }
  return line;
}

template <typename CharT>
std::optional<size_t> TIniDocument<CharT>::FindSection(View section) const {
  auto it = index_.find(TName{kSectionName, TrimSpaces(section)});
  if (it == index_.end()) return std::nullopt;
  return it->second;
}

template <typename CharT>
std::optional<size_t> TIniDocument<CharT>::FindKey(View section, View key) const {
  std::optional<size_t> found = FindSection(section);
  if (!found) return std::nullopt;
  auto it = index_.find(TName{*found, TrimSpaces(key)});
  if (it == index_.end()) return std::nullopt;
  return it->second;
}

template <typename CharT>
auto TIniDocument<CharT>::Value(View section, View key) const -> std::optional<View> {
  std::optional<size_t> line = FindKey(section, key);
  if (!line) return std::nullopt;
  return Unquote(View(*text_).substr(lines_[*line].valueBegin, lines_[*line].valueSize));
}

template <typename CharT>
auto TIniDocument<CharT>::KeyNames(View section) const -> std::vector<View> {
  std::vector<View> names;
  if (std::optional<size_t> found = FindSection(section)) {
    for (size_t i = sections_[*found].header; i < sections_[*found].end; ++i) {
      if (lines_[i].kind == TKind::kKey) names.push_back(Name(lines_[i]));
    }
  }
  return names;
}

template <typename CharT>
auto TIniDocument<CharT>::SectionNames() const -> std::vector<View> {
  std::vector<View> names;
  names.reserve(sections_.size());
  for (const TSection& section : sections_) names.push_back(Name(lines_[section.header]));
  return names;
}

template <typename CharT>
auto TIniDocument<CharT>::LineTexts() const -> std::vector<View> {
  std::vector<View> texts;
  texts.reserve(lines_.size() + 2);
  for (const TLine& line : lines_) texts.push_back(Text(line));
  return texts;
}

template <typename CharT>
auto TIniDocument<CharT>::WithValue(View section, View key, View value) const -> String {
  static constexpr CharT kEq[] = {CharT('='), CharT(0)};
  static constexpr CharT kOpen[] = {CharT('['), CharT(0)};
  static constexpr CharT kClose[] = {CharT(']'), CharT(0)};
  section = TrimSpaces(section);
  key = TrimSpaces(key);
  std::vector<View> texts = LineTexts();
  String header, line;
  size_t at = texts.size();  // where the new line goes
  if (std::optional<size_t> found = FindSection(section); !found) {
    header = Concat<CharT>({kOpen, section, kClose});
    texts.push_back(header);
    at = texts.size();
  } else if (std::optional<size_t> existing = FindKey(section, key)) {
    key = Name(lines_[*existing]);
    at = *existing;
    texts.erase(texts.begin() + static_cast<ptrdiff_t>(at));
  } else {
    // After the last key of the section; right after the header when it has none.
    at = sections_[*found].header + 1;
    for (size_t i = at; i < sections_[*found].end; ++i) {
      if (lines_[i].kind == TKind::kKey) at = i + 1;
    }
  }
  line = Concat<CharT>({key, kEq, value});
  std::vector<View> added = SplitLines(View(line));
  texts.insert(texts.begin() + static_cast<ptrdiff_t>(at), added.begin(), added.end());
  return Join(texts);
}

template <typename CharT>
auto TIniDocument<CharT>::WithoutKey(View section, View key) const -> std::optional<String> {
  std::optional<size_t> line = FindKey(section, key);
  if (!line) return std::nullopt;
  std::vector<View> texts = LineTexts();
  texts.erase(texts.begin() + static_cast<ptrdiff_t>(*line));
  return Join(texts);
}

template <typename CharT>
auto TIniDocument<CharT>::WithoutSection(View section) const -> std::optional<String> {
  section = TrimSpaces(section);
  std::vector<View> texts;
  texts.reserve(lines_.size());
  bool erased = false;
  size_t next = 0;  // the first line not yet looked at
  for (const TSection& s : sections_) {
    if (!NamesEqual(Name(lines_[s.header]), section, lead_)) continue;
    for (; next < s.header; ++next) texts.push_back(Text(lines_[next]));
    for (; next < s.end; ++next) {
      TKind kind = lines_[next].kind;
      if (kind == TKind::kComment || kind == TKind::kBlank) texts.push_back(Text(lines_[next]));
    }
    erased = true;
  }
  if (!erased) return std::nullopt;
  for (; next < lines_.size(); ++next) texts.push_back(Text(lines_[next]));
  return Join(texts);
}

template class TIniDocument<char>;
template class TIniDocument<char16_t>;

}  // namespace mv::ini::detail
