// Character-level helpers of the INI reader, written once for both kinds of file text: bytes in
// the system code page (char) and UTF-16 (char16_t). Every character that carries meaning in the
// file (blanks, "[", "]", "=", ";", quotes, CR, LF) is ASCII and has the same value in both.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace mv::ini::detail {

// lead[b] is true when byte b starts a two-byte character of the system code page (Big5, GBK ...).
using TLeadBytes = std::array<bool, 256>;

// The blanks of a file line: space, tab, vertical tab and form feed (the C library's white space
// without the line ends, which never reach a line).
template <typename CharT>
constexpr bool IsBlank(CharT c) {
  return c == CharT(' ') || c == CharT('\t') || c == CharT('\v') || c == CharT('\f');
}

template <typename CharT>
std::basic_string_view<CharT> TrimLeftBlanks(std::basic_string_view<CharT> s) {
  size_t i = 0;
  while (i < s.size() && IsBlank(s[i])) ++i;
  return s.substr(i);
}

template <typename CharT>
std::basic_string_view<CharT> TrimRightBlanks(std::basic_string_view<CharT> s) {
  size_t n = s.size();
  while (n > 0 && IsBlank(s[n - 1])) --n;
  return s.substr(0, n);
}

template <typename CharT>
std::basic_string_view<CharT> TrimBlanks(std::basic_string_view<CharT> s) {
  return TrimRightBlanks(TrimLeftBlanks(s));
}

// Names passed in by callers lose surrounding spaces only (a tab stays part of the name).
template <typename CharT>
std::basic_string_view<CharT> TrimSpaces(std::basic_string_view<CharT> s) {
  size_t b = 0, e = s.size();
  while (b < e && s[b] == CharT(' ')) ++b;
  while (e > b && s[e - 1] == CharT(' ')) --e;
  return s.substr(b, e - b);
}

// A default handed to a read loses its trailing spaces, as the profile API copies it (a space is
// below 0x40, so it is never the trail byte of a double-byte character).
template <typename CharT>
std::basic_string_view<CharT> TrimRightSpaces(std::basic_string_view<CharT> s) {
  size_t n = s.size();
  while (n > 0 && s[n - 1] == CharT(' ')) --n;
  return s.substr(0, n);
}

// Code units of the character that starts at s[i]. A lead byte takes the byte after it along when
// that can be a trail byte (0x40 and up in every double-byte code page): such a trail byte may look
// like "]" or a letter but is neither. Blanks, "=", ";" and quotes are below 0x40, so a stray lead
// byte never hides them. A UTF-16 surrogate pair is one character; everything else is one unit.
inline size_t CharUnits(std::string_view s, size_t i, const TLeadBytes* lead) {
  bool pair = lead != nullptr && (*lead)[static_cast<unsigned char>(s[i])] && i + 1 < s.size() &&
              static_cast<unsigned char>(s[i + 1]) >= 0x40;
  return pair ? 2 : 1;
}

inline size_t CharUnits(std::u16string_view s, size_t i, const TLeadBytes*) {
  bool pair = s[i] >= 0xD800 && s[i] <= 0xDBFF && i + 1 < s.size() && s[i + 1] >= 0xDC00 &&
              s[i + 1] <= 0xDFFF;
  return pair ? 2 : 1;
}

// Position of the first `c` in `s` that is a character of its own (not the trail byte of a
// double-byte character); npos when there is none.
template <typename CharT>
size_t FindChar(std::basic_string_view<CharT> s, CharT c, const TLeadBytes* lead) {
  for (size_t i = 0; i < s.size(); i += CharUnits(s, i, lead)) {
    if (s[i] == c) return i;
  }
  return std::basic_string_view<CharT>::npos;
}

// Names match without regard to the case of ASCII letters. Trail bytes of double-byte characters
// are compared as they are (0x61 after a Big5 lead byte is not "a").
template <typename CharT>
constexpr CharT FoldAscii(CharT c) {
  return c >= CharT('a') && c <= CharT('z') ? static_cast<CharT>(c - CharT('a' - 'A')) : c;
}

template <typename CharT>
bool NamesEqual(std::basic_string_view<CharT> a, std::basic_string_view<CharT> b,
                const TLeadBytes* lead) {
  if (a.size() != b.size()) return false;
  // While both agree, a character starts at the same place in both.
  for (size_t i = 0; i < a.size();) {
    size_t units = CharUnits(a, i, lead);
    if (units == 1) {
      if (FoldAscii(a[i]) != FoldAscii(b[i])) return false;
    } else if (a.substr(i, units) != b.substr(i, units)) {
      return false;
    }
    i += units;
  }
  return true;
}

// A hash under which names that NamesEqual holds equal hash alike (FNV-1a of the folded units).
template <typename CharT>
size_t NameHash(std::basic_string_view<CharT> name, const TLeadBytes* lead) {
  uint64_t hash = 14695981039346656037ull;
  auto mix = [&hash](CharT c) { hash = (hash ^ static_cast<uint64_t>(c)) * 1099511628211ull; };
  for (size_t i = 0; i < name.size();) {
    size_t units = CharUnits(name, i, lead);
    mix(units == 1 ? FoldAscii(name[i]) : name[i]);
    for (size_t k = 1; k < units; ++k) mix(name[i + k]);
    i += units;
  }
  return static_cast<size_t>(hash);
}

// At most `maxUnits` code units of `s`, never ending inside a character.
template <typename CharT>
std::basic_string_view<CharT> CutAt(std::basic_string_view<CharT> s, size_t maxUnits,
                                    const TLeadBytes* lead) {
  if (s.size() <= maxUnits) return s;
  size_t i = 0;
  while (i < s.size()) {
    size_t next = i + CharUnits(s, i, lead);
    if (next > maxUnits) break;
    i = next;
  }
  return s.substr(0, i);
}

// Calls `onLine(line)` for every line of `text`. Lines end at CR, LF or CR LF; a line end at the
// very end of the text does not start another, empty line.
template <typename CharT, typename OnLine>
void ForEachLine(std::basic_string_view<CharT> text, OnLine&& onLine) {
  constexpr CharT kCr = CharT('\r'), kLf = CharT('\n');
  // The next CR and the next LF are searched for apart (memchr for narrow text), each again only
  // once the lines have passed it, so a file with one kind of line end is not searched twice.
  size_t nextCr = text.find(kCr), nextLf = text.find(kLf);
  size_t begin = 0;
  while (begin < text.size()) {
    if (nextCr < begin) nextCr = text.find(kCr, begin);
    if (nextLf < begin) nextLf = text.find(kLf, begin);
    size_t end = std::min({nextCr, nextLf, text.size()});
    onLine(text.substr(begin, end - begin));
    if (end == nextCr && end + 1 == nextLf) ++end;
    begin = end + 1;
  }
}

}  // namespace mv::ini::detail
