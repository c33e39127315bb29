// The text of one configuration file and an index over its lines. Each line is classified once
// (blank, comment, section header, key, other); one hash table, which ignores the case of names,
// leads from a section name to its first header and from (section, key name) to the first line of
// that key in it. Look-ups are hash look-ups, never scans of the file.
//
// A document never changes: an edit gives the text the file is to hold, and once the file holds
// it, the caller makes a new document of that text. So what the object reads after a write is
// what a fresh read of the file gives.
//
// CharT is char for files in the system code page (bytes kept exactly as read) and char16_t for
// UTF-16 files.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/ini/ini_text_p.h"

namespace mv::ini::detail {

template <typename CharT>
class TIniDocument {
 public:
  using Char = CharT;
  using String = std::basic_string<CharT>;
  using View = std::basic_string_view<CharT>;

  // Takes the file's text (without byte-order mark) and indexes it. `lead` tells the double-byte
  // lead bytes of narrow text (nullptr: none); it must outlive the document.
  TIniDocument(String text, const TLeadBytes* lead);

  const TLeadBytes* Lead() const { return lead_; }

  // Look-ups take section and key names as callers give them: surrounding spaces are dropped and
  // case is ignored. Only the first section of a name is searched, and in it the first key of a
  // name is found. Returned views live as long as the document.

  // The value of `key` in `section` with one pair of matching outer quotes removed.
  std::optional<View> Value(View section, View key) const;
  // The names of the keys of `section` as the file spells them, in file order, duplicates
  // included; empty when the section is missing.
  std::vector<View> KeyNames(View section) const;
  // The name of every section header in file order, duplicates included.
  std::vector<View> SectionNames() const;

  // Edits: the whole text the file gets, every line ended by CR LF.
  // Replaces the value of an existing key in its line ("name=value", the file's spelling of the
  // name), or adds "key=value" after the last key of the section, or adds "[section]" and the key
  // at the end. The value goes in as given; a CR or LF in it ends a line there.
  String WithValue(View section, View key, View value) const;
  // Without the line of the key that Value finds; nothing when there is none.
  std::optional<String> WithoutKey(View section, View key) const;
  // Without the header, the key lines and the other non-comment lines of every section of that
  // name; comment and blank lines inside stay. Nothing when there is no such section.
  std::optional<String> WithoutSection(View section) const;

 private:
  enum class TKind : uint8_t { kBlank, kComment, kSection, kKey, kOther };

  // Positions in text_: the line, and the section name (kSection) or the key name and value (kKey).
  struct TLine {
    size_t begin = 0, size = 0;
    size_t nameBegin = 0, nameSize = 0, valueBegin = 0, valueSize = 0;
    TKind kind = TKind::kBlank;
  };

  struct TSection {
    size_t header = 0;  // line of the header
    size_t end = 0;     // line of the next header, or the line count
  };

  // A section name (section == kSectionName) or a key name in the section with that index.
  struct TName {
    size_t section;
    View name;
  };
  static constexpr size_t kSectionName = SIZE_MAX;
  struct TNameHash {
    const TLeadBytes* lead;
    size_t operator()(const TName& n) const { return NameHash(n.name, lead) ^ n.section; }
  };
  struct TNameEqual {
    const TLeadBytes* lead;
    bool operator()(const TName& a, const TName& b) const {
      return a.section == b.section && NamesEqual(a.name, b.name, lead);
    }
  };

  TLine Classify(size_t begin, size_t size) const;
  View Text(const TLine& line) const { return View(*text_).substr(line.begin, line.size); }
  View Name(const TLine& line) const { return View(*text_).substr(line.nameBegin, line.nameSize); }
  std::optional<size_t> FindSection(View section) const;        // index in sections_
  std::optional<size_t> FindKey(View section, View key) const;  // line
  std::vector<View> LineTexts() const;

  const TLeadBytes* lead_;
  // The text sits behind a pointer so that the names in index_ stay put when the document moves.
  std::unique_ptr<const String> text_;
  std::vector<TLine> lines_;
  std::vector<TSection> sections_;  // every header, in file order
  // First section of each name -> index in sections_; first key of each name -> its line. Keys
  // are recorded only for the first section of a name, the only one look-ups search.
  std::unordered_map<TName, size_t, TNameHash, TNameEqual> index_;
};

extern template class TIniDocument<char>;
extern template class TIniDocument<char16_t>;

}  // namespace mv::ini::detail
