#include "common/tables/field_text.h"

#include <charconv>
#include <cmath>

namespace mv::tables {
namespace {

constexpr char kBase64[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr char kHex[] = "0123456789ABCDEF";

void AppendUtf8(char32_t c, std::string& out) {
  if (c < 0x80) {
    out += static_cast<char>(c);
  } else if (c < 0x800) {
    out += static_cast<char>(0xC0 | (c >> 6));
    out += static_cast<char>(0x80 | (c & 0x3F));
  } else if (c < 0x10000) {
    out += static_cast<char>(0xE0 | (c >> 12));
    out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (c & 0x3F));
  } else {
    out += static_cast<char>(0xF0 | (c >> 18));
    out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
    out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (c & 0x3F));
  }
}

void AppendCodeUnit(char16_t unit, std::string& out) {
  out += "\\u";
  for (int shift = 12; shift >= 0; shift -= 4) out += kHex[(unit >> shift) & 0xF];
}

// The UTF-8 sequence at `i` of `text` decoded into `out` (UTF-16); `i` moves past it.
void DecodeUtf8(std::string_view text, size_t& i, std::u16string& out) {
  const auto byte = [&](size_t k) { return static_cast<unsigned char>(text[k]); };
  const unsigned char lead = byte(i);
  const int extra = lead < 0x80                   ? 0
                    : lead >= 0xC2 && lead < 0xE0 ? 1
                    : lead >= 0xE0 && lead < 0xF0 ? 2
                    : lead >= 0xF0 && lead < 0xF5 ? 3
                                                  : -1;
  if (extra < 0) throw EFieldTextError("text is no UTF-8");
  char32_t c = extra == 0 ? lead : lead & (0x3F >> extra);
  for (int k = 1; k <= extra; ++k) {
    if (i + static_cast<size_t>(k) >= text.size() || (byte(i + k) & 0xC0) != 0x80) {
      throw EFieldTextError("text is no UTF-8");
    }
    c = (c << 6) | (byte(i + k) & 0x3F);
  }
  const char32_t least[] = {0, 0x80, 0x800, 0x10000};
  if (c < least[extra] || c > 0x10FFFF || (c >= 0xD800 && c < 0xE000)) {
    throw EFieldTextError("text is no UTF-8");
  }
  i += static_cast<size_t>(extra) + 1;
  if (c < 0x10000) {
    out += static_cast<char16_t>(c);
  } else {
    out += static_cast<char16_t>(0xD800 + ((c - 0x10000) >> 10));
    out += static_cast<char16_t>(0xDC00 + ((c - 0x10000) & 0x3FF));
  }
}

char16_t ParseCodeUnit(std::string_view hex) {
  unsigned value = 0;
  const auto [end, ec] = std::from_chars(hex.data(), hex.data() + hex.size(), value, 16);
  if (hex.size() != 4 || ec != std::errc() || end != hex.data() + 4) {
    throw EFieldTextError("\\u needs four hex digits");
  }
  return static_cast<char16_t>(value);
}

// The escape at `i` of `text` (a backslash) into `out`; `i` moves past it.
void DecodeEscape(std::string_view text, size_t& i, std::u16string& out) {
  if (i + 1 >= text.size()) throw EFieldTextError("text ends with a lone backslash");
  const char c = text[i + 1];
  i += 2;
  switch (c) {
    case '\\':
      out += u'\\';
      return;
    case 't':
      out += u'\t';
      return;
    case 'n':
      out += u'\n';
      return;
    case 'r':
      out += u'\r';
      return;
    case '0':
      out += u'\0';
      return;
    case 'u':
      out += ParseCodeUnit(text.substr(i, 4));
      i += 4;
      return;
    default:
      throw EFieldTextError(std::string("unknown escape \\") + c);
  }
}

template <typename Number>
Number ParseNumber(std::string_view text, const char* what) {
  Number value{};
  const auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (text.empty() || ec != std::errc() || end != text.data() + text.size()) {
    throw EFieldTextError("'" + std::string(text.substr(0, 40)) + "' is no " + what);
  }
  return value;
}

void AppendReal(double value, std::string& out) {
  char buffer[32];
  const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
  out.append(buffer, result.ptr);
}

void AppendBase64(const std::vector<uint8_t>& bytes, std::string& out) {
  size_t i = 0;
  for (; i + 3 <= bytes.size(); i += 3) {
    const uint32_t n = (bytes[i] << 16) | (bytes[i + 1] << 8) | bytes[i + 2];
    for (int shift = 18; shift >= 0; shift -= 6) out += kBase64[(n >> shift) & 0x3F];
  }
  if (i < bytes.size()) {
    const bool two = i + 1 < bytes.size();
    const uint32_t n = (bytes[i] << 16) | (two ? bytes[i + 1] << 8 : 0);
    out += kBase64[(n >> 18) & 0x3F];
    out += kBase64[(n >> 12) & 0x3F];
    out += two ? kBase64[(n >> 6) & 0x3F] : '=';
    out += '=';
  }
}

std::vector<uint8_t> ParseBase64(std::string_view text) {
  if (text.size() % 4 != 0) throw EFieldTextError("base64 text of a length not a multiple of 4");
  std::vector<uint8_t> bytes;
  bytes.reserve(text.size() / 4 * 3);
  for (size_t i = 0; i < text.size(); i += 4) {
    uint32_t n = 0;
    int pad = 0;
    for (size_t k = 0; k < 4; ++k) {
      const char c = text[i + k];
      const char* at = c != '\0' ? std::char_traits<char>::find(kBase64, 64, c) : nullptr;
      const bool padding =
          c == '=' && i + 4 == text.size() && k >= 2 && (k == 3 || text[i + 3] == '=');
      if (at == nullptr && !padding) throw EFieldTextError("no base64 text");
      pad += padding ? 1 : 0;
      n = (n << 6) | (padding ? 0 : static_cast<uint32_t>(at - kBase64));
    }
    bytes.push_back(static_cast<uint8_t>(n >> 16));
    if (pad < 2) bytes.push_back(static_cast<uint8_t>(n >> 8));
    if (pad < 1) bytes.push_back(static_cast<uint8_t>(n));
  }
  return bytes;
}

int64_t WholeNumber(const db::Variant& value) {
  if (value.kind() == db::Variant::Kind::Float) {
    const double d = value.AsFloat();
    if (d != std::trunc(d) || std::fabs(d) >= 9.2e18) {
      throw EFieldTextError("the value " + value.AsString() + " is no whole number");
    }
  }
  try {
    return value.AsInteger();
  } catch (const db::EVariantError& error) {
    throw EFieldTextError(error.what());
  }
}

}  // namespace

void AppendText(std::u16string_view text, std::string& out) {
  for (size_t i = 0; i < text.size(); ++i) {
    const char16_t c = text[i];
    switch (c) {
      case u'\\':
        out += "\\\\";
        continue;
      case u'\t':
        out += "\\t";
        continue;
      case u'\n':
        out += "\\n";
        continue;
      case u'\r':
        out += "\\r";
        continue;
      case u'\0':
        out += "\\0";
        continue;
      default:
        break;
    }
    const bool high = c >= 0xD800 && c < 0xDC00;
    const bool pair = high && i + 1 < text.size() && text[i + 1] >= 0xDC00 && text[i + 1] < 0xE000;
    if (pair) {
      AppendUtf8(0x10000 + ((c - 0xD800) << 10) + (text[i + 1] - 0xDC00), out);
      ++i;
    } else if (c >= 0xD800 && c < 0xE000) {
      AppendCodeUnit(c, out);
    } else {
      AppendUtf8(c, out);
    }
  }
}

std::u16string ParseText(std::string_view text) {
  std::u16string out;
  out.reserve(text.size());
  for (size_t i = 0; i < text.size();) {
    if (text[i] == '\\') {
      DecodeEscape(text, i, out);
    } else if (text[i] == '\t' || text[i] == '\n' || text[i] == '\r') {
      throw EFieldTextError("a tab or line end stands in a field unescaped");
    } else {
      DecodeUtf8(text, i, out);
    }
  }
  return out;
}

void AppendField(TValueClass valueClass, const db::Variant& value, std::string& out) {
  if (value.IsNull()) {
    out += "\\N";
    return;
  }
  try {
    switch (valueClass) {
      case TValueClass::Integer:
        out += std::to_string(WholeNumber(value));
        return;
      case TValueClass::Real:
        AppendReal(value.AsFloat(), out);
        return;
      case TValueClass::Date:
        AppendReal(value.AsDateTime().Days, out);
        return;
      case TValueClass::Bool:
        out += value.AsBool() ? '1' : '0';
        return;
      case TValueClass::Bytes:
        AppendBase64(value.AsBytes(), out);
        return;
      case TValueClass::Text:
        AppendText(value.AsWideString(), out);
        return;
    }
  } catch (const db::EVariantError& error) {
    throw EFieldTextError(error.what());
  }
}

db::Variant ParseField(TValueClass valueClass, std::string_view text) {
  if (text == "\\N") return db::Variant();
  switch (valueClass) {
    case TValueClass::Integer:
      return ParseNumber<int64_t>(text, "whole number");
    case TValueClass::Real:
      return ParseNumber<double>(text, "number");
    case TValueClass::Date:
      return db::TDateTime{ParseNumber<double>(text, "day number")};
    case TValueClass::Bool:
      if (text != "0" && text != "1") throw EFieldTextError("a Boolean is 0 or 1");
      return text == "1";
    case TValueClass::Bytes:
      return ParseBase64(text);
    case TValueClass::Text:
    default:
      return ParseText(text);
  }
}

}  // namespace mv::tables
