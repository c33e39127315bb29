#include "modules/mv_str_quote.h"

#include <optional>

#include "modules/mv_text_units.h"
#include "platform/db/wide_literals.h"

namespace mv::modules {
namespace {

template <class Char>
std::basic_string<Char> Quoted(std::basic_string_view<Char> s, Char quote) {
  detail::TChars<Char> chars{s};
  std::basic_string<Char> out;
  out.push_back(quote);
  for (size_t i = 0; i < chars.Count(); ++i) {
    if (chars.Is(i, quote)) out.push_back(quote);
    out.append(chars.At(i));
  }
  out.push_back(quote);
  return out;
}

template <class Char>
std::optional<std::basic_string<Char>> Inner(std::basic_string_view<Char> s, Char quote) {
  detail::TChars<Char> chars{s};
  if (chars.Count() == 0 || !chars.Is(0, quote)) return std::nullopt;
  std::basic_string<Char> out;
  for (size_t i = 1; i < chars.Count(); ++i) {
    if (chars.Is(i, quote)) {
      if (i + 1 == chars.Count() || !chars.Is(i + 1, quote)) return out;
      ++i;  // a doubled quote stands for one
    }
    out.append(chars.At(i));
  }
  return std::nullopt;
}

template <class Char>
std::basic_string<Char> Dequoted(std::basic_string_view<Char> s, Char quote) {
  return Inner(s, quote).value_or(std::basic_string<Char>(s));
}

template <class Char>
bool QuotesDoubled(std::basic_string_view<Char> s) {
  detail::TChars<Char> chars{s};
  for (size_t i = 0; i < chars.Count(); ++i) {
    if (!chars.Is(i, Char('\''))) continue;
    if (i + 1 == chars.Count() || !chars.Is(i + 1, Char('\''))) return false;
    ++i;
  }
  return true;
}

}  // namespace

std::string MV_WideQuotedStr(std::string_view s, char quote) {
  return Quoted(s, quote);
}
std::u16string MV_WideQuotedStr(std::u16string_view s, char16_t quote) {
  return Quoted(s, quote);
}

std::string MV_WideDequotedStr(std::string_view s, char quote) {
  return Dequoted(s, quote);
}
std::u16string MV_WideDequotedStr(std::u16string_view s, char16_t quote) {
  return Dequoted(s, quote);
}

std::string MV_NQuotedStr(std::string_view s) {
  return "N'" + db::InlineLiteralBody(s) + "'";
}
std::u16string MV_NQuotedStr(std::u16string_view s) {
  std::u16string out = u"N'";
  out += db::InlineLiteralBody(s);
  out += u'\'';
  return out;
}

bool MV_CheckQuot(std::string_view s) {
  return QuotesDoubled(s);
}
bool MV_CheckQuot(std::u16string_view s) {
  return QuotesDoubled(s);
}

}  // namespace mv::modules
