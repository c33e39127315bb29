#include "platform/ini/ini_encoding_p.h"

namespace mv::ini::detail {
namespace {

constexpr std::string_view kUtf8Bom("\xEF\xBB\xBF", 3);
constexpr std::string_view kUtf16LeBom("\xFF\xFE", 2);

}  // namespace

TIniEncoding DetectEncoding(std::string_view bytes) {
  if (bytes.starts_with(kUtf16LeBom)) return TIniEncoding::kUtf16Le;
  if (bytes.starts_with(kUtf8Bom)) return TIniEncoding::kAnsiUtf8Bom;
  return TIniEncoding::kAnsi;
}

std::string_view ByteOrderMark(TIniEncoding encoding) {
  switch (encoding) {
    case TIniEncoding::kAnsiUtf8Bom:
      return kUtf8Bom;
    case TIniEncoding::kUtf16Le:
      return kUtf16LeBom;
    case TIniEncoding::kAnsi:
      break;
  }
  return {};
}

std::u16string Utf16FromLittleEndian(std::string_view bytes) {
  std::u16string text(bytes.size() / 2, u'\0');
  for (size_t i = 0; i < text.size(); ++i) {
    auto low = static_cast<unsigned char>(bytes[2 * i]);
    auto high = static_cast<unsigned char>(bytes[2 * i + 1]);
    text[i] = static_cast<char16_t>(low | (high << 8));
  }
  return text;
}

std::string LittleEndianFromUtf16(std::u16string_view text) {
  std::string bytes(text.size() * 2, '\0');
  for (size_t i = 0; i < text.size(); ++i) {
    bytes[2 * i] = static_cast<char>(text[i] & 0xFF);
    bytes[2 * i + 1] = static_cast<char>(text[i] >> 8);
  }
  return bytes;
}

}  // namespace mv::ini::detail
