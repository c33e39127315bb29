#include "modules/mv_str_pad.h"

#include <algorithm>

namespace mv::modules {
namespace {

// How many units padding to `width` adds to a text of `length` units.
size_t Missing(size_t length, int width) {
  return width > 0 && length < static_cast<size_t>(width) ? static_cast<size_t>(width) - length : 0;
}

template <class Char>
std::basic_string<Char> PadRight(std::basic_string_view<Char> s, Char c, int width) {
  std::basic_string<Char> out(s);
  out.append(Missing(s.size(), width), c);
  return out;
}

template <class Char>
std::basic_string<Char> PadLeft(std::basic_string_view<Char> s, Char c, int width) {
  std::basic_string<Char> out(Missing(s.size(), width), c);
  out.append(s);
  return out;
}

template <class Char>
std::basic_string<Char> PadCentre(std::basic_string_view<Char> s, int width) {
  size_t missing = Missing(s.size(), width);
  std::basic_string<Char> out(missing / 2, Char(' '));
  out.append(s);
  out.append(missing - missing / 2, Char(' '));
  return out;
}

template <class Char>
size_t PadBuffer(std::span<Char> buffer, Char c, int width) {
  auto terminator = std::find(buffer.begin(), buffer.end(), Char(0));
  if (terminator == buffer.end()) return buffer.size();
  size_t length = static_cast<size_t>(terminator - buffer.begin());
  size_t target = std::min(length + Missing(length, width), buffer.size() - 1);
  std::fill(buffer.begin() + length, buffer.begin() + target, c);
  buffer[target] = Char(0);
  return target;
}

}  // namespace

std::string _MV_PadR(std::string_view s, int width) {
  return PadRight(s, ' ', width);
}
std::u16string _MV_PadR(std::u16string_view s, int width) {
  return PadRight(s, u' ', width);
}
std::string _MV_PadL(std::string_view s, int width) {
  return PadLeft(s, ' ', width);
}
std::u16string _MV_PadL(std::u16string_view s, int width) {
  return PadLeft(s, u' ', width);
}
std::string _MV_PadC(std::string_view s, int width) {
  return PadCentre(s, width);
}
std::u16string _MV_PadC(std::u16string_view s, int width) {
  return PadCentre(s, width);
}

std::string _MV_PadRChar(std::string_view s, char c, int width) {
  return PadRight(s, c, width);
}
std::u16string _MV_PadRChar(std::u16string_view s, char16_t c, int width) {
  return PadRight(s, c, width);
}
std::string _MV_PadLChar(std::string_view s, char c, int width) {
  return PadLeft(s, c, width);
}
std::u16string _MV_PadLChar(std::u16string_view s, char16_t c, int width) {
  return PadLeft(s, c, width);
}

size_t _MV_StrRPadChar(std::span<char> buffer, char c, int width) {
  return PadBuffer(buffer, c, width);
}

size_t _MV_StrRPadChar(std::span<char16_t> buffer, char16_t c, int width) {
  return PadBuffer(buffer, c, width);
}

}  // namespace mv::modules
