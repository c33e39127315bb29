#include "modules/mv_format.h"

#include <charconv>
#include <optional>

#include "modules/mv_str_float.h"
#include "modules/mv_text_units.h"

namespace mv::modules {
namespace {

constexpr size_t kMaxNumber = 65535;

// One conversion as written: "%" [index ":"] ["-"] [width] ["." precision] conversion.
struct TDirective {
  size_t position = 0;  // of the "%", counted from 0
  std::optional<size_t> index;
  bool left = false;
  size_t width = 0;
  std::optional<size_t> precision;
  char conversion = 0;  // one of "sduxgefnm"
};

[[noreturn]] void Fail(size_t position, const std::string& what) {
  throw EFormatError("invalid format at position " + std::to_string(position + 1) + ": " + what);
}

std::string OutText(std::string text, char) {
  return text;
}
std::u16string OutText(const std::string& ascii, char16_t) {
  return std::u16string(ascii.begin(), ascii.end());
}
std::string ArgText(const std::string& s, char) {
  return s;
}
std::string ArgText(const std::u16string& s, char) {
  return detail::Narrow(s);
}
std::u16string ArgText(const std::string& s, char16_t) {
  return detail::Widen(s);
}
std::u16string ArgText(const std::u16string& s, char16_t) {
  return s;
}

std::string IntegerDigits(const TDirective& directive, int64_t value) {
  auto magnitude = static_cast<uint64_t>(value);
  bool negative = directive.conversion == 'd' && value < 0;
  if (negative) magnitude = 0 - magnitude;
  char buffer[32];
  auto end = std::to_chars(buffer, buffer + sizeof buffer, magnitude,
                           directive.conversion == 'x' ? 16 : 10)
                 .ptr;
  std::string digits(buffer, end);
  for (char& c : digits) c = (c >= 'a' && c <= 'f') ? static_cast<char>(c - 'a' + 'A') : c;
  if (directive.precision && digits.size() < *directive.precision)
    digits.insert(0, *directive.precision - digits.size(), '0');
  if (negative) digits.insert(digits.begin(), '-');
  return digits;
}

std::string FloatDigits(const TDirective& directive, double value) {
  static constexpr struct {
    char conversion;
    TFloatFormat format;
    int digits;
  } kFloats[] = {{'g', ffGeneral, 15},
                 {'e', ffExponent, 15},
                 {'f', ffFixed, 2},
                 {'n', ffNumber, 2},
                 {'m', ffCurrency, 2}};
  for (const auto& f : kFloats) {
    if (f.conversion == directive.conversion) {
      int digits = directive.precision ? static_cast<int>(*directive.precision) : f.digits;
      return _MV_FToStr(value, f.format, digits);
    }
  }
  Fail(directive.position, "no floating-point conversion");
}

template <class Char>
class TFormatter {
 public:
  using TText = std::basic_string<Char>;

  TFormatter(std::basic_string_view<Char> format, TFormatArgs args)
      : format_(format), args_(args) {}

  TText Run() {
    TText out;
    out.reserve(format_.size());
    size_t i = 0;
    while (i < format_.size()) {
      size_t percent = format_.find(Char('%'), i);
      out.append(format_.substr(i, percent == format_.npos ? percent : percent - i));
      if (percent == format_.npos) break;
      i = percent + 1;
      if (i < format_.size() && format_[i] == Char('%')) {
        out.push_back(Char('%'));
        ++i;
        continue;
      }
      TDirective directive = Parse(percent, i);
      out.append(Field(directive));
    }
    return out;
  }

 private:
  bool IsDigit(size_t i) const {
    return i < format_.size() && format_[i] >= Char('0') && format_[i] <= Char('9');
  }

  size_t Number(size_t position, size_t& i) const {
    size_t value = 0;
    for (; IsDigit(i); ++i) {
      value = value * 10 + static_cast<size_t>(format_[i] - Char('0'));
      if (value > kMaxNumber) Fail(position, "number above 65535");
    }
    return value;
  }

  TDirective Parse(size_t percent, size_t& i) const {
    TDirective directive;
    directive.position = percent;
    bool haveWidth = false;
    if (IsDigit(i)) {
      size_t n = Number(percent, i);
      if (i < format_.size() && format_[i] == Char(':')) {
        directive.index = n;
        ++i;
      } else {
        directive.width = n;
        haveWidth = true;
      }
    }
    if (!haveWidth) {
      if (i < format_.size() && format_[i] == Char('-')) {
        directive.left = true;
        ++i;
      }
      directive.width = Number(percent, i);
    }
    if (i < format_.size() && format_[i] == Char('.')) {
      ++i;
      directive.precision = Number(percent, i);
    }
    if (i >= format_.size()) Fail(percent, "conversion missing at the end");
    Char c = format_[i++];
    if (c >= Char('A') && c <= Char('Z')) c = static_cast<Char>(c - Char('A') + Char('a'));
    if (c > Char('z') ||
        std::string_view("sduxgefnm").find(static_cast<char>(c)) == std::string_view::npos)
      Fail(percent, "unknown conversion");
    directive.conversion = static_cast<char>(c);
    return directive;
  }

  const TFormatArg& Take(const TDirective& directive) {
    if (directive.index) next_ = *directive.index;
    if (next_ >= args_.size())
      Fail(directive.position, "missing argument " + std::to_string(next_) + " (counted from 0)");
    return args_[next_++];
  }

  TText Converted(const TDirective& directive) {
    const TFormatArg& arg = Take(directive);
    const std::string kind(1, directive.conversion);
    switch (directive.conversion) {
      case 's': {
        if (std::holds_alternative<std::string>(arg))
          return Cut(ArgText(std::get<std::string>(arg), Char()), directive.precision);
        if (std::holds_alternative<std::u16string>(arg))
          return Cut(ArgText(std::get<std::u16string>(arg), Char()), directive.precision);
        Fail(directive.position, "\"%s\" needs a text");
      }
      case 'd':
      case 'u':
      case 'x':
        if (!std::holds_alternative<int64_t>(arg))
          Fail(directive.position, "\"%" + kind + "\" needs an integer");
        return OutText(IntegerDigits(directive, std::get<int64_t>(arg)), Char());
      case 'g':
      case 'e':
      case 'f':
      case 'n':
      case 'm':
        if (std::holds_alternative<double>(arg))
          return OutText(FloatDigits(directive, std::get<double>(arg)), Char());
        if (std::holds_alternative<int64_t>(arg))
          return OutText(FloatDigits(directive, static_cast<double>(std::get<int64_t>(arg))),
                         Char());
        Fail(directive.position, "\"%" + kind + "\" needs a number");
      default:
        Fail(directive.position, "unknown conversion");
    }
  }

  static TText Cut(TText text, std::optional<size_t> precision) {
    if (precision && *precision < text.size())
      text.resize(detail::IndexOf(text).Offset(*precision));
    return text;
  }

  TText Field(const TDirective& directive) {
    TText text = Converted(directive);
    if (directive.width == 0) return text;
    size_t length = detail::IndexOf(text).Count();
    if (length >= directive.width) return text;
    TText blanks(directive.width - length, Char(' '));
    return directive.left ? text + blanks : blanks + text;
  }

  std::basic_string_view<Char> format_;
  TFormatArgs args_;
  size_t next_ = 0;
};

}  // namespace

std::string MV_WideFmtStr(std::string_view format, TFormatArgs args) {
  return TFormatter<char>(format, args).Run();
}

std::u16string MV_WideFormat(std::u16string_view format, TFormatArgs args) {
  return TFormatter<char16_t>(format, args).Run();
}

}  // namespace mv::modules
