#include "platform/db/variant.h"

#include <charconv>
#include <cmath>
#include <cstdio>

#include "platform/codepage/codepage.h"
#include "platform/db/day_number_p.h"

namespace mv::db {
namespace {

std::string_view Trimmed(std::string_view s) {
  while (!s.empty() && (s.front() == ' ' || s.front() == '\t')) s.remove_prefix(1);
  while (!s.empty() && (s.back() == ' ' || s.back() == '\t')) s.remove_suffix(1);
  return s;
}

[[noreturn]] void Fail(const std::string& text, const char* what) {
  throw EVariantError("'" + text + "' is not a valid " + what + " value");
}

double TextToFloat(const std::string& text) {
  const std::string_view s = Trimmed(text);
  double v = 0;
  const auto [end, ec] = std::from_chars(s.data(), s.data() + s.size(), v);
  if (s.empty() || ec != std::errc() || end != s.data() + s.size()) Fail(text, "floating point");
  return v;
}

int64_t TextToInteger(const std::string& text) {
  std::string_view s = Trimmed(text);
  if (!s.empty() && s.front() == '+') s.remove_prefix(1);
  int64_t v = 0;
  const auto [end, ec] = std::from_chars(s.data(), s.data() + s.size(), v);
  if (s.empty() || ec != std::errc() || end != s.data() + s.size()) Fail(text, "integer");
  return v;
}

std::string FloatText(double v) {
  char buffer[32];
  const auto [end, ec] = std::to_chars(buffer, buffer + sizeof buffer, v);
  return std::string(buffer, ec == std::errc() ? end : buffer);
}

std::string Narrow(const std::u16string& w) {
  return codepage::FromWide(w, codepage::UserCodePage());
}

}  // namespace

int64_t Variant::AsInteger() const {
  switch (kind()) {
    case Kind::Null:
      return 0;
    case Kind::Integer:
      return std::get<int64_t>(value_);
    case Kind::Float:
      return static_cast<int64_t>(std::trunc(std::get<double>(value_)));
    case Kind::Text:
      return TextToInteger(std::get<std::string>(value_));
    case Kind::WideText:
      return TextToInteger(Narrow(std::get<std::u16string>(value_)));
    case Kind::DateTime:
      return static_cast<int64_t>(std::trunc(std::get<TDateTime>(value_).Days));
    case Kind::Bool:
      return std::get<bool>(value_) ? 1 : 0;
    case Kind::Bytes:
      break;
  }
  throw EVariantError("Bytes cannot be read as an integer");
}

double Variant::AsFloat() const {
  switch (kind()) {
    case Kind::Null:
      return 0;
    case Kind::Integer:
      return static_cast<double>(std::get<int64_t>(value_));
    case Kind::Float:
      return std::get<double>(value_);
    case Kind::Text:
      return TextToFloat(std::get<std::string>(value_));
    case Kind::WideText:
      return TextToFloat(Narrow(std::get<std::u16string>(value_)));
    case Kind::DateTime:
      return std::get<TDateTime>(value_).Days;
    case Kind::Bool:
      return std::get<bool>(value_) ? 1 : 0;
    case Kind::Bytes:
      break;
  }
  throw EVariantError("Bytes cannot be read as a floating point number");
}

std::string Variant::AsString() const {
  switch (kind()) {
    case Kind::Null:
      return {};
    case Kind::Integer:
      return std::to_string(std::get<int64_t>(value_));
    case Kind::Float:
      return FloatText(std::get<double>(value_));
    case Kind::Text:
      return std::get<std::string>(value_);
    case Kind::WideText:
      return Narrow(std::get<std::u16string>(value_));
    case Kind::DateTime:
      return DayNumberText(std::get<TDateTime>(value_).Days);
    case Kind::Bool:
      return std::get<bool>(value_) ? "True" : "False";
    case Kind::Bytes:
      break;
  }
  const auto& bytes = std::get<std::vector<uint8_t>>(value_);
  return std::string(bytes.begin(), bytes.end());
}

std::u16string Variant::AsWideString() const {
  if (kind() == Kind::WideText) return std::get<std::u16string>(value_);
  return codepage::ToWide(AsString(), codepage::UserCodePage());
}

TDateTime Variant::AsDateTime() const {
  switch (kind()) {
    case Kind::Null:
      return {};
    case Kind::Integer:
    case Kind::Float:
    case Kind::DateTime:
      return TDateTime{AsFloat()};
    case Kind::Text:
    case Kind::WideText: {
      const std::string text = AsString();
      if (const auto days = ParseIsoDate(text)) return TDateTime{*days};
      Fail(text, "date and time");
    }
    case Kind::Bool:
    case Kind::Bytes:
      break;
  }
  throw EVariantError("The value cannot be read as a date and time");
}

bool Variant::AsBool() const {
  switch (kind()) {
    case Kind::Null:
      return false;
    case Kind::Bool:
      return std::get<bool>(value_);
    case Kind::Integer:
    case Kind::Float:
    case Kind::DateTime:
      return AsFloat() != 0;
    case Kind::Text:
    case Kind::WideText: {
      std::string text(Trimmed(AsString()));
      for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
      if (text == "true" || text == "1") return true;
      if (text == "false" || text == "0" || text.empty()) return false;
      Fail(text, "Boolean");
    }
    case Kind::Bytes:
      break;
  }
  throw EVariantError("Bytes cannot be read as a Boolean");
}

std::vector<uint8_t> Variant::AsBytes() const {
  if (kind() == Kind::Bytes) return std::get<std::vector<uint8_t>>(value_);
  if (kind() == Kind::Text || kind() == Kind::WideText) {
    const std::string text = AsString();
    return std::vector<uint8_t>(text.begin(), text.end());
  }
  throw EVariantError("The value cannot be read as bytes");
}

}  // namespace mv::db
